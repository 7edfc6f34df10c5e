<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AddTagsDialog</name>
    <message>
        <source>Add tags</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>Tags:</source>
        <translation>タグ:</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Add tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>タグを追加 (1 行に 1 個、または &quot;,&quot; 区切り)</translation>
    </message>
    <message>
        <source>Tags from: %1</source>
        <translation>タグの読み込み元: %1</translation>
    </message>
    <message>
        <source>Edit tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>タグを編集 (1 行に 1 個、または &quot;,&quot; 区切り)</translation>
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
        <translation>このテキストを表示します。</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch %1 </source>
        <translation>使い方: tessarine-batch %1 </translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 には %2 から %3 までの整数を指定してください (指定値: &quot;%4&quot;)</translation>
    </message>
    <message>
        <source>--%1 takes a number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 には %2 から %3 までの数値を指定してください (指定値: &quot;%4&quot;)</translation>
    </message>
    <message>
        <source>--%1 is one of %2, not &quot;%3&quot;</source>
        <translation>--%1 には %2 のいずれかを指定してください (指定値: &quot;%3&quot;)</translation>
    </message>
    <message>
        <source>see tessarine-batch %1 --help</source>
        <translation>詳しくは tessarine-batch %1 --help を参照してください</translation>
    </message>
    <message>
        <source>no answer within %1 s</source>
        <translation>%1 秒以内に応答がありませんでした</translation>
    </message>
    <message>
        <source>has tags</source>
        <translation>タグがすでにあります</translation>
    </message>
    <message>
        <source>the new size is empty or too large</source>
        <translation>新しいサイズが空か大きすぎます</translation>
    </message>
    <message>
        <source>the answer is empty</source>
        <translation>応答が空です</translation>
    </message>
    <message>
        <source>--model names the model to ask</source>
        <translation>--model で使用するモデルを指定してください</translation>
    </message>
    <message>
        <source>--url takes an address that begins with http, not &quot;%1&quot;</source>
        <translation>--url には http で始まるアドレスを指定してください (指定値: &quot;%1&quot;)</translation>
    </message>
    <message>
        <source>Asks an Ollama server for tags and adds them to the sidecars.</source>
        <translation>Ollama サーバーにタグを問い合わせ、サイドカーに追加します。</translation>
    </message>
    <message>
        <source>Address of the server.</source>
        <translation>サーバーのアドレスです。</translation>
    </message>
    <message>
        <source>Name of the model.</source>
        <translation>モデルの名前です。</translation>
    </message>
    <message>
        <source>System prompt in place of the model&apos;s own.</source>
        <translation>モデル既定のものに代わるシステムプロンプトです。</translation>
    </message>
    <message>
        <source>What the model is asked about each picture.</source>
        <translation>各画像についてモデルに尋ねる内容です。</translation>
    </message>
    <message>
        <source>Size of the pictures sent; -1 lets one side follow the other.</source>
        <translation>送信する画像のサイズです。-1 の辺はもう一方の辺に合わせます。</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep or ignore.</source>
        <translation>縦横比の扱いです: keep (維持) または ignore (無視)。</translation>
    </message>
    <message>
        <source>Text that separates the tags of an answer.</source>
        <translation>応答内のタグを区切る文字列です。</translation>
    </message>
    <message>
        <source>Skips files that have tags.</source>
        <translation>タグのあるファイルをスキップします。</translation>
    </message>
    <message>
        <source>Keeps the old sidecar beside the new one.</source>
        <translation>古いサイドカーを新しいものの横に残します。</translation>
    </message>
    <message>
        <source>Keeps tags that a file has twice.</source>
        <translation>ファイル内で重複するタグを残します。</translation>
    </message>
    <message>
        <source>Asks up to N times more after a failure.</source>
        <translation>失敗したとき、最大 N 回まで再試行します。</translation>
    </message>
    <message>
        <source>Waits so many seconds for an answer.</source>
        <translation>応答を待つ秒数です。</translation>
    </message>
    <message>
        <source>Reports what is wrong with a dataset and what is in it.</source>
        <translation>データセットの問題点と内容を報告します。</translation>
    </message>
    <message>
        <source>Names tags that occur at most N times.</source>
        <translation>出現回数が N 回以下のタグを挙げます。</translation>
    </message>
    <message>
        <source>no picture comes out of the clip</source>
        <translation>動画から画像を取り出せません</translation>
    </message>
    <message>
        <source>Exports the tags of media files.</source>
        <translation>メディアファイルのタグをエクスポートします。</translation>
    </message>
    <message>
        <source>text, json or csv: tags by frequency; jsonl: one line a file, as image folder loaders read a metadata.jsonl.</source>
        <translation>text、json、csv: 頻度順のタグ。jsonl: 1 ファイルにつき 1 行 (画像フォルダーのローダーが読む metadata.jsonl の形式)。</translation>
    </message>
    <message>
        <source>Writes to FILE, whole or not at all.</source>
        <translation>FILE に書き込みます。失敗した場合、途中までの内容は残しません。</translation>
    </message>
    <message>
        <source>Replaces a file that exists.</source>
        <translation>既存のファイルを置き換えます。</translation>
    </message>
    <message>
        <source>--json needs --output, since standard output takes the export</source>
        <translation>標準出力にはエクスポート結果が出力されるため、--json には --output が必要です</translation>
    </message>
    <message>
        <source>is a source, which no export replaces</source>
        <translation>元ファイルなので、エクスポートでは置き換えられません</translation>
    </message>
    <message>
        <source>--shard takes I/N with I from 1 to N, not &quot;%1&quot;</source>
        <translation>--shard には I/N (I は 1 から N まで) を指定してください (指定値: &quot;%1&quot;)</translation>
    </message>
    <message>
        <source>--files-from %1: %2</source>
        <translation>--files-from %1: %2</translation>
    </message>
    <message>
        <source>Takes the files of sub-directories as well.</source>
        <translation>サブディレクトリのファイルも対象にします。</translation>
    </message>
    <message>
        <source>Takes paths from FILE, or from standard input for -: one a line, or each ended by NUL.</source>
        <translation>パスを FILE から読み込みます (- は標準入力)。1 行に 1 つずつ、または各パスを NUL で終端します。</translation>
    </message>
    <message>
        <source>Lets paths below DIR count from there, as those of a directory do.</source>
        <translation>DIR 以下のパスを、ディレクトリを指定した場合と同じく DIR からの相対パスとして扱います。</translation>
    </message>
    <message>
        <source>Takes the I-th of N shares of the files.</source>
        <translation>ファイルを N 個に分けたうちの I 番目を処理します。</translation>
    </message>
    <message>
        <source>no files are given</source>
        <translation>ファイルが指定されていません</translation>
    </message>
    <message>
        <source>the clip is too short, or has no duration</source>
        <translation>動画が短すぎるか、再生時間がありません</translation>
    </message>
    <message>
        <source>no picture at %1 ms</source>
        <translation>%1 ms の位置に画像がありません</translation>
    </message>
    <message>
        <source>Takes frames out of clips, as PNG files with their milliseconds.</source>
        <translation>動画からフレームを取り出し、ミリ秒を付けた名前の PNG ファイルにします。</translation>
    </message>
    <message>
        <source>Takes a frame every so many seconds.</source>
        <translation>指定した秒数ごとにフレームを取り出します。</translation>
    </message>
    <message>
        <source>Takes N frames, evenly over the clip.</source>
        <translation>動画全体から等間隔に N 個のフレームを取り出します。</translation>
    </message>
    <message>
        <source>either --every or --count is needed</source>
        <translation>--every と --count のどちらか一方が必要です</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>処理は不要です</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Quality of the images from 1 to 100.</source>
        <translation>画像の品質です (1 から 100)。</translation>
    </message>
    <message>
        <source>one of --size, --scale and --ratio is needed</source>
        <translation>--size、--scale、--ratio のいずれか 1 つが必要です</translation>
    </message>
    <message>
        <source>%1: no settings file that can be read</source>
        <translation>%1: 読み込める設定ファイルではありません</translation>
    </message>
    <message>
        <source>%1: its profiles are missing or broken</source>
        <translation>%1: プロファイルがないか、壊れています</translation>
    </message>
    <message>
        <source>%1: no profile &quot;%2&quot; among %3</source>
        <translation>%1: プロファイル &quot;%2&quot; は %3 の中にありません</translation>
    </message>
    <message>
        <source>--filter %1 takes a whole number from %2 to %3, as in %1=%3</source>
        <translation>--filter %1 には %2 から %3 までの整数を指定してください (例: %1=%3)</translation>
    </message>
    <message>
        <source>--filter takes one of %1, with its number but for the last, not &quot;%2&quot;</source>
        <translation>--filter には %1 のいずれかを、最後のもの以外は数値付きで指定してください (指定値: &quot;%2&quot;)</translation>
    </message>
    <message>
        <source>either --profile or --filter is needed</source>
        <translation>--profile と --filter のどちらか一方が必要です</translation>
    </message>
    <message>
        <source>Resizes images.</source>
        <translation>画像をリサイズします。</translation>
    </message>
    <message>
        <source>The new size; -1 lets one side follow the other.</source>
        <translation>新しいサイズです。-1 の辺はもう一方の辺に合わせます。</translation>
    </message>
    <message>
        <source>Multiplies both sides by F.</source>
        <translation>両辺を F 倍します。</translation>
    </message>
    <message>
        <source>Cuts from the middle: as high as the shorter side times R.</source>
        <translation>中央から切り抜きます。高さは短辺の R 倍になります。</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep, expand or ignore.</source>
        <translation>縦横比の扱いです: keep (維持)、expand (拡張)、ignore (無視)。</translation>
    </message>
    <message>
        <source>How pixels are scaled: smooth or fast.</source>
        <translation>画素の拡大縮小の方法です: smooth (滑らか) または fast (高速)。</translation>
    </message>
    <message>
        <source>Runs a chain of filters over images.</source>
        <translation>画像に一連のフィルターを適用します。</translation>
    </message>
    <message>
        <source>Takes the chain of a profile of the window.</source>
        <translation>ウィンドウのプロファイルにある一連のフィルターを使います。</translation>
    </message>
    <message>
        <source>Takes the profile out of FILE, by default the window&apos;s.</source>
        <translation>プロファイルを FILE から読み込みます。既定はウィンドウの設定ファイルです。</translation>
    </message>
    <message>
        <source>A filter of the chain, as in Brightness=20; given again for the next.</source>
        <translation>適用するフィルターです (例: Brightness=20)。繰り返し指定すると順に追加されます。</translation>
    </message>
    <message>
        <source>Shows the header of model files.</source>
        <translation>モデルファイルのヘッダーを表示します。</translation>
    </message>
    <message>
        <source>Shows the metadata alone.</source>
        <translation>メタデータだけを表示します。</translation>
    </message>
    <message>
        <source>Shows name, type, shape and bytes of the tensors alone.</source>
        <translation>テンソルの名前、型、形状、バイト数だけを表示します。</translation>
    </message>
    <message>
        <source>shows the header of model files</source>
        <translation>モデルファイルのヘッダーを表示</translation>
    </message>
    <message>
        <source>lists, counts and edits tags</source>
        <translation>タグの一覧、集計、編集</translation>
    </message>
    <message>
        <source>exports tags and captions</source>
        <translation>タグとキャプションをエクスポート</translation>
    </message>
    <message>
        <source>resizes images</source>
        <translation>画像をリサイズ</translation>
    </message>
    <message>
        <source>runs filters over images</source>
        <translation>画像にフィルターを適用</translation>
    </message>
    <message>
        <source>asks an Ollama server for tags</source>
        <translation>Ollama サーバーにタグを問い合わせ</translation>
    </message>
    <message>
        <source>takes frames out of clips</source>
        <translation>動画からフレームを取り出し</translation>
    </message>
    <message>
        <source>reports on a dataset</source>
        <translation>データセットを報告</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch COMMAND [OPTIONS] FILE...

