<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddTagsDialog</name>
    <message>
        <source>Add tags</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>Tags:</source>
        <translation>标签：</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Add tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>添加标签，每行一个，也可用 &quot;,&quot; 分隔..</translation>
    </message>
    <message>
        <source>Tags from: %1</source>
        <translation>标签来源：%1</translation>
    </message>
    <message>
        <source>Edit tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>编辑标签，每行一个，也可用 &quot;,&quot; 分隔..</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>Shows this text.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch %1 </source>
        <translation>用法：tessarine-batch %1 </translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 应为 %2 到 %3 之间的整数，而不是“%4”</translation>
    </message>
    <message>
        <source>--%1 takes a number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 应为 %2 到 %3 之间的数，而不是“%4”</translation>
    </message>
    <message>
        <source>--%1 is one of %2, not &quot;%3&quot;</source>
        <translation>--%1 应为 %2 之一，而不是“%3”</translation>
    </message>
    <message>
        <source>see tessarine-batch %1 --help</source>
        <translation>请参阅 tessarine-batch %1 --help</translation>
    </message>
    <message>
        <source>no answer within %1 s</source>
        <translation>%1 秒内没有应答</translation>
    </message>
    <message>
        <source>has tags</source>
        <translation>已有标签</translation>
    </message>
    <message>
        <source>the new size is empty or too large</source>
        <translation>新尺寸为空或过大</translation>
    </message>
    <message>
        <source>the answer is empty</source>
        <translation>应答为空</translation>
    </message>
    <message>
        <source>--model names the model to ask</source>
        <translation>需要用 --model 指定要询问的模型</translation>
    </message>
    <message>
        <source>--url takes an address that begins with http, not &quot;%1&quot;</source>
        <translation>--url 应为以 http 开头的地址，而不是“%1”</translation>
    </message>
    <message>
        <source>Asks an Ollama server for tags and adds them to the sidecars.</source>
        <translation>向 Ollama 服务器询问标签，并添加到附属文件中。</translation>
    </message>
    <message>
        <source>Address of the server.</source>
        <translation>服务器地址。</translation>
    </message>
    <message>
        <source>Name of the model.</source>
        <translation>模型名称。</translation>
    </message>
    <message>
        <source>System prompt in place of the model&apos;s own.</source>
        <translation>用来替代模型自带提示词的系统提示词。</translation>
    </message>
    <message>
        <source>What the model is asked about each picture.</source>
        <translation>针对每张图像向模型提出的提示词。</translation>
    </message>
    <message>
        <source>Size of the pictures sent; -1 lets one side follow the other.</source>
        <translation>所发送图像的尺寸；-1 表示该边随另一边缩放。</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep or ignore.</source>
        <translation>宽高比的处理方式：keep（保持）或 ignore（忽略）。</translation>
    </message>
    <message>
        <source>Text that separates the tags of an answer.</source>
        <translation>应答中分隔各标签的文本。</translation>
    </message>
    <message>
        <source>Skips files that have tags.</source>
        <translation>跳过已有标签的文件。</translation>
    </message>
    <message>
        <source>Keeps the old sidecar beside the new one.</source>
        <translation>在新附属文件旁保留旧附属文件。</translation>
    </message>
    <message>
        <source>Keeps tags that a file has twice.</source>
        <translation>保留文件中重复的标签。</translation>
    </message>
    <message>
        <source>Asks up to N times more after a failure.</source>
        <translation>失败后最多再询问 N 次。</translation>
    </message>
    <message>
        <source>Waits so many seconds for an answer.</source>
        <translation>等待应答的秒数。</translation>
    </message>
    <message>
        <source>Reports what is wrong with a dataset and what is in it.</source>
        <translation>报告数据集的问题及其内容。</translation>
    </message>
    <message>
        <source>Names tags that occur at most N times.</source>
        <translation>列出最多出现 N 次的标签。</translation>
    </message>
    <message>
        <source>no picture comes out of the clip</source>
        <translation>无法从视频中取得画面</translation>
    </message>
    <message>
        <source>Exports the tags of media files.</source>
        <translation>导出媒体文件的标签。</translation>
    </message>
    <message>
        <source>text, json or csv: tags by frequency; jsonl: one line a file, as image folder loaders read a metadata.jsonl.</source>
        <translation>text、json 或 csv：按出现次数排列的标签；jsonl：每个文件一行，可供图像文件夹加载器作为 metadata.jsonl 读取。</translation>
    </message>
    <message>
        <source>Writes to FILE, whole or not at all.</source>
        <translation>写入 FILE，要么完整写入，要么完全不写。</translation>
    </message>
    <message>
        <source>Replaces a file that exists.</source>
        <translation>替换已存在的文件。</translation>
    </message>
    <message>
        <source>--json needs --output, since standard output takes the export</source>
        <translation>--json 需要与 --output 一起使用，因为导出内容会占用标准输出</translation>
    </message>
    <message>
        <source>is a source, which no export replaces</source>
        <translation>是源文件，导出不会替换它</translation>
    </message>
    <message>
        <source>--shard takes I/N with I from 1 to N, not &quot;%1&quot;</source>
        <translation>--shard 应为 I/N 形式，其中 I 为 1 到 N，而不是“%1”</translation>
    </message>
    <message>
        <source>--files-from %1: %2</source>
        <translation>--files-from %1: %2</translation>
    </message>
    <message>
        <source>Takes the files of sub-directories as well.</source>
        <translation>同时处理子目录中的文件。</translation>
    </message>
    <message>
        <source>Takes paths from FILE, or from standard input for -: one a line, or each ended by NUL.</source>
        <translation>从 FILE 读取路径，为 - 时从标准输入读取：每行一个，或每个以 NUL 结尾。</translation>
    </message>
    <message>
        <source>Lets paths below DIR count from there, as those of a directory do.</source>
        <translation>DIR 下的路径从 DIR 起算，与直接给出目录时相同。</translation>
    </message>
    <message>
        <source>Takes the I-th of N shares of the files.</source>
        <translation>把文件分为 N 份，只处理第 I 份。</translation>
    </message>
    <message>
        <source>no files are given</source>
        <translation>未指定文件</translation>
    </message>
    <message>
        <source>the clip is too short, or has no duration</source>
        <translation>视频过短，或没有时长</translation>
    </message>
    <message>
        <source>no picture at %1 ms</source>
        <translation>%1 毫秒处没有画面</translation>
    </message>
    <message>
        <source>Takes frames out of clips, as PNG files with their milliseconds.</source>
        <translation>从视频中截取帧，存为以毫秒数命名的 PNG 文件。</translation>
    </message>
    <message>
        <source>Takes a frame every so many seconds.</source>
        <translation>每隔指定的秒数截取一帧。</translation>
    </message>
    <message>
        <source>Takes N frames, evenly over the clip.</source>
        <translation>在整段视频中均匀截取 N 帧。</translation>
    </message>
    <message>
        <source>either --every or --count is needed</source>
        <translation>需要且只能指定 --every 和 --count 之一</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>无需处理</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Quality of the images from 1 to 100.</source>
        <translation>图像质量，1 到 100。</translation>
    </message>
    <message>
        <source>one of --size, --scale and --ratio is needed</source>
        <translation>需要且只能指定 --size、--scale 和 --ratio 之一</translation>
    </message>
    <message>
        <source>%1: no settings file that can be read</source>
        <translation>%1: 不是可读取的设置文件</translation>
    </message>
    <message>
        <source>%1: its profiles are missing or broken</source>
        <translation>%1: 其中的预设缺失或已损坏</translation>
    </message>
    <message>
        <source>%1: no profile &quot;%2&quot; among %3</source>
        <translation>%1: 没有预设“%2”，现有预设：%3</translation>
    </message>
    <message>
        <source>--filter %1 takes a whole number from %2 to %3, as in %1=%3</source>
        <translation>--filter %1 应带 %2 到 %3 之间的整数，例如 %1=%3</translation>
    </message>
    <message>
        <source>--filter takes one of %1, with its number but for the last, not &quot;%2&quot;</source>
        <translation>--filter 应为 %1 之一，除最后一项外都要带数值，而不是“%2”</translation>
    </message>
    <message>
        <source>either --profile or --filter is needed</source>
        <translation>需要且只能指定 --profile 和 --filter 之一</translation>
    </message>
    <message>
        <source>Resizes images.</source>
        <translation>调整图像大小。</translation>
    </message>
    <message>
        <source>The new size; -1 lets one side follow the other.</source>
        <translation>新尺寸；-1 表示该边随另一边缩放。</translation>
    </message>
    <message>
        <source>Multiplies both sides by F.</source>
        <translation>两边都乘以 F。</translation>
    </message>
    <message>
        <source>Cuts from the middle: as high as the shorter side times R.</source>
        <translation>从中间裁剪：高度为短边乘以 R。</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep, expand or ignore.</source>
        <translation>宽高比的处理方式：keep（保持）、expand（扩展）或 ignore（忽略）。</translation>
    </message>
    <message>
        <source>How pixels are scaled: smooth or fast.</source>
        <translation>像素缩放方式：smooth（平滑）或 fast（快速）。</translation>
    </message>
    <message>
        <source>Runs a chain of filters over images.</source>
        <translation>对图像依次应用一组滤镜。</translation>
    </message>
    <message>
        <source>Takes the chain of a profile of the window.</source>
        <translation>采用窗口程序中某个预设的滤镜链。</translation>
    </message>
    <message>
        <source>Takes the profile out of FILE, by default the window&apos;s.</source>
        <translation>从 FILE 读取预设，默认为窗口程序的设置文件。</translation>
    </message>
    <message>
        <source>A filter of the chain, as in Brightness=20; given again for the next.</source>
        <translation>滤镜链中的一个滤镜，例如 Brightness=20；重复此选项可添加下一个。</translation>
    </message>
    <message>
        <source>Shows the header of model files.</source>
        <translation>显示模型文件的文件头。</translation>
    </message>
    <message>
        <source>Shows the metadata alone.</source>
        <translation>只显示元数据。</translation>
    </message>
    <message>
        <source>Shows name, type, shape and bytes of the tensors alone.</source>
        <translation>只显示张量的名称、类型、形状和字节数。</translation>
    </message>
    <message>
        <source>shows the header of model files</source>
        <translation>显示模型文件的文件头</translation>
    </message>
    <message>
        <source>lists, counts and edits tags</source>
        <translation>列出、统计和编辑标签</translation>
    </message>
    <message>
        <source>exports tags and captions</source>
        <translation>导出标签和描述</translation>
    </message>
    <message>
        <source>resizes images</source>
        <translation>调整图像大小</translation>
    </message>
    <message>
        <source>runs filters over images</source>
        <translation>对图像应用滤镜</translation>
    </message>
    <message>
        <source>asks an Ollama server for tags</source>
        <translation>向 Ollama 服务器询问标签</translation>
    </message>
    <message>
        <source>takes frames out of clips</source>
        <translation>从视频中截取帧</translation>
    </message>
    <message>
        <source>reports on a dataset</source>
        <translation>报告数据集情况</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch COMMAND [OPTIONS] FILE...

The commands; each takes --help:
</source>
        <translation>用法：tessarine-batch COMMAND [OPTIONS] FILE...

命令如下，均支持 --help：
</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>没有命令 %1</translation>
    </message>
    <message>
        <source>is no directory</source>
        <translation>不是目录</translation>
    </message>
    <message>
        <source>Writes below DIR; files of sub-directories keep theirs.</source>
        <translation>写入 DIR 之下；子目录中的文件保留其子目录。</translation>
    </message>
    <message>
        <source>Replaces the files themselves.</source>
        <translation>直接替换源文件。</translation>
    </message>
    <message>
        <source>Replaces results that exist.</source>
        <translation>替换已存在的结果。</translation>
    </message>
    <message>
        <source>Skips results that are no older than their source.</source>
        <translation>跳过不早于源文件的结果。</translation>
    </message>
    <message>
        <source>--in-place goes with neither --output nor --resume</source>
        <translation>--in-place 不能与 --output 或 --resume 一起使用</translation>
    </message>
    <message>
        <source>--output DIR says where the results go</source>
        <translation>需要用 --output DIR 指定结果的存放位置</translation>
    </message>
    <message>
        <source>another file has the result %1; --base keeps their directories</source>
        <translation>另一个文件的结果也是 %1；使用 --base 可保留各自的目录</translation>
    </message>
    <message>
        <source>%1 is a directory</source>
        <translation>%1 是目录</translation>
    </message>
    <message>
        <source>%1 is a source, which only --in-place replaces</source>
        <translation>%1 是源文件，只有 --in-place 才会替换它</translation>
    </message>
    <message>
        <source>%1 is there</source>
        <translation>%1 已存在</translation>
    </message>
    <message>
        <source>%1 exists, which only --overwrite replaces</source>
        <translation>%1 已存在，只有 --overwrite 才会替换它</translation>
    </message>
    <message>
        <source>may not be read</source>
        <translation>无读取权限</translation>
    </message>
    <message>
        <source>a link to nothing</source>
        <translation>链接指向的目标不存在</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8</source>
        <translation>文件名不是有效的 UTF-8</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>是目录</translation>
    </message>
    <message>
        <source>not done, interrupted</source>
        <translation>已中断，未处理</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>，剩余 %1</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped, %4 failed%5</source>
        <translation>%1: 完成 %2，跳过 %3，失败 %4%5</translation>
    </message>
    <message>
        <source>Works on N files at once; 0 stands for one a processor.</source>
        <translation>同时处理 N 个文件；0 表示每个处理器一个。</translation>
    </message>
    <message>
        <source>Shows a bar on standard error if that is a terminal.</source>
        <translation>标准错误为终端时，在其上显示进度条。</translation>
    </message>
    <message>
        <source>Prints one JSON object a line.</source>
        <translation>每行输出一个 JSON 对象。</translation>
    </message>
    <message>
        <source>Prints no summary, only failures.</source>
        <translation>不输出摘要，只输出失败项。</translation>
    </message>
    <message>
        <source>Writes the paths of files that failed or were left to FILE, for --files-from.</source>
        <translation>把失败或未处理文件的路径写入 FILE，供 --files-from 使用。</translation>
    </message>
    <message>
        <source>--failed %1: the file exists and is no such list</source>
        <translation>--failed %1: 文件已存在，且不是此类列表</translation>
    </message>
    <message>
        <source>standard output took only a part</source>
        <translation>标准输出只写入了一部分</translation>
    </message>
    <message>
        <source>the sidecar is not valid UTF-8</source>
        <translation>附属文件不是有效的 UTF-8</translation>
    </message>
    <message>
        <source>--size takes WxH, where -1 lets one side follow, not &quot;%1&quot;</source>
        <translation>--size 应为 WxH 形式，-1 表示该边随另一边缩放，而不是“%1”</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>无需更改</translation>
    </message>
    <message>
        <source>--%1 needs a text</source>
        <translation>--%1 需要文本</translation>
    </message>
    <message>
        <source>--tags holds no tag</source>
        <translation>--tags 中没有标签</translation>
    </message>
    <message>
        <source>The tags, separated by commas.</source>
        <translation>标签，以逗号分隔。</translation>
    </message>
    <message>
        <source>The text inside of tags to replace.</source>
        <translation>标签中要替换的文本。</translation>
    </message>
    <message>
        <source>The text to put in its place.</source>
        <translation>替换成的文本。</translation>
    </message>
    <message>
        <source>The text at which to split tags.</source>
        <translation>在此文本处拆分标签。</translation>
    </message>
    <message>
        <source>Prints a unified diff and writes nothing.</source>
        <translation>只输出统一格式的差异，不写入任何内容。</translation>
    </message>
    <message>
        <source>Lists, counts and edits the tags in the sidecars of media files.</source>
        <translation>列出、统计和编辑媒体文件附属文件中的标签。</translation>
    </message>
    <message>
        <source>tags takes one of %1</source>
        <translation>tags 应带 %1 之一</translation>
    </message>
    <message>
        <source>another run is writing it</source>
        <translation>另一个进程正在写入该文件</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>没有可用的备份文件名</translation>
    </message>
    <message>
        <source>no backup was made: %1</source>
        <translation>未能创建备份：%1</translation>
    </message>