The commands; each takes --help:
</source>
        <translation>使い方: tessarine-batch COMMAND [OPTIONS] FILE...

コマンド (それぞれ --help を指定できます):
</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>コマンド %1 はありません</translation>
    </message>
    <message>
        <source>is no directory</source>
        <translation>ディレクトリではありません</translation>
    </message>
    <message>
        <source>Writes below DIR; files of sub-directories keep theirs.</source>
        <translation>DIR 以下に書き込みます。サブディレクトリのファイルはその構成を保ちます。</translation>
    </message>
    <message>
        <source>Replaces the files themselves.</source>
        <translation>ファイル自体を置き換えます。</translation>
    </message>
    <message>
        <source>Replaces results that exist.</source>
        <translation>既存の結果を置き換えます。</translation>
    </message>
    <message>
        <source>Skips results that are no older than their source.</source>
        <translation>元ファイルより古くない結果をスキップします。</translation>
    </message>
    <message>
        <source>--in-place goes with neither --output nor --resume</source>
        <translation>--in-place は --output や --resume と同時に指定できません</translation>
    </message>
    <message>
        <source>--output DIR says where the results go</source>
        <translation>--output DIR で結果の保存先を指定してください</translation>
    </message>
    <message>
        <source>another file has the result %1; --base keeps their directories</source>
        <translation>別のファイルの結果も %1 になります。--base を使うとディレクトリ構成を保てます</translation>
    </message>
    <message>
        <source>%1 is a directory</source>
        <translation>%1 はディレクトリです</translation>
    </message>
    <message>
        <source>%1 is a source, which only --in-place replaces</source>
        <translation>%1 は元ファイルです。置き換えるには --in-place が必要です</translation>
    </message>
    <message>
        <source>%1 is there</source>
        <translation>%1 はすでにあります</translation>
    </message>
    <message>
        <source>%1 exists, which only --overwrite replaces</source>
        <translation>%1 はすでに存在します。置き換えるには --overwrite が必要です</translation>
    </message>
    <message>
        <source>may not be read</source>
        <translation>読み取りが許可されていません</translation>
    </message>
    <message>
        <source>a link to nothing</source>
        <translation>リンク先がありません</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8</source>
        <translation>名前が正しい UTF-8 ではありません</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>ディレクトリです</translation>
    </message>
    <message>
        <source>not done, interrupted</source>
        <translation>中断されたため未処理です</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>、未処理 %1</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped, %4 failed%5</source>
        <translation>%1: 完了 %2、スキップ %3、失敗 %4%5</translation>
    </message>
    <message>
        <source>Works on N files at once; 0 stands for one a processor.</source>
        <translation>N 個のファイルを同時に処理します。0 はプロセッサーごとに 1 個です。</translation>
    </message>
    <message>
        <source>Shows a bar on standard error if that is a terminal.</source>
        <translation>標準エラー出力が端末の場合、進行状況バーを表示します。</translation>
    </message>
    <message>
        <source>Prints one JSON object a line.</source>
        <translation>1 行に 1 つの JSON オブジェクトを出力します。</translation>
    </message>
    <message>
        <source>Prints no summary, only failures.</source>
        <translation>集計を出力せず、失敗だけを出力します。</translation>
    </message>
    <message>
        <source>Writes the paths of files that failed or were left to FILE, for --files-from.</source>
        <translation>失敗または未処理のファイルのパスを FILE に書き込みます (--files-from 用)。</translation>
    </message>
    <message>
        <source>--failed %1: the file exists and is no such list</source>
        <translation>--failed %1: ファイルがすでに存在し、失敗ファイルの一覧ではありません</translation>
    </message>
    <message>
        <source>standard output took only a part</source>
        <translation>標準出力への書き込みが途中で終わりました</translation>
    </message>
    <message>
        <source>the sidecar is not valid UTF-8</source>
        <translation>サイドカーが正しい UTF-8 ではありません</translation>
    </message>
    <message>
        <source>--size takes WxH, where -1 lets one side follow, not &quot;%1&quot;</source>
        <translation>--size には WxH を指定してください (-1 の辺はもう一方に合わせます。指定値: &quot;%1&quot;)</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>変更はありません</translation>
    </message>
    <message>
        <source>--%1 needs a text</source>
        <translation>--%1 には文字列が必要です</translation>
    </message>
    <message>
        <source>--tags holds no tag</source>
        <translation>--tags にタグがありません</translation>
    </message>
    <message>
        <source>The tags, separated by commas.</source>
        <translation>コンマで区切ったタグです。</translation>
    </message>
    <message>
        <source>The text inside of tags to replace.</source>
        <translation>置換するタグ内の文字列です。</translation>
    </message>
    <message>
        <source>The text to put in its place.</source>
        <translation>置換後の文字列です。</translation>
    </message>
    <message>
        <source>The text at which to split tags.</source>
        <translation>タグを分割する位置の文字列です。</translation>
    </message>
    <message>
        <source>Prints a unified diff and writes nothing.</source>
        <translation>unified diff を出力し、書き込みは行いません。</translation>
    </message>
    <message>
        <source>Lists, counts and edits the tags in the sidecars of media files.</source>
        <translation>メディアファイルのサイドカーにあるタグを一覧表示、集計、編集します。</translation>
    </message>
    <message>
        <source>tags takes one of %1</source>
        <translation>tags には %1 のいずれかを指定してください</translation>
    </message>
    <message>
        <source>another run is writing it</source>
        <translation>別の処理が書き込み中です</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>使えるバックアップ名が残っていません</translation>
    </message>
    <message>
        <source>no backup was made: %1</source>
        <translation>バックアップを作成できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>CompletionPopup</name>
    <message>
        <source>Completions</source>
        <translation>入力候補</translation>
    </message>