</context>
<context>
    <name>CompletionPopup</name>
    <message>
        <source>Completions</source>
        <translation>补全建议</translation>
    </message>
</context>
<context>
    <name>EditImageDialog</name>
    <message>
        <source>Edit image</source>
        <translation>编辑图像</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X：</translation>
    </message>
    <message>
        <source>Cut tool x position</source>
        <translation>裁剪工具 X 位置</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y：</translation>
    </message>
    <message>
        <source>Cut tool y position</source>
        <translation>裁剪工具 Y 位置</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>宽：</translation>
    </message>
    <message>
        <source>Cut tool width</source>
        <translation>裁剪工具宽度</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>高：</translation>
    </message>
    <message>
        <source>Cut tool height</source>
        <translation>裁剪工具高度</translation>
    </message>
    <message>
        <source>Width of cut outline</source>
        <translation>裁剪框线宽</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自动适应</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自动居中</translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Tool panel</source>
        <translation>工具面板</translation>
    </message>
    <message>
        <source>Edit image: %1 [%2x%3] %4</source>
        <translation>编辑图像：%1 [%2x%3] %4</translation>
    </message>
    <message>
        <source>&amp;Save image [%1]</source>
        <translation>保存图像(&amp;S) [%1]</translation>
    </message>
    <message>
        <source>Save image [%1]</source>
        <translation>保存图像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Save image as [%1]</source>
        <translation>图像另存为(&amp;A) [%1]</translation>
    </message>
    <message>
        <source>Save image as [%1]</source>
        <translation>图像另存为 [%1]</translation>
    </message>
    <message>
        <source>&amp;Previous image [%1]</source>
        <translation>上一张图像(&amp;P) [%1]</translation>
    </message>
    <message>
        <source>Previous image [%1]</source>
        <translation>上一张图像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Next image [%1]</source>
        <translation>下一张图像(&amp;N) [%1]</translation>
    </message>
    <message>
        <source>Next image [%1]</source>
        <translation>下一张图像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Pan image [%1]</source>
        <translation>平移图像(&amp;M) [%1]</translation>
    </message>
    <message>
        <source>Pan image [%1]</source>
        <translation>平移图像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Cut image [%1]</source>
        <translation>裁剪图像(&amp;C) [%1]</translation>
    </message>
    <message>
        <source>Cut image [%1]</source>
        <translation>裁剪图像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Delete image [%1]</source>
        <translation>删除图像(&amp;D) [%1]</translation>
    </message>
    <message>
        <source>&amp;Undo [%1]</source>
        <translation>撤销(&amp;U) [%1]</translation>
    </message>
    <message>
        <source>Auto fit image to view. Changes zoom. [%1]</source>
        <translation>图像自动适应视图，会改变缩放。[%1]</translation>
    </message>
    <message>
        <source>Auto center image. Dont change zoom. [%1]</source>
        <translation>图像自动居中，不改变缩放。[%1]</translation>
    </message>
    <message>
        <source>Keep aspect ration while resizing cut rectangle. [%1]</source>
        <translation>调整裁剪框大小时保持宽高比。[%1]</translation>
    </message>
    <message>
        <source>zoom level: %1</source>
        <translation>缩放级别：%1</translation>
    </message>
</context>
<context>
    <name>EditImageWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Save image: %1</source>
        <translation>保存图像：%1</translation>
    </message>
    <message>
        <source>Save image as</source>
        <translation>图像另存为</translation>
    </message>
    <message>
        <source>Saved image as: %1</source>
        <translation>图像已另存为：%1</translation>
    </message>
    <message>
        <source>Error, unable to save image: %1</source>
        <translation>错误，无法保存图像：%1</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自动适应</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自动居中</translation>
    </message>
    <message>
        <source>Update on resize</source>
        <translation>调整大小时更新</translation>
    </message>
    <message>
        <source>Reset zoom</source>
        <translation>重置缩放</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>另存为(&amp;S)</translation>
    </message>
    <message>
        <source>F&amp;it</source>
        <translation>适应(&amp;I)</translation>
    </message>
    <message>
        <source>Align &amp;height</source>
        <translation>适应高度(&amp;H)</translation>
    </message>
    <message>
        <source>Align &amp;width</source>
        <translation>适应宽度(&amp;W)</translation>
    </message>
    <message>
        <source>Align c&amp;enter</source>
        <translation>居中对齐(&amp;E)</translation>
    </message>
    <message>
        <source>Same width</source>
        <translation>宽度等于高度</translation>
    </message>
    <message>
        <source>Same height</source>
        <translation>高度等于宽度</translation>
    </message>
    <message>
        <source>Align edge &amp;left</source>
        <translation>对齐左边缘(&amp;L)</translation>
    </message>
    <message>
        <source>Align edge &amp;right</source>
        <translation>对齐右边缘(&amp;R)</translation>
    </message>
    <message>
        <source>Align edge &amp;top</source>
        <translation>对齐上边缘(&amp;T)</translation>
    </message>
    <message>
        <source>Align edge &amp;bottom</source>
        <translation>对齐下边缘(&amp;B)</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetBase</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Bypass filter</source>
        <translation>绕过滤镜</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetSlider</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>ImageFilters</name>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>模糊</translation>
    </message>
    <message>
        <source>WhitePoint</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>BlackPoint</source>
        <translation>黑点</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>锐化</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThread</name>
    <message>
        <source>Unable to allocate image.</source>
        <translation>无法为图像分配内存。</translation>
    </message>
    <message>
        <source>Image read error: %1</source>
        <translation>图像读取错误：%1</translation>
    </message>
    <message>
        <source>Image file path empty.</source>
        <translation>图像文件路径为空。</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThreaded</name>
    <message>
        <source>Loaded all media previews in: %1 s</source>
        <translation>所有媒体预览已加载，用时：%1 秒</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tessarine</source>
        <translation>Tessarine</translation>
    </message>
    <message>
        <source>Media list</source>
        <translation>媒体列表</translation>
    </message>
    <message>
        <source>Media tree</source>
        <translation>媒体树</translation>
    </message>
    <message>
        <source>Media table</source>
        <translation>媒体表格</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Filter images by name, path, tags, image size.&lt;/p&gt;&lt;p&gt;Custom tags:&lt;/p&gt;&lt;p&gt;:missingTxt - shows only images with missing txt files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;按名称、路径、标签、图像尺寸筛选图像。&lt;/p&gt;&lt;p&gt;特殊词：&lt;/p&gt;&lt;p&gt;:missingTxt - 只显示缺少 txt 文件的图像&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>filter images by name, path, tags, image size, tags: &quot;:missingTxt&quot;</source>
        <translation>按名称、路径、标签、图像尺寸筛选图像，特殊词：&quot;:missingTxt&quot;</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>筛选图像</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Working path. All operations are being done in this directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;工作路径。所有操作都在此目录中进行。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Working path</source>
        <translation>工作路径</translation>
    </message>
    <message>
        <source>Select working path</source>
        <translation>选择工作路径</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled scan working dir recursively.&lt;/p&gt;&lt;p&gt;Working path is provided path.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;启用后递归扫描工作目录。&lt;/p&gt;&lt;p&gt;工作路径为所提供的路径。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>rec.</source>
        <translation>递归</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Refresh working directory</source>
        <translation>刷新工作目录</translation>
    </message>
    <message>
        <source>Refresh working directory. Warning all unsaved changes to tags are discarded.</source>
        <translation>刷新工作目录。警告：所有未保存的标签更改都会丢弃。</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>保存标签</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled save duplicated tags.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;启用后保存重复的标签。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>dups</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;If enabled backup old tags txt file. Files are renamed and keept in same directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;启用后备份旧的标签 txt 文件。文件会重命名并保留在同一目录中。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>调整大小</translation>
    </message>
    <message>
        <source>Aspect ratio:</source>
        <translation>宽高比：</translation>
    </message>
    <message>
        <source>IgnoreAspectRatio</source>
        <translation>忽略宽高比</translation>
    </message>
    <message>
        <source>KeepAspectRatio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>KeepAspectRatioByExpanding</source>
        <translation>扩展以保持宽高比</translation>
    </message>
    <message>
        <source>Transformation:</source>
        <translation>变换：</translation>
    </message>
    <message>
        <source>FastTransformation</source>
        <translation>快速变换</translation>
    </message>
    <message>
        <source>SmoothTransformation</source>
        <translation>平滑变换</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;New size of image.&lt;/p&gt;&lt;p&gt;To resize to width set -1 on height.&lt;/p&gt;&lt;p&gt;To resize to height set -1 on width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;图像的新尺寸。&lt;/p&gt;&lt;p&gt;若按宽度调整，请将高度设为 -1。&lt;/p&gt;&lt;p&gt;若按高度调整，请将宽度设为 -1。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Specific size</source>
        <translation>指定尺寸</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore width and scale to  height.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - 忽略宽度，按高度缩放。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore height and scale to width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - 忽略高度，按宽度缩放。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale size</source>
        <translation>缩放尺寸</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Scale by aspect ratio</source>
        <translation>按宽高比缩放</translation>
    </message>
    <message>
        <source>aspect ratio</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>对齐：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Specify output directory, can be relative, empty overwrites source files.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;指定输出目录，可为相对路径；留空则覆盖源文件。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>output directory, relative or absolute</source>
        <translation>输出目录，相对或绝对路径</translation>
    </message>
    <message>
        <source>Output directory of resize</source>
        <translation>调整大小的输出目录</translation>
    </message>
    <message>
        <source>Quality [100]:</source>
        <translation>质量 [100]：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;保存图像的质量，即压缩程度。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Current selection tags:</source>
        <translation>当前所选文件的标签：</translation>
    </message>
    <message>
        <source>filter tag</source>
        <translation>筛选标签</translation>
    </message>
    <message>
        <source>Filter tags of selection</source>
        <translation>筛选所选文件的标签</translation>
    </message>
    <message>
        <source>All unique tags:</source>
        <translation>所有不重复标签：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Unique list of tags.&lt;/p&gt;&lt;p&gt;All duplicates are removed.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;不重复的标签列表。&lt;/p&gt;&lt;p&gt;所有重复项均已移除。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send current prompt to Ollama</source>
        <translation>将当前提示词发送给 Ollama</translation>
    </message>
    <message>
        <source>Export tags</source>
        <translation>导出标签</translation>
    </message>
    <message>
        <source>filter all tags</source>
        <translation>筛选所有标签</translation>
    </message>
    <message>
        <source>Filter all tags</source>
        <translation>筛选所有标签</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>文件：</translation>
    </message>
    <message>
        <source>Save txt file</source>
        <translation>保存 txt 文件</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Content of txt file associated with selected image.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;与所选图像关联的 txt 文件的内容。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Text of the tag file</source>
        <translation>标签文件的文本</translation>
    </message>
    <message>
        <source>Content of tag txt file for current image</source>
        <translation>当前图像的标签 txt 文件内容</translation>
    </message>
    <message>
        <source>Ollama</source>
        <translation>Ollama</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;The URL of the Ollama server. Default value points to a local instance with ollama&apos;s default port configuration&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama 服务器的 URL。默认值指向使用 Ollama 默认端口的本机实例&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>IP adress</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>URL of the Ollama server</source>
        <translation>Ollama 服务器的 URL</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>模型：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Select a model for inference. This is a list of available models on the Ollama server. If you don&apos;t see any, make sure the Ollama server is running on the url and there are models installed&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;选择用于推理的模型。此处列出 Ollama 服务器上可用的模型。如果列表为空，请确认 Ollama 服务器正在该 URL 上运行，并且已安装模型&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale resolution:</source>
        <translation>缩放分辨率：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Scale image send to Ollama to specified dimension.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;将发送给 Ollama 的图像缩放到指定尺寸。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale width</source>
        <translation>缩放宽度</translation>
    </message>
    <message>
        <source>Scale height</source>
        <translation>缩放高度</translation>
    </message>
    <message>
        <source>keep aspect ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>System prompt:</source>
        <translation>系统提示词：</translation>
    </message>
    <message>
        <source>System prompt for Ollama model</source>
        <translation>Ollama 模型的系统提示词</translation>
    </message>
    <message>
        <source>Prompt:</source>
        <translation>提示词：</translation>
    </message>
    <message>
        <source>User prompt for Ollama model</source>
        <translation>Ollama 模型的用户提示词</translation>
    </message>
    <message>
        <source>Response:</source>
        <translation>响应：</translation>
    </message>
    <message>
        <source>Ollama response</source>
        <translation>Ollama 的响应</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama tag separator. Character used to split text returned by ollama.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama 标签分隔符。用于拆分 Ollama 返回文本的字符。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tag split character</source>
        <translation>标签分隔字符</translation>
    </message>
    <message>
        <source>Tag separator</source>
        <translation>标签分隔符</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Add tags. Tags are divided by separator.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;添加标签。标签以分隔符分开。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>add tags</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Send prompt to ollama. Includes image if selected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;将提示词发送给 Ollama。若选中了图像，则一并发送。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send prompt</source>
        <translation>发送提示词</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Filter list</source>
        <translation>滤镜列表</translation>
    </message>
    <message>
        <source>Add filter</source>
        <translation>添加滤镜</translation>
    </message>
    <message>
        <source>Currently active filters</source>
        <translation>当前启用的滤镜</translation>
    </message>
    <message>
        <source>Output directory of effects</source>
        <translation>效果的输出目录</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;p&gt;0 - smallest file worst quality&lt;/p&gt;&lt;p&gt;100 - largest file best quality&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;保存图像的质量，即压缩程度。&lt;/p&gt;&lt;p&gt;0 - 文件最小，质量最差&lt;/p&gt;&lt;p&gt;100 - 文件最大，质量最好&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Reset currently applied filters to preview. &lt;/p&gt;&lt;p&gt;Debug helper button.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;重置预览中当前应用的滤镜。 &lt;/p&gt;&lt;p&gt;调试辅助按钮。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Apply effect to all selected images&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;将效果应用到所有选中的图像&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>元数据</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>元数据：</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Media preview</source>
        <translation>媒体预览</translation>
    </message>
    <message>
        <source>Image preview</source>
        <translation>图像预览</translation>
    </message>
    <message>
        <source>Video preview</source>
        <translation>视频预览</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Select w&amp;orking directory</source>
        <translation>选择工作目录(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Import files</source>
        <translation>导入文件(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Save tags</source>
        <translation>保存标签(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Inspect safetensor</source>
        <translation>检查 safetensors(&amp;N)</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Edit image</source>
        <translation>编辑图像(&amp;E)</translation>
    </message>
    <message>
        <source>Edit image</source>
        <translation>编辑图像</translation>
    </message>
    <message>
        <source>&amp;Add tag</source>
        <translation>添加标签(&amp;A)</translation>
    </message>
    <message>
        <source>Add tag</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>&amp;Edit video</source>
        <translation>编辑视频(&amp;V)</translation>
    </message>
    <message>
        <source>Edit video</source>
        <translation>编辑视频</translation>
    </message>
    <message>
        <source>%1 hidden as they are saved</source>
        <translation>%1 个文件因已保存而隐藏</translation>
    </message>
    <message>
        <source>Restored the tags of %1 files, %2 sidecars have changed since.</source>
        <translation>已恢复 %1 个文件的标签，其间有 %2 个附属文件发生了变化。</translation>
    </message>
    <message>
        <source>extracted</source>
        <translation>已提取</translation>
    </message>
    <message>
        <source>Edit &amp;tag file</source>
        <translation>编辑标签文件(&amp;T)</translation>
    </message>
    <message>
        <source>Edit v&amp;ideo</source>
        <translation>编辑视频(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open in native app</source>
        <translation>用系统默认程序打开(&amp;O)</translation>
    </message>
    <message>
        <source>Show file in &amp;file browser</source>
        <translation>在文件管理器中显示(&amp;F)</translation>
    </message>
    <message>
        <source>Copy co&amp;mment</source>
        <translation>复制注释(&amp;N)</translation>
    </message>
    <message>
        <source>E&amp;xtract workflow</source>
        <translation>提取工作流(&amp;X)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>&amp;Copy files</source>
        <translation>复制文件(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Move files</source>
        <translation>移动文件(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Delete stray txt files</source>
        <translation>删除孤立的 txt 文件(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Delete file</source>
        <translation>删除文件(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Icon</source>
        <translation>图标(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;List simple</source>
        <translation>简单列表(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>列表(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>表格(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>排序(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>路径(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>分辨率(&amp;R)</translation>
    </message>
    <message>
        <source>Select directory</source>
        <translation>选择目录</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>已移动</translation>
    </message>
    <message>
        <source>Error, unable to copy file: %1 to: %2 error: %3</source>
        <translation>错误，无法将文件：%1 复制到：%2，错误：%3</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>Delete files.</source>
        <translation>删除文件</translation>
    </message>
    <message>
        <source>Do you want to delete %1 files?</source>
        <translation>要删除 %1 个文件吗？</translation>
    </message>
    <message>
        <source>deleted %1/%2</source>
        <translation>已删除 %1/%2</translation>
    </message>
    <message>
        <source>Error, unable to move file to trash, error: %1</source>
        <translation>错误，无法将文件移到回收站，错误：%1</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Working path empty.</source>
        <translation>工作路径为空。</translation>
    </message>
    <message>
        <source>Working path dont exists.</source>
        <translation>工作路径不存在。</translation>
    </message>
    <message>
        <source>Failed to trash file: %1</source>
        <translation>无法将文件移到回收站：%1</translation>
    </message>
    <message>
        <source>Found %1 stray txt files, moved to trash bin.</source>
        <translation>找到 %1 个孤立的 txt 文件，已移到回收站。</translation>
    </message>
    <message>
        <source>Set working directory. Path is empty.</source>
        <translation>请设置工作目录。路径为空。</translation>
    </message>
    <message>
        <source>Working directory don&apos;t exists at: %1</source>
        <translation>工作目录不存在：%1</translation>
    </message>
    <message>
        <source>Select files to import</source>
        <translation>选择要导入的文件</translation>
    </message>
    <message>
        <source>Files (*.*)</source>
        <translation>文件 (*.*)</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>已导入</translation>
    </message>
    <message>
        <source>Unable to import file from %1, file already exist at: %2</source>
        <translation>无法从 %1 导入文件，文件已存在：%2</translation>
    </message>
    <message>
        <source>file already exist at: %1</source>
        <translation>文件已存在：%1</translation>
    </message>
    <message>
        <source>Unable to import file from %1, copy error: %2</source>
        <translation>无法从 %1 导入文件，复制错误：%2</translation>
    </message>
    <message>
        <source>Imported file from %1 to %2</source>
        <translation>已将文件从 %1 导入到 %2</translation>
    </message>
    <message>
        <source>Import file error, unable to move to trash file: %1, error: %2</source>
        <translation>导入文件出错，无法将文件移到回收站：%1，错误：%2</translation>
    </message>
    <message>
        <source>Open %1 file browsers?</source>
        <translation>要打开 %1 个文件管理器窗口吗？</translation>
    </message>
    <message>
        <source>Error, no application to open file: %1</source>
        <translation>错误，没有可打开此文件的程序：%1</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Provide correct working directory path. Path is empty.</source>
        <translation>请提供正确的工作目录路径。路径为空。</translation>
    </message>
    <message>
        <source>Provide correct working directory. Directory dont exists at: %1</source>
        <translation>请提供正确的工作目录。目录不存在：%1</translation>
    </message>
    <message>
        <source>Checking directory: %1</source>
        <translation>正在检查目录：%1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Last modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>MediaType</source>
        <translation>媒体类型</translation>
    </message>
    <message>
        <source>FileFormat</source>
        <translation>文件格式</translation>
    </message>
    <message>
        <source>AudioBitRate</source>
        <translation>音频比特率</translation>
    </message>
    <message>
        <source>AudioCodec</source>
        <translation>音频编码</translation>
    </message>
    <message>
        <source>VideoBitRate</source>
        <translation>视频比特率</translation>
    </message>
    <message>
        <source>VideoCodec</source>
        <translation>视频编码</translation>
    </message>
    <message>
        <source>VideoFrameRate</source>
        <translation>视频帧率</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>后缀</translation>
    </message>
    <message>
        <source>Has txt file</source>
        <translation>有 txt 文件</translation>
    </message>
    <message>
        <source>Found: %1 files</source>
        <translation>找到：%1 个文件</translation>
    </message>
    <message>
        <source>Loaded in: %1 s</source>
        <translation>加载用时：%1 秒</translation>
    </message>
    <message>
        <source>Loading image previews</source>
        <translation>正在加载图像预览</translation>
    </message>
    <message>
        <source>Image %2 preview [zoom: %1]</source>
        <translation>图像 %2 预览 [缩放：%1]</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>中上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Center left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Center center</source>
        <translation>正中</translation>
    </message>
    <message>
        <source>Center right</source>
        <translation>右中</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>中下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自动居中</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自动适应</translation>
    </message>
    <message>
        <source>%1 hidden by the filter line</source>
        <translation>%1 个文件被筛选栏隐藏</translation>
    </message>
    <message>
        <source>Found %1 files.</source>
        <translation>找到 %1 个文件。</translation>
    </message>
    <message>
        <source>No filter word: &quot;%1&quot;. Searching for the text.</source>
        <translation>“%1”不是筛选词，将按文本搜索。</translation>
    </message>
    <message>
        <source>Current selection [%1] tags:</source>
        <translation>当前所选文件 [%1] 的标签：</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>已选择：%1 项</translation>
    </message>
    <message>
        <source>Added %1 new items.</source>
        <translation>已添加 %1 个新项目。</translation>
    </message>
    <message>
        <source>Removed %1 missing items.</source>
        <translation>已移除 %1 个缺失的项目。</translation>
    </message>
    <message>
        <source>Refresh %1 working directory?</source>
        <translation>要刷新工作目录 %1 吗？</translation>
    </message>
    <message>
        <source>All unsaved changes to tags will be discarded.</source>
        <translation>所有未保存的标签更改都会丢弃。</translation>
    </message>
    <message>
        <source>Change %1 working directory?</source>
        <translation>要更换工作目录 %1 吗？</translation>
    </message>
    <message>
        <source>Change current working directory to %1?</source>
        <translation>要将当前工作目录更改为 %1 吗？</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Saved image: %1</source>
        <translation>已保存图像：%1</translation>
    </message>
    <message>
        <source>Saved image as file: %1, file overwritten.</source>
        <translation>图像已保存为文件：%1，原文件已覆盖。</translation>
    </message>
    <message>
        <source>Saved image as file: %1, outside of working directory, not adding to list.</source>
        <translation>图像已保存为文件：%1，位于工作目录之外，不添加到列表。</translation>
    </message>
    <message>
        <source>Adding saved image as file: %1</source>
        <translation>正在将保存的图像添加为文件：%1</translation>
    </message>
    <message>
        <source>Delete file?</source>
        <translation>删除文件？</translation>
    </message>
    <message>
        <source>Do you want to delete %1 file?</source>
        <translation>要删除文件 %1 吗？</translation>
    </message>
    <message>
        <source>Error %1 unable move file %2 to trash.</source>
        <translation>错误 %1，无法将文件 %2 移到回收站。</translation>
    </message>
    <message>
        <source>Preview of effects is not saved, use Apply.</source>
        <translation>效果预览不会保存，请使用“应用”。</translation>
    </message>
    <message>
        <source>Quality [%1]:</source>
        <translation>质量 [%1]：</translation>
    </message>
    <message>
        <source>&amp;Toggle bypass</source>
        <translation>切换绕过(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Bypass all</source>
        <translation>全部绕过(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>移除所选项(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>Error, unable to create out path %1 file will be not saved.</source>
        <translation>错误，无法创建输出路径 %1，文件不会保存。</translation>
    </message>
    <message>
        <source>Select image/s.</source>
        <translation>请选择图像。</translation>
    </message>
    <message>
        <source>Error, image path is empty.</source>
        <translation>错误，图像路径为空。</translation>
    </message>
    <message>
        <source>no image was read</source>
        <translation>未读取到图像</translation>
    </message>
    <message>
        <source>Applied filter to %1 of total: %2</source>
        <translation>已应用滤镜：%1，共 %2</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>滤镜已处理</translation>
    </message>
    <message>
        <source>Filters applied to: %1 files</source>
        <translation>滤镜已应用到：%1 个文件</translation>
    </message>
    <message>
        <source>Error, unable to write file: %1 error: %2</source>
        <translation>错误，无法写入文件：%1，错误：%2</translation>
    </message>
    <message>
        <source>Select image.</source>
        <translation>请选择图像。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>No resize options specified.</source>
        <translation>未指定调整大小的选项。</translation>
    </message>
    <message>
        <source>Resized %1 of total: %2</source>
        <translation>已调整大小：%1，共 %2</translation>
    </message>
    <message>
        <source>resized</source>
        <translation>已调整大小</translation>
    </message>
    <message>
        <source>Resize completed, resized: %1 in %2 s</source>
        <translation>调整大小完成，已调整：%1 个，用时 %2 秒</translation>
    </message>
    <message>
        <source>Ollama status is online: %1</source>
        <translation>Ollama 在线状态：%1</translation>
    </message>
    <message>
        <source>No Ollama server answers at this address.</source>
        <translation>此地址没有 Ollama 服务器应答。</translation>
    </message>
    <message>
        <source>Ollama aborting for %1</source>
        <translation>Ollama 正在中止，剩余 %1 个</translation>
    </message>
    <message>
        <source>Abort prompt</source>
        <translation>中止处理</translation>
    </message>
    <message>
        <source>Ollama processing done for %1</source>
        <translation>Ollama 处理完成，共 %1 个</translation>
    </message>
    <message>
        <source>Ollama processing: %1 total %2</source>
        <translation>Ollama 正在处理：%1，共 %2</translation>
    </message>
    <message>
        <source>Error, image is null.</source>
        <translation>错误，图像为空。</translation>
    </message>
    <message>
        <source>Error processing: %1</source>
        <translation>处理出错：%1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>打开 safetensors 文件</translation>
    </message>
    <message>
        <source>Safetensors (*.safetensors)</source>
        <translation>Safetensors (*.safetensors)</translation>
    </message>
    <message>
        <source>Inspecting %1 safetensors</source>
        <translation>正在检查 safetensors 文件 %1</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>没有可用的备份文件名</translation>
    </message>
    <message>
        <source>the disk took only a part</source>
        <translation>磁盘只写入了一部分</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>File tag, txt, missing for: %1</source>
        <translation>缺少标签 txt 文件：%1</translation>
    </message>
    <message>
        <source>saved %1/%2</source>
        <translation>已保存 %1/%2</translation>
    </message>
    <message>
        <source>Error, file name is empty.</source>
        <translation>错误，文件名为空。</translation>
    </message>
    <message>
        <source>Failed to open txt file, error: %1</source>
        <translation>无法打开 txt 文件，错误：%1</translation>
    </message>
    <message>
        <source>Failed to write data to txt file, error: %1</source>
        <translation>无法将数据写入 txt 文件，错误：%1</translation>
    </message>
    <message>
        <source>Error, image file name is empty.</source>
        <translation>错误，图像文件名为空。</translation>
    </message>
    <message>
        <source>Shows the tags that contain the text. Ctrl+Enter adds the typed tag to the selected files.</source>
        <translation>显示包含该文本的标签。按 Ctrl+Enter 可将输入的标签添加到所选文件。</translation>
    </message>
    <message>
        <source>Added &quot;%1&quot; to %2 files.</source>
        <translation>已将“%1”添加到 %2 个文件。</translation>
    </message>
    <message>
        <source>Unable to replace text, source &quot;%1&quot; or replacement &quot;%2&quot; is empty</source>
        <translation>无法替换文本，原文本“%1”或替换文本“%2”为空</translation>
    </message>
    <message>
        <source>Replacing text &quot;%1&quot; with &quot;%2&quot;.</source>
        <translation>正在将文本“%1”替换为“%2”。</translation>
    </message>
    <message>
        <source>Source text is empty &quot;%1&quot;</source>
        <translation>原文本为空“%1”</translation>
    </message>
    <message>
        <source>Splitting text by &quot;%1&quot;.</source>
        <translation>正在按“%1”拆分文本。</translation>
    </message>
    <message>
        <source>All tags</source>
        <translation>所有标签</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>数量：%1</translation>
    </message>
    <message>
        <source>%1 hidden by the tag search</source>
        <translation>%1 个文件被标签搜索隐藏</translation>
    </message>
    <message>
        <source>Found %1 images for tag: %2</source>
        <translation>找到 %1 张图像，标签：%2</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>复制到剪贴板(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>全部删除(&amp;A)</translation>
    </message>
    <message>
        <source>R&amp;eplace text</source>
        <translation>替换文本(&amp;E)</translation>
    </message>
    <message>
        <source>Spli&amp;t text</source>
        <translation>拆分文本(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>View &amp;list</source>
        <translation>列表视图(&amp;L)</translation>
    </message>
    <message>
        <source>View &amp;icon</source>
        <translation>图标视图(&amp;I)</translation>
    </message>
    <message>
        <source>No working directory to save the frame to.</source>
        <translation>没有可用于保存帧的工作目录。</translation>
    </message>
    <message>
        <source>Error, unable to save file to: %1</source>
        <translation>错误，无法将文件保存到：%1</translation>
    </message>
    <message>
        <source>grabbed</source>
        <translation>已截取</translation>
    </message>
    <message>
        <source>Saved frame to: %1</source>
        <translation>帧已保存到：%1</translation>
    </message>
</context>
<context>
    <name>MediaFormats</name>
    <message>
        <source>Images (</source>
        <translation>图像 (</translation>
    </message>
    <message>
        <source>Video (</source>
        <translation>视频 (</translation>
    </message>
</context>
<context>
    <name>MediaQuery</name>
    <message>
        <source>no sidecar on the disk, or an empty one; alone in the line</source>
        <translation>磁盘上没有附属文件，或附属文件为空；须单独使用</translation>
    </message>
    <message>
        <source>files with this tag: :tag sky, :tag &quot;blue sky&quot;</source>
        <translation>有此标签的文件，如 :tag sky、:tag &quot;blue sky&quot;</translation>
    </message>
    <message>
        <source>files without this tag</source>
        <translation>没有此标签的文件</translation>
    </message>
    <message>
        <source>number of tags: :tags=0</source>
        <translation>标签数，如 :tags=0</translation>
    </message>
    <message>
        <source>fewer tags than: :tags&lt;5</source>
        <translation>标签数少于，如 :tags&lt;5</translation>
    </message>
    <message>
        <source>more tags than: :tags&gt;20</source>
        <translation>标签数多于，如 :tags&gt;20</translation>
    </message>
    <message>
        <source>width in pixels, also with &lt; and =: :w&gt;1024</source>
        <translation>宽度（像素），也可用 &lt; 和 =，如 :w&gt;1024</translation>
    </message>
    <message>
        <source>height in pixels, also with &gt; and =: :h&lt;512</source>
        <translation>高度（像素），也可用 &gt; 和 =，如 :h&lt;512</translation>
    </message>
    <message>
        <source>width to height, within one percent: :ratio 3:2</source>
        <translation>宽高比，误差不超过百分之一，如 :ratio 3:2</translation>
    </message>
    <message>
        <source>clips</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>files with tags that are not saved</source>
        <translation>标签尚未保存的文件</translation>
    </message>
    <message>
        <source>files that have a tag twice</source>
        <translation>含有重复标签的文件</translation>
    </message>
</context>
<context>
    <name>OllamaApi</name>
    <message>
        <source>Thinking:</source>
        <translation>思考：</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Preview size:</source>
        <translation>预览尺寸：</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Preview thread count:</source>
        <translation>预览线程数：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Thread count used to load image previews.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;用于加载图像预览的线程数。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Files import</source>
        <translation>文件导入</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Delete original source file.&lt;/p&gt;&lt;p&gt;Example importing c:\file.jpg to c:\trainData\file.jpg will move file c:\file.jpg to trash.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;删除原来的源文件。&lt;/p&gt;&lt;p&gt;例如将 c:\file.jpg 导入为 c:\trainData\file.jpg 时，会把文件 c:\file.jpg 移到回收站。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>during &quot;Files import&quot; remove source</source>
        <translation>“文件导入”时移除源文件</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Auto rename file, format fileName_X.suffix, if working directory already contains file withh same name.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;如果工作目录中已有同名文件，则自动重命名，格式为 fileName_X.suffix。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>auto rename</source>
        <translation>自动重命名</translation>
    </message>
    <message>
        <source>Safetensors options</source>
        <translation>Safetensors 选项</translation>
    </message>
    <message>
        <source>include meta info</source>
        <translation>包含元信息</translation>
    </message>
    <message>
        <source>include tensors info</source>
        <translation>包含张量信息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ProfilesEditWidget</name>
    <message>
        <source>Profiles editor</source>
        <translation>预设编辑器</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Data size: 0</source>
        <translation>数据大小：0</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Data size: %1</source>
        <translation>数据大小：%1</translation>
    </message>
</context>
<context>
    <name>ProfilesWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Move profile up</source>
        <translation>上移预设</translation>
    </message>
    <message>
        <source>Move profile down</source>
        <translation>下移预设</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新建预设</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>编辑预设</translation>
    </message>
    <message>
        <source>Remove profile</source>
        <translation>移除预设</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>预设：%1</translation>
    </message>
</context>
<context>
    <name>PromptProgress</name>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩余 %1 分钟</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>剩余 %1 小时</translation>
    </message>
    <message>
        <source>captions %1/%2</source>
        <translation>描述 %1/%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>QImageWriter</name>
    <message>
        <source>Device not writable</source>
        <translation>设备不可写</translation>
    </message>
</context>
<context>
    <name>ReplaceTextDialog</name>
    <message>
        <source>Replace tags text</source>
        <translation>替换标签文本</translation>
    </message>
    <message>
        <source>Replace text:</source>
        <translation>替换文本：</translation>
    </message>
    <message>
        <source>with:</source>
        <translation>替换为：</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Split tags by</source>
        <translation>拆分标签</translation>
    </message>
    <message>
        <source>Split by:</source>
        <translation>拆分依据：</translation>
    </message>
</context>
<context>
    <name>SafetensorsDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Content of the file</source>
        <translation>文件内容</translation>
    </message>
    <message>
        <source>metainfo</source>
        <translation>元信息</translation>
    </message>
    <message>
        <source>tensor</source>
        <translation>张量</translation>
    </message>
    <message>
        <source>Load previous file</source>
        <translation>加载上一个文件</translation>
    </message>
    <message>
        <source>Load previous file in current directory</source>
        <translation>加载当前目录中的上一个文件</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Load next file</source>
        <translation>加载下一个文件</translation>
    </message>
    <message>
        <source>Load next file in current directory</source>
        <translation>加载当前目录中的下一个文件</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Reveal in file browser</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>打开 safetensors 文件</translation>
    </message>
    <message>
        <source>Safetensors (*.safetensors)</source>
        <translation>Safetensors (*.safetensors)</translation>
    </message>
</context>
<context>
    <name>SettingsWidgetDebugDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings data:</source>
        <translation>设置数据：</translation>
    </message>
    <message>
        <source>Remove selected entries</source>
        <translation>移除所选条目</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2 个</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2/%3 个</translation>
    </message>
    <message>
        <source>%1, %2 failed</source>
        <translation>%1，失败 %2 个</translation>
    </message>
    <message>
        <source>Last result</source>
        <translation>上次结果</translation>
    </message>
    <message>
        <source>Progress of the batch</source>
        <translation>批处理进度</translation>
    </message>
    <message>
        <source>Shown files</source>
        <translation>显示的文件</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>未保存的文件</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>显示 %1/%2</translation>
    </message>
    <message>
        <source>Click to show all files.</source>
        <translation>单击可显示所有文件。</translation>
    </message>
    <message>
        <source>%1 unsaved</source>
        <translation>%1 个未保存</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>保存标签</translation>
    </message>
    <message>
        <source>Show unsaved files</source>
        <translation>显示未保存的文件</translation>
    </message>
    <message>
        <source>Restore %1 files of %2</source>
        <translation>恢复 %2 的 %1 个文件</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
</context>
<context>
    <name>TagRecord</name>
    <message>
        <source>import %1 files</source>
        <translation>导入 %1 个文件</translation>
    </message>
    <message>
        <source>edit %1</source>
        <translation>编辑 %1</translation>
    </message>
    <message>
        <source>add %1 to %2 files</source>
        <translation>将 %1 添加到 %2 个文件</translation>
    </message>
    <message>
        <source>delete %1 from %2 files</source>
        <translation>将 %1 从 %2 个文件中删除</translation>
    </message>
    <message>
        <source>replace %1 in %2 files</source>
        <translation>替换 %1（%2 个文件）</translation>
    </message>
    <message>
        <source>split by %1 in %2 files</source>
        <translation>按 %1 拆分（%2 个文件）</translation>
    </message>
    <message>
        <source>save the text of %1</source>
        <translation>保存 %1 的文本</translation>
    </message>
    <message>
        <source>captions of %1 files</source>
        <translation>为 %1 个文件生成描述</translation>
    </message>
    <message>
        <source>restore %1 files</source>
        <translation>恢复 %1 个文件</translation>
    </message>
</context>
<context>
    <name>TagsExportDialog</name>
    <message>
        <source>All tags</source>
        <translation>所有标签</translation>
    </message>
    <message>
        <source>remove duplicates</source>
        <translation>移除重复项</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Remove duplicated tags&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;移除重复的标签&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>append count</source>
        <translation>附加次数</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Append number of occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;附加标签的出现次数&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort by count</source>
        <translation>按次数排序</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sort by occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;按标签的出现次数排序&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Sort direction</source>
        <translation>排序方向</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正序</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>倒序</translation>
    </message>
    <message>
        <source>Case sensitivity</source>
        <translation>大小写区分</translation>
    </message>
    <message>
        <source>CaseSensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>CaseInsensitive</source>
        <translation>不区分大小写</translation>
    </message>
    <message>
        <source>Tags count: 0</source>
        <translation>标签数量：0</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Tags count: %1</source>
        <translation>标签数量：%1</translation>
    </message>
</context>
<context>
    <name>Themes</name>
    <message>
        <source>Os theme</source>
        <translation>系统主题</translation>
    </message>
    <message>
        <source>Windows11</source>
        <translation>Windows11</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light Win95</source>
        <translation>浅色 Win95</translation>
    </message>
    <message>
        <source>Light Fusion</source>
        <translation>浅色 Fusion</translation>
    </message>
    <message>
        <source>Emerald</source>
        <translation>祖母绿</translation>
    </message>
    <message>
        <source>Sapphire</source>
        <translation>蓝宝石</translation>
    </message>
    <message>
        <source>Ruby</source>
        <translation>红宝石</translation>
    </message>
    <message>
        <source>CobaltSky</source>
        <translation>钴蓝天空</translation>
    </message>
    <message>
        <source>VioletAngelPurple</source>
        <translation>天使紫</translation>
    </message>
    <message>
        <source>ScarletDevilRed</source>
        <translation>恶魔红</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Pizza Brown</source>
        <translation>披萨棕</translation>
    </message>
    <message>
        <source>Baby Pastel</source>
        <translation>柔和粉彩</translation>
    </message>
    <message>
        <source>Untouched Lagoon</source>
        <translation>纯净潟湖</translation>
    </message>
    <message>
        <source>Grey Matter</source>
        <translation>灰质</translation>
    </message>
    <message>
        <source>Dark Fusion Blue</source>
        <translation>深色 Fusion 蓝</translation>
    </message>
    <message>
        <source>Dark Fusion</source>
        <translation>深色 Fusion</translation>
    </message>
    <message>
        <source>Plastique</source>
        <translation>Plastique</translation>
    </message>
</context>
<context>
    <name>Utils</name>
    <message>
        <source>No file manager</source>
        <translation>没有文件管理器</translation>
    </message>
    <message>
        <source>Could not find a file manager to show %1.</source>
        <translation>找不到可用于显示 %1 的文件管理器。</translation>
    </message>
    <message>
        <source>Launching Windows Explorer Failed</source>
        <translation>启动 Windows 资源管理器失败</translation>
    </message>
    <message>
        <source>Could not find explorer.exe in path to launch Windows Explorer.</source>
        <translation>在 PATH 中找不到 explorer.exe，无法启动 Windows 资源管理器。</translation>
    </message>
</context>
<context>
    <name>VideoPreviewWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
</context>
<context>
    <name>VideoWidget</name>
    <message>
        <source>Video editor</source>
        <translation>视频编辑器</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Frame previous</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame previous&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;上一帧&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Frame next</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame next&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;下一帧&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open previous file</source>
        <translation>打开上一个文件</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open previous file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;打开目录中的上一个文件&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open next file</source>
        <translation>打开下一个文件</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open next file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;打开目录中的下一个文件&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Grab current frame</source>
        <translation>截取当前帧</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Grab series of frames</source>
        <translation>截取一系列帧</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab series of frames&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;截取一系列帧&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames from files</source>
        <translation>从文件截取帧</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab frames from files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;从文件截取帧&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Open video</source>
        <translation>打开视频(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;URL</source>
        <translation>打开 URL(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Frame next</source>
        <translation>下一帧(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Frame prev</source>
        <translation>上一帧(&amp;P)</translation>
    </message>
    <message>
        <source>Frame prev</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>&amp;Grab frame</source>
        <translation>截取帧(&amp;G)</translation>
    </message>
    <message>
        <source>Grab frame</source>
        <translation>截取帧</translation>
    </message>
    <message>
        <source>Grab current frame [%1]</source>
        <translation>截取当前帧 [%1]</translation>
    </message>
    <message>
        <source>Last frame.</source>
        <translation>最后一帧。</translation>
    </message>
    <message>
        <source>First frame.</source>
        <translation>第一帧。</translation>
    </message>
    <message>
        <source>Video editor - %1</source>
        <translation>视频编辑器 - %1</translation>
    </message>
    <message>
        <source>Open video file</source>
        <translation>打开视频文件</translation>
    </message>
    <message>
        <source>Open video URL</source>
        <translation>打开视频 URL</translation>
    </message>
    <message>
        <source>Video URL:</source>
        <translation>视频 URL：</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>no media</source>
        <translation>无媒体</translation>
    </message>
    <message>
        <source>loading media</source>
        <translation>正在加载媒体</translation>
    </message>
    <message>
        <source>loaded media</source>
        <translation>媒体已加载</translation>
    </message>
    <message>
        <source>stalled media</source>
        <translation>媒体已停滞</translation>
    </message>
    <message>
        <source>buffering media</source>
        <translation>正在缓冲媒体</translation>
    </message>
    <message>
        <source>buffered media</source>
        <translation>媒体已缓冲</translation>
    </message>
    <message>
        <source>end of media</source>
        <translation>媒体结束</translation>
    </message>
    <message>
        <source>invalid media</source>
        <translation>媒体无效</translation>
    </message>
    <message>
        <source>Seek speed modifier: %1 at fps: %2</source>
        <translation>跳转速度倍率：%1，帧率：%2</translation>
    </message>
    <message>
        <source>No frame is shown.</source>
        <translation>没有显示任何帧。</translation>
    </message>
    <message>
        <source>No frame to grab.</source>
        <translation>没有可截取的帧。</translation>
    </message>
    <message>
        <source>Source either empty or invalid: %1. Set correct media.</source>
        <translation>来源为空或无效：%1。请设置正确的媒体。</translation>
    </message>
</context>
<context>
    <name>VideoWidgetFrameGrabber</name>
    <message>
        <source>Frame grabber</source>
        <translation>帧截取工具</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Start ms:</source>
        <translation>起始毫秒：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Media start ms.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;媒体起始位置（毫秒）。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>帧数：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Number of frames to grab. Interval between frames is same.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;要截取的帧数。各帧之间的间隔相同。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames</source>
        <translation>截取帧</translation>
    </message>
    <message>
        <source>Select video files</source>
        <translation>选择视频文件</translation>
    </message>
    <message>
        <source>Add all</source>
        <translation>全部添加</translation>
    </message>
    <message>
        <source>Add selected</source>
        <translation>添加所选项</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Frame grabber: %1</source>
        <translation>帧截取工具：%1</translation>
    </message>
    <message>
        <source>Videos (*.avi *.mpeg *.ogv *.mp4 *.mkv)</source>
        <translation>视频 (*.avi *.mpeg *.ogv *.mp4 *.mkv)</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Add &amp;selected</source>
        <translation>添加所选项(&amp;S)</translation>
    </message>
    <message>
        <source>Add &amp;all</source>
        <translation>全部添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>移除所选项(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
</context>
</TS>