</context>
<context>
    <name>EditImageDialog</name>
    <message>
        <source>Edit image</source>
        <translation>画像を編集</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Cut tool x position</source>
        <translation>切り抜きツールの X 位置</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Cut tool y position</source>
        <translation>切り抜きツールの Y 位置</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>Cut tool width</source>
        <translation>切り抜きツールの幅</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Cut tool height</source>
        <translation>切り抜きツールの高さ</translation>
    </message>
    <message>
        <source>Width of cut outline</source>
        <translation>切り抜き枠線の太さ</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自動フィット</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自動中央揃え</translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Tool panel</source>
        <translation>ツールパネル</translation>
    </message>
    <message>
        <source>Edit image: %1 [%2x%3] %4</source>
        <translation>画像を編集: %1 [%2x%3] %4</translation>
    </message>
    <message>
        <source>&amp;Save image [%1]</source>
        <translation>画像を保存(&amp;S) [%1]</translation>
    </message>
    <message>
        <source>Save image [%1]</source>
        <translation>画像を保存 [%1]</translation>
    </message>
    <message>
        <source>&amp;Save image as [%1]</source>
        <translation>名前を付けて画像を保存(&amp;A) [%1]</translation>
    </message>
    <message>
        <source>Save image as [%1]</source>
        <translation>名前を付けて画像を保存 [%1]</translation>
    </message>
    <message>
        <source>&amp;Previous image [%1]</source>
        <translation>前の画像(&amp;P) [%1]</translation>
    </message>
    <message>
        <source>Previous image [%1]</source>
        <translation>前の画像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Next image [%1]</source>
        <translation>次の画像(&amp;N) [%1]</translation>
    </message>
    <message>
        <source>Next image [%1]</source>
        <translation>次の画像 [%1]</translation>
    </message>
    <message>
        <source>&amp;Pan image [%1]</source>
        <translation>画像を移動(&amp;M) [%1]</translation>
    </message>
    <message>
        <source>Pan image [%1]</source>
        <translation>画像を移動 [%1]</translation>
    </message>
    <message>
        <source>&amp;Cut image [%1]</source>
        <translation>画像を切り抜き(&amp;C) [%1]</translation>
    </message>
    <message>
        <source>Cut image [%1]</source>
        <translation>画像を切り抜き [%1]</translation>
    </message>
    <message>
        <source>&amp;Delete image [%1]</source>
        <translation>画像を削除(&amp;D) [%1]</translation>
    </message>
    <message>
        <source>&amp;Undo [%1]</source>
        <translation>元に戻す(&amp;U) [%1]</translation>
    </message>
    <message>
        <source>Auto fit image to view. Changes zoom. [%1]</source>
        <translation>画像を表示領域に自動で合わせます。ズームが変わります。[%1]</translation>
    </message>
    <message>
        <source>Auto center image. Dont change zoom. [%1]</source>
        <translation>画像を自動で中央に表示します。ズームは変わりません。[%1]</translation>
    </message>
    <message>
        <source>Keep aspect ration while resizing cut rectangle. [%1]</source>
        <translation>切り抜き枠のサイズ変更時に縦横比を維持します。[%1]</translation>
    </message>
    <message>
        <source>zoom level: %1</source>
        <translation>ズーム倍率: %1</translation>
    </message>
</context>
<context>
    <name>EditImageWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Save image: %1</source>
        <translation>画像を保存: %1</translation>
    </message>
    <message>
        <source>Save image as</source>
        <translation>名前を付けて画像を保存</translation>
    </message>
    <message>
        <source>Saved image as: %1</source>
        <translation>画像を次の名前で保存しました: %1</translation>
    </message>
    <message>
        <source>Error, unable to save image: %1</source>
        <translation>エラー: 画像を保存できません: %1</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自動フィット</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自動中央揃え</translation>
    </message>
    <message>
        <source>Update on resize</source>
        <translation>サイズ変更時に更新</translation>
    </message>
    <message>
        <source>Reset zoom</source>
        <translation>ズームをリセット</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>名前を付けて保存(&amp;S)</translation>
    </message>
    <message>
        <source>F&amp;it</source>
        <translation>全体に合わせる(&amp;I)</translation>
    </message>
    <message>
        <source>Align &amp;height</source>
        <translation>高さを合わせる(&amp;H)</translation>
    </message>
    <message>
        <source>Align &amp;width</source>
        <translation>幅を合わせる(&amp;W)</translation>
    </message>
    <message>
        <source>Align c&amp;enter</source>
        <translation>中央に揃える(&amp;E)</translation>
    </message>
    <message>
        <source>Same width</source>
        <translation>幅を高さと同じにする</translation>
    </message>
    <message>
        <source>Same height</source>
        <translation>高さを幅と同じにする</translation>
    </message>
    <message>
        <source>Align edge &amp;left</source>
        <translation>左端に合わせる(&amp;L)</translation>
    </message>
    <message>
        <source>Align edge &amp;right</source>
        <translation>右端に合わせる(&amp;R)</translation>
    </message>
    <message>
        <source>Align edge &amp;top</source>
        <translation>上端に合わせる(&amp;T)</translation>
    </message>
    <message>
        <source>Align edge &amp;bottom</source>
        <translation>下端に合わせる(&amp;B)</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetBase</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Bypass filter</source>
        <translation>フィルターをバイパス</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetSlider</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>ImageFilters</name>
    <message>
        <source>Invalid</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>WhitePoint</source>
        <translation>ホワイトポイント</translation>
    </message>
    <message>
        <source>BlackPoint</source>
        <translation>ブラックポイント</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>シャープ</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThread</name>
    <message>
        <source>Unable to allocate image.</source>
        <translation>画像用のメモリを確保できません。</translation>
    </message>
    <message>
        <source>Image read error: %1</source>
        <translation>画像の読み込みエラー: %1</translation>
    </message>
    <message>
        <source>Image file path empty.</source>
        <translation>画像ファイルのパスが空です。</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThreaded</name>
    <message>
        <source>Loaded all media previews in: %1 s</source>
        <translation>すべてのメディアプレビューを読み込みました: %1 秒</translation>
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
        <translation>メディアリスト</translation>
    </message>
    <message>
        <source>Media tree</source>
        <translation>メディアツリー</translation>
    </message>
    <message>
        <source>Media table</source>
        <translation>メディアテーブル</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Filter images by name, path, tags, image size.&lt;/p&gt;&lt;p&gt;Custom tags:&lt;/p&gt;&lt;p&gt;:missingTxt - shows only images with missing txt files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;名前、パス、タグ、画像サイズで画像を絞り込みます。&lt;/p&gt;&lt;p&gt;特殊タグ:&lt;/p&gt;&lt;p&gt;:missingTxt - txt ファイルのない画像だけを表示&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>filter images by name, path, tags, image size, tags: &quot;:missingTxt&quot;</source>
        <translation>名前、パス、タグ、画像サイズで絞り込み。特殊タグ: &quot;:missingTxt&quot;</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>画像の絞り込み</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Working path. All operations are being done in this directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;作業パス。すべての操作はこのディレクトリで行われます。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Working path</source>
        <translation>作業パス</translation>
    </message>
    <message>
        <source>Select working path</source>
        <translation>作業パスを選択</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled scan working dir recursively.&lt;/p&gt;&lt;p&gt;Working path is provided path.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;有効にすると、作業ディレクトリを再帰的にスキャンします。&lt;/p&gt;&lt;p&gt;作業パスは指定されたパスです。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>rec.</source>
        <translation>再帰</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Refresh working directory</source>
        <translation>作業ディレクトリを再読み込み</translation>
    </message>
    <message>
        <source>Refresh working directory. Warning all unsaved changes to tags are discarded.</source>
        <translation>作業ディレクトリを再読み込みします。警告: タグの未保存の変更はすべて破棄されます。</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>タグを保存</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled save duplicated tags.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;有効にすると、重複するタグも保存します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>dups</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;If enabled backup old tags txt file. Files are renamed and keept in same directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;有効にすると、古いタグの txt ファイルをバックアップします。ファイルは名前を変えて同じディレクトリに残します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>リサイズ</translation>
    </message>
    <message>
        <source>Aspect ratio:</source>
        <translation>縦横比:</translation>
    </message>
    <message>
        <source>IgnoreAspectRatio</source>
        <translation>縦横比を無視</translation>
    </message>
    <message>
        <source>KeepAspectRatio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>KeepAspectRatioByExpanding</source>
        <translation>縦横比を維持して拡張</translation>
    </message>
    <message>
        <source>Transformation:</source>
        <translation>変換方法:</translation>
    </message>
    <message>
        <source>FastTransformation</source>
        <translation>高速な変換</translation>
    </message>
    <message>
        <source>SmoothTransformation</source>
        <translation>滑らかな変換</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;New size of image.&lt;/p&gt;&lt;p&gt;To resize to width set -1 on height.&lt;/p&gt;&lt;p&gt;To resize to height set -1 on width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;画像の新しいサイズ。&lt;/p&gt;&lt;p&gt;幅に合わせてリサイズするには、高さを -1 にします。&lt;/p&gt;&lt;p&gt;高さに合わせてリサイズするには、幅を -1 にします。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Specific size</source>
        <translation>サイズを指定</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore width and scale to  height.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - 幅を無視して高さに合わせます。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore height and scale to width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - 高さを無視して幅に合わせます。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale size</source>
        <translation>倍率を指定</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Scale by aspect ratio</source>
        <translation>縦横比を指定</translation>
    </message>
    <message>
        <source>aspect ratio</source>
        <translation>縦横比</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>配置:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Specify output directory, can be relative, empty overwrites source files.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;出力ディレクトリを指定します。相対パスも使えます。空にすると元ファイルを上書きします。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>output directory, relative or absolute</source>
        <translation>出力ディレクトリ (相対または絶対パス)</translation>
    </message>
    <message>
        <source>Output directory of resize</source>
        <translation>リサイズの出力ディレクトリ</translation>
    </message>
    <message>
        <source>Quality [100]:</source>
        <translation>品質 [100]:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;保存する画像の品質 (圧縮率)。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Current selection tags:</source>
        <translation>選択中のタグ:</translation>
    </message>
    <message>
        <source>filter tag</source>
        <translation>タグを絞り込む</translation>
    </message>
    <message>
        <source>Filter tags of selection</source>
        <translation>選択項目のタグを絞り込む</translation>
    </message>
    <message>
        <source>All unique tags:</source>
        <translation>全タグ (重複なし):</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Unique list of tags.&lt;/p&gt;&lt;p&gt;All duplicates are removed.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;重複のないタグの一覧。&lt;/p&gt;&lt;p&gt;重複はすべて除かれます。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send current prompt to Ollama</source>
        <translation>現在のプロンプトを Ollama に送信</translation>
    </message>
    <message>
        <source>Export tags</source>
        <translation>タグをエクスポート</translation>
    </message>
    <message>
        <source>filter all tags</source>
        <translation>すべてのタグを絞り込む</translation>
    </message>
    <message>
        <source>Filter all tags</source>
        <translation>すべてのタグを絞り込む</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>ファイル:</translation>
    </message>
    <message>
        <source>Save txt file</source>
        <translation>txt ファイルを保存</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Content of txt file associated with selected image.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;選択中の画像に対応する txt ファイルの内容。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Text of the tag file</source>
        <translation>タグファイルのテキスト</translation>
    </message>
    <message>
        <source>Content of tag txt file for current image</source>
        <translation>現在の画像のタグの txt ファイルの内容</translation>
    </message>
    <message>
        <source>Ollama</source>
        <translation>Ollama</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;The URL of the Ollama server. Default value points to a local instance with ollama&apos;s default port configuration&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama サーバーの URL。既定値は、Ollama の既定のポート設定で動作するローカルのサーバーです。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>IP adress</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>URL of the Ollama server</source>
        <translation>Ollama サーバーの URL</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>モデル:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Select a model for inference. This is a list of available models on the Ollama server. If you don&apos;t see any, make sure the Ollama server is running on the url and there are models installed&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;推論に使うモデルを選択します。これは Ollama サーバーで利用できるモデルの一覧です。何も表示されない場合は、URL の Ollama サーバーが動作していて、モデルがインストールされていることを確認してください。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale resolution:</source>
        <translation>送信解像度:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Scale image send to Ollama to specified dimension.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama に送信する画像を指定したサイズに拡大縮小します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale width</source>
        <translation>送信する画像の幅</translation>
    </message>
    <message>
        <source>Scale height</source>
        <translation>送信する画像の高さ</translation>
    </message>
    <message>
        <source>keep aspect ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>System prompt:</source>
        <translation>システムプロンプト:</translation>
    </message>
    <message>
        <source>System prompt for Ollama model</source>
        <translation>Ollama モデルのシステムプロンプト</translation>
    </message>
    <message>
        <source>Prompt:</source>
        <translation>プロンプト:</translation>
    </message>
    <message>
        <source>User prompt for Ollama model</source>
        <translation>Ollama モデルへのユーザープロンプト</translation>
    </message>
    <message>
        <source>Response:</source>
        <translation>応答:</translation>
    </message>
    <message>
        <source>Ollama response</source>
        <translation>Ollama の応答</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama tag separator. Character used to split text returned by ollama.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama のタグの区切り。Ollama が返したテキストを分割する文字です。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tag split character</source>
        <translation>タグの区切り文字</translation>
    </message>
    <message>
        <source>Tag separator</source>
        <translation>タグの区切り</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Add tags. Tags are divided by separator.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;タグを追加します。タグは区切り文字で分割されます。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>add tags</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Send prompt to ollama. Includes image if selected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;プロンプトを Ollama に送信します。画像を選択している場合は画像も送信します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send prompt</source>
        <translation>プロンプトを送信</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>Filter list</source>
        <translation>フィルターの一覧</translation>
    </message>
    <message>
        <source>Add filter</source>
        <translation>フィルターを追加</translation>
    </message>
    <message>
        <source>Currently active filters</source>
        <translation>現在有効なフィルター</translation>
    </message>
    <message>
        <source>Output directory of effects</source>
        <translation>エフェクトの出力ディレクトリ</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;p&gt;0 - smallest file worst quality&lt;/p&gt;&lt;p&gt;100 - largest file best quality&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;保存する画像の品質 (圧縮率)。&lt;/p&gt;&lt;p&gt;0 - ファイルは最小、品質は最低&lt;/p&gt;&lt;p&gt;100 - ファイルは最大、品質は最高&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Reset currently applied filters to preview. &lt;/p&gt;&lt;p&gt;Debug helper button.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;プレビューに適用中のフィルターをリセットします。&lt;/p&gt;&lt;p&gt;デバッグ用のボタンです。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Apply effect to all selected images&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;選択したすべての画像にエフェクトを適用します&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>メタデータ</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>メタデータ:</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Media preview</source>
        <translation>メディアプレビュー</translation>
    </message>
    <message>
        <source>Image preview</source>
        <translation>画像プレビュー</translation>
    </message>
    <message>
        <source>Video preview</source>
        <translation>動画プレビュー</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Select w&amp;orking directory</source>
        <translation>作業ディレクトリを選択(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Import files</source>
        <translation>ファイルをインポート(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Save tags</source>
        <translation>タグを保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Inspect safetensor</source>
        <translation>safetensors を調べる(&amp;N)</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Edit image</source>
        <translation>画像を編集(&amp;E)</translation>
    </message>
    <message>
        <source>Edit image</source>
        <translation>画像を編集</translation>
    </message>
    <message>
        <source>&amp;Add tag</source>
        <translation>タグを追加(&amp;A)</translation>
    </message>
    <message>
        <source>Add tag</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>&amp;Edit video</source>
        <translation>動画を編集(&amp;E)</translation>
    </message>
    <message>
        <source>Edit video</source>
        <translation>動画を編集</translation>
    </message>
    <message>
        <source>%1 hidden as they are saved</source>
        <translation>保存済みのため %1 件を非表示</translation>
    </message>
    <message>
        <source>Restored the tags of %1 files, %2 sidecars have changed since.</source>
        <translation>%1 個のファイルのタグを復元しました。その後に変更されたサイドカーが %2 個あります。</translation>
    </message>
    <message>
        <source>extracted</source>
        <translation>抽出済み</translation>
    </message>
    <message>
        <source>Edit &amp;tag file</source>
        <translation>タグファイルを編集(&amp;T)</translation>
    </message>
    <message>
        <source>Edit v&amp;ideo</source>
        <translation>動画を編集(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open in native app</source>
        <translation>既定のアプリで開く(&amp;O)</translation>
    </message>
    <message>
        <source>Show file in &amp;file browser</source>
        <translation>ファイルブラウザーで表示(&amp;F)</translation>
    </message>
    <message>
        <source>Copy co&amp;mment</source>
        <translation>コメントをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>E&amp;xtract workflow</source>
        <translation>ワークフローを抽出(&amp;X)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>&amp;Copy files</source>
        <translation>ファイルをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Move files</source>
        <translation>ファイルを移動(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Delete stray txt files</source>
        <translation>孤立した txt ファイルを削除(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Delete file</source>
        <translation>ファイルを削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Icon</source>
        <translation>アイコン(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;List simple</source>
        <translation>簡易リスト(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>リスト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>テーブル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>パス(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>解像度(&amp;R)</translation>
    </message>
    <message>
        <source>Select directory</source>
        <translation>ディレクトリを選択</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>コピー済み</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>移動済み</translation>
    </message>
    <message>
        <source>Error, unable to copy file: %1 to: %2 error: %3</source>
        <translation>エラー: ファイルをコピーできません: %1 コピー先: %2 エラー: %3</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>Delete files.</source>
        <translation>ファイルを削除します。</translation>
    </message>
    <message>
        <source>Do you want to delete %1 files?</source>
        <translation>%1 個のファイルを削除しますか?</translation>
    </message>
    <message>
        <source>deleted %1/%2</source>
        <translation>削除済み %1/%2</translation>
    </message>
    <message>
        <source>Error, unable to move file to trash, error: %1</source>
        <translation>エラー: ファイルをごみ箱に移動できません: %1</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Working path empty.</source>
        <translation>作業パスが空です。</translation>
    </message>
    <message>
        <source>Working path dont exists.</source>
        <translation>作業パスが存在しません。</translation>
    </message>
    <message>
        <source>Failed to trash file: %1</source>
        <translation>ファイルをごみ箱に移動できませんでした: %1</translation>
    </message>
    <message>
        <source>Found %1 stray txt files, moved to trash bin.</source>
        <translation>孤立した txt ファイルが %1 個見つかり、ごみ箱に移動しました。</translation>
    </message>
    <message>
        <source>Set working directory. Path is empty.</source>
        <translation>作業ディレクトリを設定してください。パスが空です。</translation>
    </message>
    <message>
        <source>Working directory don&apos;t exists at: %1</source>
        <translation>作業ディレクトリが存在しません: %1</translation>
    </message>
    <message>
        <source>Select files to import</source>
        <translation>インポートするファイルを選択</translation>
    </message>
    <message>
        <source>Files (*.*)</source>
        <translation>ファイル (*.*)</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>インポート済み</translation>
    </message>
    <message>
        <source>Unable to import file from %1, file already exist at: %2</source>
        <translation>%1 からファイルをインポートできません。同じファイルがすでに存在します: %2</translation>
    </message>
    <message>
        <source>file already exist at: %1</source>
        <translation>ファイルがすでに存在します: %1</translation>
    </message>
    <message>
        <source>Unable to import file from %1, copy error: %2</source>
        <translation>%1 からファイルをインポートできません。コピーエラー: %2</translation>
    </message>
    <message>
        <source>Imported file from %1 to %2</source>
        <translation>ファイルを %1 から %2 にインポートしました</translation>
    </message>
    <message>
        <source>Import file error, unable to move to trash file: %1, error: %2</source>
        <translation>インポートエラー: ファイルをごみ箱に移動できません: %1、エラー: %2</translation>
    </message>
    <message>
        <source>Open %1 file browsers?</source>
        <translation>ファイルブラウザーを %1 個開きますか?</translation>
    </message>
    <message>
        <source>Error, no application to open file: %1</source>
        <translation>エラー: ファイルを開くアプリがありません: %1</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Provide correct working directory path. Path is empty.</source>
        <translation>正しい作業ディレクトリのパスを指定してください。パスが空です。</translation>
    </message>
    <message>
        <source>Provide correct working directory. Directory dont exists at: %1</source>
        <translation>正しい作業ディレクトリを指定してください。ディレクトリが存在しません: %1</translation>
    </message>
    <message>
        <source>Checking directory: %1</source>
        <translation>ディレクトリを確認中: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Last modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>MediaType</source>
        <translation>メディアの種類</translation>
    </message>
    <message>
        <source>FileFormat</source>
        <translation>ファイル形式</translation>
    </message>
    <message>
        <source>AudioBitRate</source>
        <translation>音声ビットレート</translation>
    </message>
    <message>
        <source>AudioCodec</source>
        <translation>音声コーデック</translation>
    </message>
    <message>
        <source>VideoBitRate</source>
        <translation>動画ビットレート</translation>
    </message>
    <message>
        <source>VideoCodec</source>
        <translation>動画コーデック</translation>
    </message>
    <message>
        <source>VideoFrameRate</source>
        <translation>動画フレームレート</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>拡張子</translation>
    </message>
    <message>
        <source>Has txt file</source>
        <translation>txt あり</translation>
    </message>
    <message>
        <source>Found: %1 files</source>
        <translation>見つかったファイル: %1 個</translation>
    </message>
    <message>
        <source>Loaded in: %1 s</source>
        <translation>読み込み時間: %1 秒</translation>
    </message>
    <message>
        <source>Loading image previews</source>
        <translation>画像プレビューを読み込み中</translation>
    </message>
    <message>
        <source>Image %2 preview [zoom: %1]</source>
        <translation>画像 %2 プレビュー [ズーム: %1]</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>中央上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Center left</source>
        <translation>左中央</translation>
    </message>
    <message>
        <source>Center center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Center right</source>
        <translation>右中央</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>中央下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>非表示にする</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>自動中央揃え</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>自動フィット</translation>
    </message>
    <message>
        <source>%1 hidden by the filter line</source>
        <translation>絞り込みにより %1 件を非表示</translation>
    </message>
    <message>
        <source>Found %1 files.</source>
        <translation>%1 個のファイルが見つかりました。</translation>
    </message>
    <message>
        <source>No filter word: &quot;%1&quot;. Searching for the text.</source>
        <translation>&quot;%1&quot; は絞り込み用の語ではありません。文字列として検索します。</translation>
    </message>
    <message>
        <source>Current selection [%1] tags:</source>
        <translation>選択中 [%1] のタグ:</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>選択中: %1 項目</translation>
    </message>
    <message>
        <source>Added %1 new items.</source>
        <translation>新しい項目を %1 個追加しました。</translation>
    </message>
    <message>
        <source>Removed %1 missing items.</source>
        <translation>存在しない項目を %1 個取り除きました。</translation>
    </message>
    <message>
        <source>Refresh %1 working directory?</source>
        <translation>作業ディレクトリ %1 を再読み込みしますか?</translation>
    </message>
    <message>
        <source>All unsaved changes to tags will be discarded.</source>
        <translation>タグの未保存の変更はすべて破棄されます。</translation>
    </message>
    <message>
        <source>Change %1 working directory?</source>
        <translation>作業ディレクトリ %1 を変更しますか?</translation>
    </message>
    <message>
        <source>Change current working directory to %1?</source>
        <translation>現在の作業ディレクトリを %1 に変更しますか?</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Saved image: %1</source>
        <translation>画像を保存しました: %1</translation>
    </message>
    <message>
        <source>Saved image as file: %1, file overwritten.</source>
        <translation>画像をファイルに保存しました: %1 (上書き)。</translation>
    </message>
    <message>
        <source>Saved image as file: %1, outside of working directory, not adding to list.</source>
        <translation>画像をファイルに保存しました: %1 (作業ディレクトリの外なので、一覧には追加しません)。</translation>
    </message>
    <message>
        <source>Adding saved image as file: %1</source>
        <translation>保存した画像ファイルを追加中: %1</translation>
    </message>
    <message>
        <source>Delete file?</source>
        <translation>ファイルを削除しますか?</translation>
    </message>
    <message>
        <source>Do you want to delete %1 file?</source>
        <translation>ファイル %1 を削除しますか?</translation>
    </message>
    <message>
        <source>Error %1 unable move file %2 to trash.</source>
        <translation>エラー %1: ファイル %2 をごみ箱に移動できません。</translation>
    </message>
    <message>
        <source>Preview of effects is not saved, use Apply.</source>
        <translation>エフェクトのプレビューは保存されません。「適用」を使ってください。</translation>
    </message>
    <message>
        <source>Quality [%1]:</source>
        <translation>品質 [%1]:</translation>
    </message>
    <message>
        <source>&amp;Toggle bypass</source>
        <translation>バイパスを切り替え(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Bypass all</source>
        <translation>すべてバイパス(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>選択項目を削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>Error, unable to create out path %1 file will be not saved.</source>
        <translation>エラー: 出力先のパス %1 を作成できません。ファイルは保存されません。</translation>
    </message>
    <message>
        <source>Select image/s.</source>
        <translation>画像を 1 つ以上選択してください。</translation>
    </message>
    <message>
        <source>Error, image path is empty.</source>
        <translation>エラー: 画像のパスが空です。</translation>
    </message>
    <message>
        <source>no image was read</source>
        <translation>画像を読み込めませんでした</translation>
    </message>
    <message>
        <source>Applied filter to %1 of total: %2</source>
        <translation>フィルターを適用: %1 / 全 %2</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>フィルター適用済み</translation>
    </message>
    <message>
        <source>Filters applied to: %1 files</source>
        <translation>フィルターを適用したファイル: %1 個</translation>
    </message>
    <message>
        <source>Error, unable to write file: %1 error: %2</source>
        <translation>エラー: ファイルに書き込めません: %1 エラー: %2</translation>
    </message>
    <message>
        <source>Select image.</source>
        <translation>画像を選択してください。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>No resize options specified.</source>
        <translation>リサイズの方法が指定されていません。</translation>
    </message>
    <message>
        <source>Resized %1 of total: %2</source>
        <translation>リサイズ: %1 / 全 %2</translation>
    </message>
    <message>
        <source>resized</source>
        <translation>リサイズ済み</translation>
    </message>
    <message>
        <source>Resize completed, resized: %1 in %2 s</source>
        <translation>リサイズが完了しました: %1 個 (%2 秒)</translation>
    </message>
    <message>
        <source>Ollama status is online: %1</source>
        <translation>Ollama のオンライン状態: %1</translation>
    </message>
    <message>
        <source>No Ollama server answers at this address.</source>
        <translation>このアドレスの Ollama サーバーから応答がありません。</translation>
    </message>
    <message>
        <source>Ollama aborting for %1</source>
        <translation>Ollama の処理を中断: 残り %1 件</translation>
    </message>
    <message>
        <source>Abort prompt</source>
        <translation>プロンプトを中断</translation>
    </message>
    <message>
        <source>Ollama processing done for %1</source>
        <translation>Ollama の処理が完了: %1 件</translation>
    </message>
    <message>
        <source>Ollama processing: %1 total %2</source>
        <translation>Ollama で処理中: %1 / 全 %2</translation>
    </message>
    <message>
        <source>Error, image is null.</source>
        <translation>エラー: 画像が空です。</translation>
    </message>
    <message>
        <source>Error processing: %1</source>
        <translation>処理中のエラー: %1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>safetensors ファイルを開く</translation>
    </message>
    <message>
        <source>Safetensors (*.safetensors)</source>
        <translation>Safetensors (*.safetensors)</translation>
    </message>
    <message>
        <source>Inspecting %1 safetensors</source>
        <translation>safetensors を調査中: %1</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>使えるバックアップ名が残っていません</translation>
    </message>
    <message>
        <source>the disk took only a part</source>
        <translation>ディスクへの書き込みが途中で終わりました</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>File tag, txt, missing for: %1</source>
        <translation>タグの txt ファイルがありません: %1</translation>
    </message>
    <message>
        <source>saved %1/%2</source>
        <translation>保存済み %1/%2</translation>
    </message>
    <message>
        <source>Error, file name is empty.</source>
        <translation>エラー: ファイル名が空です。</translation>
    </message>
    <message>
        <source>Failed to open txt file, error: %1</source>
        <translation>txt ファイルを開けませんでした。エラー: %1</translation>
    </message>
    <message>
        <source>Failed to write data to txt file, error: %1</source>
        <translation>txt ファイルに書き込めませんでした。エラー: %1</translation>
    </message>
    <message>
        <source>Error, image file name is empty.</source>
        <translation>エラー: 画像ファイル名が空です。</translation>
    </message>
    <message>
        <source>Shows the tags that contain the text. Ctrl+Enter adds the typed tag to the selected files.</source>
        <translation>入力した文字列を含むタグを表示します。Ctrl+Enter で、入力したタグを選択中のファイルに追加します。</translation>
    </message>
    <message>
        <source>Added &quot;%1&quot; to %2 files.</source>
        <translation>%2 個のファイルに &quot;%1&quot; を追加しました。</translation>
    </message>
    <message>
        <source>Unable to replace text, source &quot;%1&quot; or replacement &quot;%2&quot; is empty</source>
        <translation>文字列を置換できません。置換前 &quot;%1&quot; または置換後 &quot;%2&quot; が空です</translation>
    </message>
    <message>
        <source>Replacing text &quot;%1&quot; with &quot;%2&quot;.</source>
        <translation>文字列 &quot;%1&quot; を &quot;%2&quot; に置換します。</translation>
    </message>
    <message>
        <source>Source text is empty &quot;%1&quot;</source>
        <translation>元の文字列が空です: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Splitting text by &quot;%1&quot;.</source>
        <translation>文字列を &quot;%1&quot; で分割します。</translation>
    </message>
    <message>
        <source>All tags</source>
        <translation>すべてのタグ</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>個数: %1</translation>
    </message>
    <message>
        <source>%1 hidden by the tag search</source>
        <translation>タグ検索により %1 件を非表示</translation>
    </message>
    <message>
        <source>Found %1 images for tag: %2</source>
        <translation>タグに一致する画像が %1 個見つかりました: %2</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>クリップボードにコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>すべて削除(&amp;A)</translation>
    </message>
    <message>
        <source>R&amp;eplace text</source>
        <translation>文字列を置換(&amp;E)</translation>
    </message>
    <message>
        <source>Spli&amp;t text</source>
        <translation>文字列を分割(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>View &amp;list</source>
        <translation>リスト表示(&amp;L)</translation>
    </message>
    <message>
        <source>View &amp;icon</source>
        <translation>アイコン表示(&amp;I)</translation>
    </message>
    <message>
        <source>No working directory to save the frame to.</source>
        <translation>フレームを保存する作業ディレクトリがありません。</translation>
    </message>
    <message>
        <source>Error, unable to save file to: %1</source>
        <translation>エラー: ファイルを保存できません: %1</translation>
    </message>
    <message>
        <source>grabbed</source>
        <translation>キャプチャ済み</translation>
    </message>
    <message>
        <source>Saved frame to: %1</source>
        <translation>フレームを保存しました: %1</translation>
    </message>
</context>
<context>
    <name>MediaFormats</name>
    <message>
        <source>Images (</source>
        <translation>画像 (</translation>
    </message>
    <message>
        <source>Video (</source>
        <translation>動画 (</translation>
    </message>
</context>
<context>
    <name>MediaQuery</name>
    <message>
        <source>no sidecar on the disk, or an empty one; alone in the line</source>
        <translation>サイドカーがディスクにないか空のファイル (この語だけを入力)</translation>
    </message>
    <message>
        <source>files with this tag: :tag sky, :tag &quot;blue sky&quot;</source>
        <translation>このタグがあるファイル: :tag sky, :tag &quot;blue sky&quot;</translation>
    </message>
    <message>
        <source>files without this tag</source>
        <translation>このタグがないファイル</translation>
    </message>
    <message>
        <source>number of tags: :tags=0</source>
        <translation>タグの数: :tags=0</translation>
    </message>
    <message>
        <source>fewer tags than: :tags&lt;5</source>
        <translation>タグの数がこれより少ない: :tags&lt;5</translation>
    </message>
    <message>
        <source>more tags than: :tags&gt;20</source>
        <translation>タグの数がこれより多い: :tags&gt;20</translation>
    </message>
    <message>
        <source>width in pixels, also with &lt; and =: :w&gt;1024</source>
        <translation>幅 (ピクセル)、&lt; と = も可: :w&gt;1024</translation>
    </message>
    <message>
        <source>height in pixels, also with &gt; and =: :h&lt;512</source>
        <translation>高さ (ピクセル)、&gt; と = も可: :h&lt;512</translation>
    </message>
    <message>
        <source>width to height, within one percent: :ratio 3:2</source>
        <translation>幅と高さの比 (誤差 1% 以内): :ratio 3:2</translation>
    </message>
    <message>
        <source>clips</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>files with tags that are not saved</source>
        <translation>未保存のタグがあるファイル</translation>
    </message>
    <message>
        <source>files that have a tag twice</source>
        <translation>タグが重複しているファイル</translation>
    </message>
</context>
<context>
    <name>OllamaApi</name>
    <message>
        <source>Thinking:</source>
        <translation>思考:</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Preview size:</source>
        <translation>プレビューサイズ:</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Preview thread count:</source>
        <translation>プレビューのスレッド数:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Thread count used to load image previews.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;画像プレビューの読み込みに使うスレッド数。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Files import</source>
        <translation>ファイルのインポート</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Delete original source file.&lt;/p&gt;&lt;p&gt;Example importing c:\file.jpg to c:\trainData\file.jpg will move file c:\file.jpg to trash.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;元のファイルを削除します。&lt;/p&gt;&lt;p&gt;例: c:\file.jpg を c:\trainData\file.jpg にインポートすると、ファイル c:\file.jpg をごみ箱に移動します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>during &quot;Files import&quot; remove source</source>
        <translation>「ファイルのインポート」時に元ファイルを削除</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Auto rename file, format fileName_X.suffix, if working directory already contains file withh same name.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;作業ディレクトリに同じ名前のファイルがすでにある場合、fileName_X.suffix の形式でファイル名を自動的に変更します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>auto rename</source>
        <translation>自動的に名前を変更</translation>
    </message>
    <message>
        <source>Safetensors options</source>
        <translation>Safetensors のオプション</translation>
    </message>
    <message>
        <source>include meta info</source>
        <translation>メタ情報を含める</translation>
    </message>
    <message>
        <source>include tensors info</source>
        <translation>テンソル情報を含める</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ProfilesEditWidget</name>
    <message>
        <source>Profiles editor</source>
        <translation>プロファイルの編集</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Data size: 0</source>
        <translation>データサイズ: 0</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Data size: %1</source>
        <translation>データサイズ: %1</translation>
    </message>
</context>
<context>
    <name>ProfilesWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Move profile up</source>
        <translation>プロファイルを上へ移動</translation>
    </message>
    <message>
        <source>Move profile down</source>
        <translation>プロファイルを下へ移動</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>新しいプロファイル</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>プロファイルを編集</translation>
    </message>
    <message>
        <source>Remove profile</source>
        <translation>プロファイルを削除</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>プロファイル: %1</translation>
    </message>
</context>
<context>
    <name>PromptProgress</name>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>残り %1 分</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>残り %1 時間</translation>
    </message>
    <message>
        <source>captions %1/%2</source>
        <translation>キャプション %1/%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>QImageWriter</name>
    <message>
        <source>Device not writable</source>
        <translation>デバイスに書き込めません</translation>
    </message>
</context>
<context>
    <name>ReplaceTextDialog</name>
    <message>
        <source>Replace tags text</source>
        <translation>タグの文字列を置換</translation>
    </message>
    <message>
        <source>Replace text:</source>
        <translation>置換前:</translation>
    </message>
    <message>
        <source>with:</source>
        <translation>置換後:</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Split tags by</source>
        <translation>タグを分割</translation>
    </message>
    <message>
        <source>Split by:</source>
        <translation>区切り:</translation>
    </message>
</context>
<context>
    <name>SafetensorsDialog</name>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Content of the file</source>
        <translation>ファイルの内容</translation>
    </message>
    <message>
        <source>metainfo</source>
        <translation>メタ情報</translation>
    </message>
    <message>
        <source>tensor</source>
        <translation>テンソル</translation>
    </message>
    <message>
        <source>Load previous file</source>
        <translation>前のファイルを読み込む</translation>
    </message>
    <message>
        <source>Load previous file in current directory</source>
        <translation>現在のディレクトリの前のファイルを読み込む</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Load next file</source>
        <translation>次のファイルを読み込む</translation>
    </message>
    <message>
        <source>Load next file in current directory</source>
        <translation>現在のディレクトリの次のファイルを読み込む</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Reveal in file browser</source>
        <translation>ファイルブラウザーで表示</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>safetensors ファイルを開く</translation>
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
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings data:</source>
        <translation>設定データ:</translation>
    </message>
    <message>
        <source>Remove selected entries</source>
        <translation>選択した項目を削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2 件</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1: %2/%3 件</translation>
    </message>
    <message>
        <source>%1, %2 failed</source>
        <translation>%1、失敗 %2 件</translation>
    </message>
    <message>
        <source>Last result</source>
        <translation>前回の結果</translation>
    </message>
    <message>
        <source>Progress of the batch</source>
        <translation>一括処理の進行状況</translation>
    </message>
    <message>
        <source>Shown files</source>
        <translation>表示中のファイル</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>未保存のファイル</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%2 件中 %1 件を表示</translation>
    </message>
    <message>
        <source>Click to show all files.</source>
        <translation>クリックするとすべてのファイルを表示します。</translation>
    </message>
    <message>
        <source>%1 unsaved</source>
        <translation>未保存 %1 件</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>タグを保存</translation>
    </message>
    <message>
        <source>Show unsaved files</source>
        <translation>未保存のファイルを表示</translation>
    </message>
    <message>
        <source>Restore %1 files of %2</source>
        <translation>%2 時点の %1 個のファイルを復元</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>TagRecord</name>
    <message>
        <source>import %1 files</source>
        <translation>%1 個のファイルのインポート</translation>
    </message>
    <message>
        <source>edit %1</source>
        <translation>%1 の編集</translation>
    </message>
    <message>
        <source>add %1 to %2 files</source>
        <translation>%2 個のファイルに %1 を追加</translation>
    </message>
    <message>
        <source>delete %1 from %2 files</source>
        <translation>%2 個のファイルから %1 を削除</translation>
    </message>
    <message>
        <source>replace %1 in %2 files</source>
        <translation>%2 個のファイルの %1 を置換</translation>
    </message>
    <message>
        <source>split by %1 in %2 files</source>
        <translation>%2 個のファイルを %1 で分割</translation>
    </message>
    <message>
        <source>save the text of %1</source>
        <translation>%1 のテキストの保存</translation>
    </message>
    <message>
        <source>captions of %1 files</source>
        <translation>%1 個のファイルのキャプション</translation>
    </message>
    <message>
        <source>restore %1 files</source>
        <translation>%1 個のファイルの復元</translation>
    </message>
</context>
<context>
    <name>TagsExportDialog</name>
    <message>
        <source>All tags</source>
        <translation>すべてのタグ</translation>
    </message>
    <message>
        <source>remove duplicates</source>
        <translation>重複を除去</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Remove duplicated tags&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;重複するタグを取り除きます&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>append count</source>
        <translation>個数を付加</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Append number of occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;タグの出現数を付け加えます&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort by count</source>
        <translation>個数で並べ替え</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sort by occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;タグの出現数で並べ替えます&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Sort direction</source>
        <translation>並べ替えの方向</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Case sensitivity</source>
        <translation>大文字と小文字の区別</translation>
    </message>
    <message>
        <source>CaseSensitive</source>
        <translation>大文字小文字を区別</translation>
    </message>
    <message>
        <source>CaseInsensitive</source>
        <translation>大文字小文字を無視</translation>
    </message>
    <message>
        <source>Tags count: 0</source>
        <translation>タグの数: 0</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Tags count: %1</source>
        <translation>タグの数: %1</translation>
    </message>
</context>
<context>
    <name>Themes</name>
    <message>
        <source>Os theme</source>
        <translation>OS のテーマ</translation>
    </message>
    <message>
        <source>Windows11</source>
        <translation>Windows11</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light Win95</source>
        <translation>ライト Win95</translation>
    </message>
    <message>
        <source>Light Fusion</source>
        <translation>ライト Fusion</translation>
    </message>
    <message>
        <source>Emerald</source>
        <translation>エメラルド</translation>
    </message>
    <message>
        <source>Sapphire</source>
        <translation>サファイア</translation>
    </message>
    <message>
        <source>Ruby</source>
        <translation>ルビー</translation>
    </message>
    <message>
        <source>CobaltSky</source>
        <translation>コバルトスカイ</translation>
    </message>
    <message>
        <source>VioletAngelPurple</source>
        <translation>エンジェルパープル</translation>
    </message>
    <message>
        <source>ScarletDevilRed</source>
        <translation>デビルレッド</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Pizza Brown</source>
        <translation>ピザブラウン</translation>
    </message>
    <message>
        <source>Baby Pastel</source>
        <translation>ベビーパステル</translation>
    </message>
    <message>
        <source>Untouched Lagoon</source>
        <translation>静かなラグーン</translation>
    </message>
    <message>
        <source>Grey Matter</source>
        <translation>グレーマター</translation>
    </message>
    <message>
        <source>Dark Fusion Blue</source>
        <translation>ダーク Fusion ブルー</translation>
    </message>
    <message>
        <source>Dark Fusion</source>
        <translation>ダーク Fusion</translation>
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
        <translation>ファイルマネージャーがありません</translation>
    </message>
    <message>
        <source>Could not find a file manager to show %1.</source>
        <translation>%1 を表示するファイルマネージャーが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Launching Windows Explorer Failed</source>
        <translation>エクスプローラーの起動に失敗しました</translation>
    </message>
    <message>
        <source>Could not find explorer.exe in path to launch Windows Explorer.</source>
        <translation>エクスプローラーを起動するための explorer.exe がパスに見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>VideoPreviewWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
</context>
<context>
    <name>VideoWidget</name>
    <message>
        <source>Video editor</source>
        <translation>動画エディター</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Frame previous</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame previous&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;前のフレーム&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Frame next</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame next&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;次のフレーム&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open previous file</source>
        <translation>前のファイルを開く</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open previous file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;ディレクトリの前のファイルを開く&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open next file</source>
        <translation>次のファイルを開く</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open next file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;ディレクトリの次のファイルを開く&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Grab current frame</source>
        <translation>現在のフレームをキャプチャ</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Grab series of frames</source>
        <translation>一連のフレームをキャプチャ</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab series of frames&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;一連のフレームをキャプチャ&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames from files</source>
        <translation>ファイルからフレームをキャプチャ</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab frames from files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;ファイルからフレームをキャプチャ&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Open video</source>
        <translation>動画を開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;URL</source>
        <translation>URL を開く(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Frame next</source>
        <translation>次のフレーム(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Frame prev</source>
        <translation>前のフレーム(&amp;P)</translation>
    </message>
    <message>
        <source>Frame prev</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>&amp;Grab frame</source>
        <translation>フレームをキャプチャ(&amp;G)</translation>
    </message>
    <message>
        <source>Grab frame</source>
        <translation>フレームをキャプチャ</translation>
    </message>
    <message>
        <source>Grab current frame [%1]</source>
        <translation>現在のフレームをキャプチャ [%1]</translation>
    </message>
    <message>
        <source>Last frame.</source>
        <translation>最後のフレームです。</translation>
    </message>
    <message>
        <source>First frame.</source>
        <translation>最初のフレームです。</translation>
    </message>
    <message>
        <source>Video editor - %1</source>
        <translation>動画エディター - %1</translation>
    </message>
    <message>
        <source>Open video file</source>
        <translation>動画ファイルを開く</translation>
    </message>
    <message>
        <source>Open video URL</source>
        <translation>動画の URL を開く</translation>
    </message>
    <message>
        <source>Video URL:</source>
        <translation>動画の URL:</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>no media</source>
        <translation>メディアなし</translation>
    </message>
    <message>
        <source>loading media</source>
        <translation>メディアを読み込み中</translation>
    </message>
    <message>
        <source>loaded media</source>
        <translation>メディア読み込み完了</translation>
    </message>
    <message>
        <source>stalled media</source>
        <translation>メディアの読み込み待ち</translation>
    </message>
    <message>
        <source>buffering media</source>
        <translation>メディアをバッファリング中</translation>
    </message>
    <message>
        <source>buffered media</source>
        <translation>メディアのバッファリング完了</translation>
    </message>
    <message>
        <source>end of media</source>
        <translation>メディアの終わり</translation>
    </message>
    <message>
        <source>invalid media</source>
        <translation>無効なメディア</translation>
    </message>
    <message>
        <source>Seek speed modifier: %1 at fps: %2</source>
        <translation>シーク速度の倍率: %1 (fps: %2)</translation>
    </message>
    <message>
        <source>No frame is shown.</source>
        <translation>表示中のフレームがありません。</translation>
    </message>
    <message>
        <source>No frame to grab.</source>
        <translation>キャプチャするフレームがありません。</translation>
    </message>
    <message>
        <source>Source either empty or invalid: %1. Set correct media.</source>
        <translation>ソースが空か無効です: %1。正しいメディアを設定してください。</translation>
    </message>
</context>
<context>
    <name>VideoWidgetFrameGrabber</name>
    <message>
        <source>Frame grabber</source>
        <translation>フレームキャプチャ</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Start ms:</source>
        <translation>開始 (ms):</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Media start ms.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;メディアの開始位置 (ms)。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>フレーム数:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Number of frames to grab. Interval between frames is same.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;キャプチャするフレームの数。フレームの間隔は一定です。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>Select video files</source>
        <translation>動画ファイルを選択</translation>
    </message>
    <message>
        <source>Add all</source>
        <translation>すべて追加</translation>
    </message>
    <message>
        <source>Add selected</source>
        <translation>選択項目を追加</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Frame grabber: %1</source>
        <translation>フレームキャプチャ: %1</translation>
    </message>
    <message>
        <source>Videos (*.avi *.mpeg *.ogv *.mp4 *.mkv)</source>
        <translation>動画 (*.avi *.mpeg *.ogv *.mp4 *.mkv)</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Add &amp;selected</source>
        <translation>選択項目を追加(&amp;S)</translation>
    </message>
    <message>
        <source>Add &amp;all</source>
        <translation>すべて追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>選択項目を削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
</context>
</TS>
