<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AddTagsDialog</name>
    <message>
        <source>Add tags</source>
        <translation>Tags hinzufügen</translation>
    </message>
    <message>
        <source>Tags:</source>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>Tags hinzufügen, je Zeile eines oder durch „,“ getrennt ..</translation>
    </message>
    <message>
        <source>Tags from: %1</source>
        <translation>Tags von: %1</translation>
    </message>
    <message>
        <source>Edit tags, one per line or/and &quot;,&quot; separated..</source>
        <translation>Tags bearbeiten, je Zeile eines oder durch „,“ getrennt ..</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>Shows this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch %1 </source>
        <translation>Aufruf: tessarine-batch %1 </translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 verlangt eine ganze Zahl von %2 bis %3, nicht „%4“</translation>
    </message>
    <message>
        <source>--%1 takes a number from %2 to %3, not &quot;%4&quot;</source>
        <translation>--%1 verlangt eine Zahl von %2 bis %3, nicht „%4“</translation>
    </message>
    <message>
        <source>--%1 is one of %2, not &quot;%3&quot;</source>
        <translation>--%1 ist eines von %2, nicht „%3“</translation>
    </message>
    <message>
        <source>see tessarine-batch %1 --help</source>
        <translation>siehe tessarine-batch %1 --help</translation>
    </message>
    <message>
        <source>no answer within %1 s</source>
        <translation>keine Antwort innerhalb von %1 s</translation>
    </message>
    <message>
        <source>has tags</source>
        <translation>hat Tags</translation>
    </message>
    <message>
        <source>the new size is empty or too large</source>
        <translation>die neue Größe ist leer oder zu groß</translation>
    </message>
    <message>
        <source>the answer is empty</source>
        <translation>die Antwort ist leer</translation>
    </message>
    <message>
        <source>--model names the model to ask</source>
        <translation>--model nennt das Modell, das gefragt wird</translation>
    </message>
    <message>
        <source>--url takes an address that begins with http, not &quot;%1&quot;</source>
        <translation>--url verlangt eine Adresse, die mit http beginnt, nicht „%1“</translation>
    </message>
    <message>
        <source>Asks an Ollama server for tags and adds them to the sidecars.</source>
        <translation>Fragt einen Ollama-Server nach Tags und fügt sie den Tag-Dateien hinzu.</translation>
    </message>
    <message>
        <source>Address of the server.</source>
        <translation>Adresse des Servers.</translation>
    </message>
    <message>
        <source>Name of the model.</source>
        <translation>Name des Modells.</translation>
    </message>
    <message>
        <source>System prompt in place of the model&apos;s own.</source>
        <translation>System-Prompt anstelle des modelleigenen.</translation>
    </message>
    <message>
        <source>What the model is asked about each picture.</source>
        <translation>Was das Modell zu jedem Bild gefragt wird.</translation>
    </message>
    <message>
        <source>Size of the pictures sent; -1 lets one side follow the other.</source>
        <translation>Größe der gesendeten Bilder; bei -1 folgt eine Seite der anderen.</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep or ignore.</source>
        <translation>Was aus dem Seitenverhältnis wird: keep (beibehalten) oder ignore (ignorieren).</translation>
    </message>
    <message>
        <source>Text that separates the tags of an answer.</source>
        <translation>Text, der die Tags einer Antwort trennt.</translation>
    </message>
    <message>
        <source>Skips files that have tags.</source>
        <translation>Überspringt Dateien, die Tags haben.</translation>
    </message>
    <message>
        <source>Keeps the old sidecar beside the new one.</source>
        <translation>Behält die alte Tag-Datei neben der neuen.</translation>
    </message>
    <message>
        <source>Keeps tags that a file has twice.</source>
        <translation>Behält Tags, die eine Datei doppelt hat.</translation>
    </message>
    <message>
        <source>Asks up to N times more after a failure.</source>
        <translation>Fragt nach einem Fehler bis zu N Mal erneut.</translation>
    </message>
    <message>
        <source>Waits so many seconds for an answer.</source>
        <translation>Wartet so viele Sekunden auf eine Antwort.</translation>
    </message>
    <message>
        <source>Reports what is wrong with a dataset and what is in it.</source>
        <translation>Berichtet, was ein Datensatz enthält und was daran falsch ist.</translation>
    </message>
    <message>
        <source>Names tags that occur at most N times.</source>
        <translation>Nennt Tags, die höchstens N Mal vorkommen.</translation>
    </message>
    <message>
        <source>no picture comes out of the clip</source>
        <translation>aus dem Clip kommt kein Bild</translation>
    </message>
    <message>
        <source>Exports the tags of media files.</source>
        <translation>Exportiert die Tags von Mediendateien.</translation>
    </message>
    <message>
        <source>text, json or csv: tags by frequency; jsonl: one line a file, as image folder loaders read a metadata.jsonl.</source>
        <translation>text, json oder csv: Tags nach Häufigkeit; jsonl: eine Zeile je Datei, wie Lader von Bildordnern eine metadata.jsonl lesen.</translation>
    </message>
    <message>
        <source>Writes to FILE, whole or not at all.</source>
        <translation>Schreibt in FILE, ganz oder gar nicht.</translation>
    </message>
    <message>
        <source>Replaces a file that exists.</source>
        <translation>Ersetzt eine vorhandene Datei.</translation>
    </message>
    <message>
        <source>--json needs --output, since standard output takes the export</source>
        <translation>--json braucht --output, da die Standardausgabe den Export aufnimmt</translation>
    </message>
    <message>
        <source>is a source, which no export replaces</source>
        <translation>ist eine Quelle, die kein Export ersetzt</translation>
    </message>
    <message>
        <source>--shard takes I/N with I from 1 to N, not &quot;%1&quot;</source>
        <translation>--shard verlangt I/N mit I von 1 bis N, nicht „%1“</translation>
    </message>
    <message>
        <source>--files-from %1: %2</source>
        <translation>--files-from %1: %2</translation>
    </message>
    <message>
        <source>Takes the files of sub-directories as well.</source>
        <translation>Nimmt auch die Dateien der Unterverzeichnisse.</translation>
    </message>
    <message>
        <source>Takes paths from FILE, or from standard input for -: one a line, or each ended by NUL.</source>
        <translation>Nimmt Pfade aus FILE, bei - von der Standardeingabe: je Zeile einen oder jeden mit NUL beendet.</translation>
    </message>
    <message>
        <source>Lets paths below DIR count from there, as those of a directory do.</source>
        <translation>Lässt Pfade unter DIR von dort aus zählen, wie bei denen eines Verzeichnisses.</translation>
    </message>
    <message>
        <source>Takes the I-th of N shares of the files.</source>
        <translation>Nimmt den I-ten von N Teilen der Dateien.</translation>
    </message>
    <message>
        <source>no files are given</source>
        <translation>keine Dateien angegeben</translation>
    </message>
    <message>
        <source>the clip is too short, or has no duration</source>
        <translation>der Clip ist zu kurz oder hat keine Dauer</translation>
    </message>
    <message>
        <source>no picture at %1 ms</source>
        <translation>kein Bild bei %1 ms</translation>
    </message>
    <message>
        <source>Takes frames out of clips, as PNG files with their milliseconds.</source>
        <translation>Entnimmt Clips Einzelbilder, als PNG-Dateien mit ihren Millisekunden.</translation>
    </message>
    <message>
        <source>Takes a frame every so many seconds.</source>
        <translation>Entnimmt alle so viele Sekunden ein Einzelbild.</translation>
    </message>
    <message>
        <source>Takes N frames, evenly over the clip.</source>
        <translation>Entnimmt N Einzelbilder, gleichmäßig über den Clip verteilt.</translation>
    </message>
    <message>
        <source>either --every or --count is needed</source>
        <translation>entweder --every oder --count ist nötig</translation>
    </message>
    <message>
        <source>nothing to do</source>
        <translation>nichts zu tun</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Quality of the images from 1 to 100.</source>
        <translation>Qualität der Bilder von 1 bis 100.</translation>
    </message>
    <message>
        <source>one of --size, --scale and --ratio is needed</source>
        <translation>eines von --size, --scale und --ratio ist nötig</translation>
    </message>
    <message>
        <source>%1: no settings file that can be read</source>
        <translation>%1: keine lesbare Einstellungsdatei</translation>
    </message>
    <message>
        <source>%1: its profiles are missing or broken</source>
        <translation>%1: ihre Profile fehlen oder sind beschädigt</translation>
    </message>
    <message>
        <source>%1: no profile &quot;%2&quot; among %3</source>
        <translation>%1: kein Profil „%2“ unter %3</translation>
    </message>
    <message>
        <source>--filter %1 takes a whole number from %2 to %3, as in %1=%3</source>
        <translation>--filter %1 verlangt eine ganze Zahl von %2 bis %3, wie in %1=%3</translation>
    </message>
    <message>
        <source>--filter takes one of %1, with its number but for the last, not &quot;%2&quot;</source>
        <translation>--filter verlangt eines von %1, außer beim letzten mit einer Zahl, nicht „%2“</translation>
    </message>
    <message>
        <source>either --profile or --filter is needed</source>
        <translation>entweder --profile oder --filter ist nötig</translation>
    </message>
    <message>
        <source>Resizes images.</source>
        <translation>Ändert die Größe von Bildern.</translation>
    </message>
    <message>
        <source>The new size; -1 lets one side follow the other.</source>
        <translation>Die neue Größe; bei -1 folgt eine Seite der anderen.</translation>
    </message>
    <message>
        <source>Multiplies both sides by F.</source>
        <translation>Multipliziert beide Seiten mit F.</translation>
    </message>
    <message>
        <source>Cuts from the middle: as high as the shorter side times R.</source>
        <translation>Schneidet aus der Mitte: so hoch wie die kürzere Seite mal R.</translation>
    </message>
    <message>
        <source>What becomes of the aspect ratio: keep, expand or ignore.</source>
        <translation>Was aus dem Seitenverhältnis wird: keep (beibehalten), expand (überdecken) oder ignore (ignorieren).</translation>
    </message>
    <message>
        <source>How pixels are scaled: smooth or fast.</source>
        <translation>Wie Pixel skaliert werden: smooth (glatt) oder fast (schnell).</translation>
    </message>
    <message>
        <source>Runs a chain of filters over images.</source>
        <translation>Wendet eine Filterkette auf Bilder an.</translation>
    </message>
    <message>
        <source>Takes the chain of a profile of the window.</source>
        <translation>Nimmt die Kette eines Profils des Fensters.</translation>
    </message>
    <message>
        <source>Takes the profile out of FILE, by default the window&apos;s.</source>
        <translation>Nimmt das Profil aus FILE, sonst aus der Datei des Fensters.</translation>
    </message>
    <message>
        <source>A filter of the chain, as in Brightness=20; given again for the next.</source>
        <translation>Ein Filter der Kette, wie in Brightness=20; für den nächsten erneut anzugeben.</translation>
    </message>
    <message>
        <source>Shows the header of model files.</source>
        <translation>Zeigt den Kopf von Modelldateien.</translation>
    </message>
    <message>
        <source>Shows the metadata alone.</source>
        <translation>Zeigt nur die Metadaten.</translation>
    </message>
    <message>
        <source>Shows name, type, shape and bytes of the tensors alone.</source>
        <translation>Zeigt nur Name, Typ, Form und Bytes der Tensoren.</translation>
    </message>
    <message>
        <source>shows the header of model files</source>
        <translation>zeigt den Kopf von Modelldateien</translation>
    </message>
    <message>
        <source>lists, counts and edits tags</source>
        <translation>listet, zählt und bearbeitet Tags</translation>
    </message>
    <message>
        <source>exports tags and captions</source>
        <translation>exportiert Tags und Beschreibungen</translation>
    </message>
    <message>
        <source>resizes images</source>
        <translation>ändert die Größe von Bildern</translation>
    </message>
    <message>
        <source>runs filters over images</source>
        <translation>wendet Filter auf Bilder an</translation>
    </message>
    <message>
        <source>asks an Ollama server for tags</source>
        <translation>fragt einen Ollama-Server nach Tags</translation>
    </message>
    <message>
        <source>takes frames out of clips</source>
        <translation>entnimmt Clips Einzelbilder</translation>
    </message>
    <message>
        <source>reports on a dataset</source>
        <translation>berichtet über einen Datensatz</translation>
    </message>
    <message>
        <source>Usage: tessarine-batch COMMAND [OPTIONS] FILE...

The commands; each takes --help:
</source>
        <translation>Aufruf: tessarine-batch COMMAND [OPTIONS] FILE...

Die Befehle; jeder kennt --help:
</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>es gibt keinen Befehl %1</translation>
    </message>
    <message>
        <source>is no directory</source>
        <translation>ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>Writes below DIR; files of sub-directories keep theirs.</source>
        <translation>Schreibt unterhalb von DIR; Dateien aus Unterverzeichnissen behalten ihres.</translation>
    </message>
    <message>
        <source>Replaces the files themselves.</source>
        <translation>Ersetzt die Dateien selbst.</translation>
    </message>
    <message>
        <source>Replaces results that exist.</source>
        <translation>Ersetzt vorhandene Ergebnisse.</translation>
    </message>
    <message>
        <source>Skips results that are no older than their source.</source>
        <translation>Überspringt Ergebnisse, die nicht älter als ihre Quelle sind.</translation>
    </message>
    <message>
        <source>--in-place goes with neither --output nor --resume</source>
        <translation>--in-place verträgt sich weder mit --output noch mit --resume</translation>
    </message>
    <message>
        <source>--output DIR says where the results go</source>
        <translation>--output DIR gibt an, wohin die Ergebnisse kommen</translation>
    </message>
    <message>
        <source>another file has the result %1; --base keeps their directories</source>
        <translation>eine andere Datei hat das Ergebnis %1; --base behält ihre Verzeichnisse bei</translation>
    </message>
    <message>
        <source>%1 is a directory</source>
        <translation>%1 ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>%1 is a source, which only --in-place replaces</source>
        <translation>%1 ist eine Quelle, die nur --in-place ersetzt</translation>
    </message>
    <message>
        <source>%1 is there</source>
        <translation>%1 ist vorhanden</translation>
    </message>
    <message>
        <source>%1 exists, which only --overwrite replaces</source>
        <translation>%1 ist vorhanden, nur --overwrite ersetzt es</translation>
    </message>
    <message>
        <source>may not be read</source>
        <translation>darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>a link to nothing</source>
        <translation>eine Verknüpfung ins Leere</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8</source>
        <translation>ihr Name ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>not done, interrupted</source>
        <translation>nicht bearbeitet, unterbrochen</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, %1 übrig</translation>
    </message>
    <message>
        <source>%1: %2 done, %3 skipped, %4 failed%5</source>
        <translation>%1: %2 erledigt, %3 übersprungen, %4 fehlgeschlagen%5</translation>
    </message>
    <message>
        <source>Works on N files at once; 0 stands for one a processor.</source>
        <translation>Bearbeitet N Dateien zugleich; 0 steht für eine je Prozessor.</translation>
    </message>
    <message>
        <source>Shows a bar on standard error if that is a terminal.</source>
        <translation>Zeigt einen Balken auf der Standardfehlerausgabe, wenn sie ein Terminal ist.</translation>
    </message>
    <message>
        <source>Prints one JSON object a line.</source>
        <translation>Gibt je Zeile ein JSON-Objekt aus.</translation>
    </message>
    <message>
        <source>Prints no summary, only failures.</source>
        <translation>Gibt keine Zusammenfassung aus, nur Fehler.</translation>
    </message>
    <message>
        <source>Writes the paths of files that failed or were left to FILE, for --files-from.</source>
        <translation>Schreibt die Pfade fehlgeschlagener oder übriger Dateien in FILE, für --files-from.</translation>
    </message>
    <message>
        <source>--failed %1: the file exists and is no such list</source>
        <translation>--failed %1: die Datei ist vorhanden und keine solche Liste</translation>
    </message>
    <message>
        <source>standard output took only a part</source>
        <translation>die Standardausgabe hat nur einen Teil angenommen</translation>
    </message>
    <message>
        <source>the sidecar is not valid UTF-8</source>
        <translation>die Tag-Datei ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>--size takes WxH, where -1 lets one side follow, not &quot;%1&quot;</source>
        <translation>--size verlangt WxH, wobei -1 eine Seite folgen lässt, nicht „%1“</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>--%1 needs a text</source>
        <translation>--%1 braucht einen Text</translation>
    </message>
    <message>
        <source>--tags holds no tag</source>
        <translation>--tags enthält kein Tag</translation>
    </message>
    <message>
        <source>The tags, separated by commas.</source>
        <translation>Die Tags, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>The text inside of tags to replace.</source>
        <translation>Der zu ersetzende Text in Tags.</translation>
    </message>
    <message>
        <source>The text to put in its place.</source>
        <translation>Der Text, der an seine Stelle tritt.</translation>
    </message>
    <message>
        <source>The text at which to split tags.</source>
        <translation>Der Text, an dem Tags geteilt werden.</translation>
    </message>
    <message>
        <source>Prints a unified diff and writes nothing.</source>
        <translation>Gibt ein „unified diff“ aus und schreibt nichts.</translation>
    </message>
    <message>
        <source>Lists, counts and edits the tags in the sidecars of media files.</source>
        <translation>Listet, zählt und bearbeitet die Tags in den Tag-Dateien von Mediendateien.</translation>
    </message>
    <message>
        <source>tags takes one of %1</source>
        <translation>tags verlangt eines von %1</translation>
    </message>
    <message>
        <source>another run is writing it</source>
        <translation>ein anderer Lauf schreibt sie gerade</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>kein Name für eine Sicherung ist mehr frei</translation>
    </message>
    <message>
        <source>no backup was made: %1</source>
        <translation>keine Sicherung angelegt: %1</translation>
    </message>
</context>
<context>
    <name>CompletionPopup</name>
    <message>
        <source>Completions</source>
        <translation>Vervollständigungen</translation>
    </message>
</context>
<context>
    <name>EditImageDialog</name>
    <message>
        <source>Edit image</source>
        <translation>Bild bearbeiten</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>X:</source>
        <translation>X:</translation>
    </message>
    <message>
        <source>Cut tool x position</source>
        <translation>X-Position des Zuschnitts</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Cut tool y position</source>
        <translation>Y-Position des Zuschnitts</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>Cut tool width</source>
        <translation>Breite des Zuschnitts</translation>
    </message>
    <message>
        <source>H:</source>
        <translation>H:</translation>
    </message>
    <message>
        <source>Cut tool height</source>
        <translation>Höhe des Zuschnitts</translation>
    </message>
    <message>
        <source>Width of cut outline</source>
        <translation>Linienstärke des Zuschnittrahmens</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>Automatisch einpassen</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>Automatisch zentrieren</translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Tool panel</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Edit image: %1 [%2x%3] %4</source>
        <translation>Bild bearbeiten: %1 [%2x%3] %4</translation>
    </message>
    <message>
        <source>&amp;Save image [%1]</source>
        <translation>Bild &amp;speichern [%1]</translation>
    </message>
    <message>
        <source>Save image [%1]</source>
        <translation>Bild speichern [%1]</translation>
    </message>
    <message>
        <source>&amp;Save image as [%1]</source>
        <translation>Bild speichern &amp;unter [%1]</translation>
    </message>
    <message>
        <source>Save image as [%1]</source>
        <translation>Bild speichern unter [%1]</translation>
    </message>
    <message>
        <source>&amp;Previous image [%1]</source>
        <translation>&amp;Vorheriges Bild [%1]</translation>
    </message>
    <message>
        <source>Previous image [%1]</source>
        <translation>Vorheriges Bild [%1]</translation>
    </message>
    <message>
        <source>&amp;Next image [%1]</source>
        <translation>&amp;Nächstes Bild [%1]</translation>
    </message>
    <message>
        <source>Next image [%1]</source>
        <translation>Nächstes Bild [%1]</translation>
    </message>
    <message>
        <source>&amp;Pan image [%1]</source>
        <translation>&amp;Bild verschieben [%1]</translation>
    </message>
    <message>
        <source>Pan image [%1]</source>
        <translation>Bild verschieben [%1]</translation>
    </message>
    <message>
        <source>&amp;Cut image [%1]</source>
        <translation>Bild &amp;zuschneiden [%1]</translation>
    </message>
    <message>
        <source>Cut image [%1]</source>
        <translation>Bild zuschneiden [%1]</translation>
    </message>
    <message>
        <source>&amp;Delete image [%1]</source>
        <translation>Bild &amp;löschen [%1]</translation>
    </message>
    <message>
        <source>&amp;Undo [%1]</source>
        <translation>&amp;Rückgängig [%1]</translation>
    </message>
    <message>
        <source>Auto fit image to view. Changes zoom. [%1]</source>
        <translation>Bild automatisch in die Ansicht einpassen. Ändert den Zoom. [%1]</translation>
    </message>
    <message>
        <source>Auto center image. Dont change zoom. [%1]</source>
        <translation>Bild automatisch zentrieren. Ändert den Zoom nicht. [%1]</translation>
    </message>
    <message>
        <source>Keep aspect ration while resizing cut rectangle. [%1]</source>
        <translation>Seitenverhältnis beibehalten, wenn sich die Größe des Zuschnitts ändert. [%1]</translation>
    </message>
    <message>
        <source>zoom level: %1</source>
        <translation>Zoomstufe: %1</translation>
    </message>
</context>
<context>
    <name>EditImageWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Save image: %1</source>
        <translation>Bild speichern: %1</translation>
    </message>
    <message>
        <source>Save image as</source>
        <translation>Bild speichern unter</translation>
    </message>
    <message>
        <source>Saved image as: %1</source>
        <translation>Bild gespeichert als: %1</translation>
    </message>
    <message>
        <source>Error, unable to save image: %1</source>
        <translation>Fehler, Bild lässt sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>Automatisch einpassen</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>Automatisch zentrieren</translation>
    </message>
    <message>
        <source>Update on resize</source>
        <translation>Bei Größenänderung anpassen</translation>
    </message>
    <message>
        <source>Reset zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>F&amp;it</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Align &amp;height</source>
        <translation>Auf &amp;Höhe ausrichten</translation>
    </message>
    <message>
        <source>Align &amp;width</source>
        <translation>Auf &amp;Breite ausrichten</translation>
    </message>
    <message>
        <source>Align c&amp;enter</source>
        <translation>&amp;Zentrieren</translation>
    </message>
    <message>
        <source>Same width</source>
        <translation>Gleiche Breite</translation>
    </message>
    <message>
        <source>Same height</source>
        <translation>Gleiche Höhe</translation>
    </message>
    <message>
        <source>Align edge &amp;left</source>
        <translation>Am &amp;linken Rand ausrichten</translation>
    </message>
    <message>
        <source>Align edge &amp;right</source>
        <translation>Am &amp;rechten Rand ausrichten</translation>
    </message>
    <message>
        <source>Align edge &amp;top</source>
        <translation>Am &amp;oberen Rand ausrichten</translation>
    </message>
    <message>
        <source>Align edge &amp;bottom</source>
        <translation>Am u&amp;nteren Rand ausrichten</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetBase</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Bypass filter</source>
        <translation>Filter umgehen</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ImageFilterWidgetSlider</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>ImageFilters</name>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>WhitePoint</source>
        <translation>Weißpunkt</translation>
    </message>
    <message>
        <source>BlackPoint</source>
        <translation>Schwarzpunkt</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThread</name>
    <message>
        <source>Unable to allocate image.</source>
        <translation>Kein Speicher für das Bild.</translation>
    </message>
    <message>
        <source>Image read error: %1</source>
        <translation>Fehler beim Lesen des Bildes: %1</translation>
    </message>
    <message>
        <source>Image file path empty.</source>
        <translation>Der Pfad der Bilddatei ist leer.</translation>
    </message>
</context>
<context>
    <name>ImageLoaderThreaded</name>
    <message>
        <source>Loaded all media previews in: %1 s</source>
        <translation>Alle Vorschaubilder geladen in: %1 s</translation>
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
        <translation>Medienliste</translation>
    </message>
    <message>
        <source>Media tree</source>
        <translation>Medienbaum</translation>
    </message>
    <message>
        <source>Media table</source>
        <translation>Medientabelle</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Filter images by name, path, tags, image size.&lt;/p&gt;&lt;p&gt;Custom tags:&lt;/p&gt;&lt;p&gt;:missingTxt - shows only images with missing txt files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Bilder nach Name, Pfad, Tags und Bildgröße filtern.&lt;/p&gt;&lt;p&gt;Besondere Wörter:&lt;/p&gt;&lt;p&gt;:missingTxt - zeigt nur Bilder ohne Txt-Datei&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>filter images by name, path, tags, image size, tags: &quot;:missingTxt&quot;</source>
        <translation>Bilder filtern nach Name, Pfad, Tags, Bildgröße, Wörter: &quot;:missingTxt&quot;</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>Bilder filtern</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Working path. All operations are being done in this directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Arbeitsverzeichnis. Alle Vorgänge finden in diesem Verzeichnis statt.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Working path</source>
        <translation>Arbeitsverzeichnis</translation>
    </message>
    <message>
        <source>Select working path</source>
        <translation>Arbeitsverzeichnis wählen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled scan working dir recursively.&lt;/p&gt;&lt;p&gt;Working path is provided path.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Wenn eingeschaltet, wird das Arbeitsverzeichnis mit seinen Unterverzeichnissen durchsucht.&lt;/p&gt;&lt;p&gt;Arbeitsverzeichnis ist der angegebene Pfad.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>rec.</source>
        <translation>rek.</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Refresh working directory</source>
        <translation>Arbeitsverzeichnis neu einlesen</translation>
    </message>
    <message>
        <source>Refresh working directory. Warning all unsaved changes to tags are discarded.</source>
        <translation>Arbeitsverzeichnis neu einlesen. Achtung: Alle nicht gespeicherten Änderungen an Tags gehen verloren.</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>Tags speichern</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;When enabled save duplicated tags.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Wenn eingeschaltet, werden doppelte Tags mitgespeichert.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>dups</source>
        <translation>dopp.</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;If enabled backup old tags txt file. Files are renamed and keept in same directory.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Wenn eingeschaltet, wird die alte Txt-Datei mit den Tags gesichert. Die Dateien werden umbenannt und bleiben im selben Verzeichnis.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>backup</source>
        <translation>sichern</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>De&amp;signs</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Aspect ratio:</source>
        <translation>Seitenverhältnis:</translation>
    </message>
    <message>
        <source>IgnoreAspectRatio</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>KeepAspectRatio</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>KeepAspectRatioByExpanding</source>
        <translation>Beibehalten, überdeckend</translation>
    </message>
    <message>
        <source>Transformation:</source>
        <translation>Skalierung:</translation>
    </message>
    <message>
        <source>FastTransformation</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>SmoothTransformation</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;New size of image.&lt;/p&gt;&lt;p&gt;To resize to width set -1 on height.&lt;/p&gt;&lt;p&gt;To resize to height set -1 on width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Neue Größe des Bildes.&lt;/p&gt;&lt;p&gt;Für eine feste Breite die Höhe auf -1 setzen.&lt;/p&gt;&lt;p&gt;Für eine feste Höhe die Breite auf -1 setzen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Specific size</source>
        <translation>Feste Größe</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore width and scale to  height.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - Breite ignorieren und auf die Höhe skalieren.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - ignore height and scale to width.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;-1 - Höhe ignorieren und auf die Breite skalieren.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale size</source>
        <translation>Größe skalieren</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Scale by aspect ratio</source>
        <translation>Nach Seitenverhältnis skalieren</translation>
    </message>
    <message>
        <source>aspect ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Alignment:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Specify output directory, can be relative, empty overwrites source files.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ausgabeverzeichnis, auch relativ; ohne Angabe werden die Quelldateien überschrieben.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>output directory, relative or absolute</source>
        <translation>Ausgabeverzeichnis, relativ oder absolut</translation>
    </message>
    <message>
        <source>Output directory of resize</source>
        <translation>Ausgabeverzeichnis der Größenänderung</translation>
    </message>
    <message>
        <source>Quality [100]:</source>
        <translation>Qualität [100]:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Qualität des gespeicherten Bildes, also die Kompression.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Current selection tags:</source>
        <translation>Tags der Auswahl:</translation>
    </message>
    <message>
        <source>filter tag</source>
        <translation>Tags filtern</translation>
    </message>
    <message>
        <source>Filter tags of selection</source>
        <translation>Tags der Auswahl filtern</translation>
    </message>
    <message>
        <source>All unique tags:</source>
        <translation>Alle Tags:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Unique list of tags.&lt;/p&gt;&lt;p&gt;All duplicates are removed.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Liste der verschiedenen Tags.&lt;/p&gt;&lt;p&gt;Jedes Tag steht nur einmal darin.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send current prompt to Ollama</source>
        <translation>Aktuellen Prompt an Ollama senden</translation>
    </message>
    <message>
        <source>Export tags</source>
        <translation>Tags exportieren</translation>
    </message>
    <message>
        <source>filter all tags</source>
        <translation>Alle Tags filtern</translation>
    </message>
    <message>
        <source>Filter all tags</source>
        <translation>Alle Tags filtern</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Save txt file</source>
        <translation>Txt-Datei speichern</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Content of txt file associated with selected image.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Inhalt der Txt-Datei, die zum ausgewählten Bild gehört.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Text of the tag file</source>
        <translation>Text der Tag-Datei</translation>
    </message>
    <message>
        <source>Content of tag txt file for current image</source>
        <translation>Inhalt der Txt-Datei zum aktuellen Bild</translation>
    </message>
    <message>
        <source>Ollama</source>
        <translation>Ollama</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;The URL of the Ollama server. Default value points to a local instance with ollama&apos;s default port configuration&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Die URL des Ollama-Servers. Der Vorgabewert zeigt auf einen lokalen Server mit dem Standard-Port von Ollama.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>IP adress</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>URL of the Ollama server</source>
        <translation>URL des Ollama-Servers</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Select a model for inference. This is a list of available models on the Ollama server. If you don&apos;t see any, make sure the Ollama server is running on the url and there are models installed&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Modell für die Anfragen. Die Liste zeigt die Modelle des Ollama-Servers. Ist sie leer, so prüfen Sie, ob der Server unter der URL läuft und Modelle installiert sind.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale resolution:</source>
        <translation>Bildgröße:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Scale image send to Ollama to specified dimension.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Bild vor dem Senden an Ollama auf die angegebene Größe skalieren.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Scale width</source>
        <translation>Breite skalieren</translation>
    </message>
    <message>
        <source>Scale height</source>
        <translation>Höhe skalieren</translation>
    </message>
    <message>
        <source>keep aspect ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>System prompt:</source>
        <translation>System-Prompt:</translation>
    </message>
    <message>
        <source>System prompt for Ollama model</source>
        <translation>System-Prompt für das Ollama-Modell</translation>
    </message>
    <message>
        <source>Prompt:</source>
        <translation>Prompt:</translation>
    </message>
    <message>
        <source>User prompt for Ollama model</source>
        <translation>Prompt für das Ollama-Modell</translation>
    </message>
    <message>
        <source>Response:</source>
        <translation>Antwort:</translation>
    </message>
    <message>
        <source>Ollama response</source>
        <translation>Antwort von Ollama</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ollama tag separator. Character used to split text returned by ollama.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Trennzeichen der Tags von Ollama. An diesem Zeichen wird der Text geteilt, den Ollama liefert.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Tag split character</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Tag separator</source>
        <translation>Trennzeichen der Tags</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Add tags. Tags are divided by separator.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Tags hinzufügen. Das Trennzeichen trennt sie voneinander.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>add tags</source>
        <translation>Tags hinzufügen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Send prompt to ollama. Includes image if selected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Prompt an Ollama senden, gegebenenfalls mit dem ausgewählten Bild.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send prompt</source>
        <translation>Prompt senden</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Filter list</source>
        <translation>Filterliste</translation>
    </message>
    <message>
        <source>Add filter</source>
        <translation>Filter hinzufügen</translation>
    </message>
    <message>
        <source>Currently active filters</source>
        <translation>Derzeit aktive Filter</translation>
    </message>
    <message>
        <source>Output directory of effects</source>
        <translation>Ausgabeverzeichnis der Effekte</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Quality of save image aka. compression.&lt;/p&gt;&lt;p&gt;0 - smallest file worst quality&lt;/p&gt;&lt;p&gt;100 - largest file best quality&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Qualität des gespeicherten Bildes, also die Kompression.&lt;/p&gt;&lt;p&gt;0 - kleinste Datei, schlechteste Qualität&lt;/p&gt;&lt;p&gt;100 - größte Datei, beste Qualität&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Reset currently applied filters to preview. &lt;/p&gt;&lt;p&gt;Debug helper button.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Die derzeit angewendeten Filter in der Vorschau zurücksetzen. &lt;/p&gt;&lt;p&gt;Hilfe bei der Fehlersuche.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Apply effect to all selected images&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Effekt auf alle ausgewählten Bilder anwenden&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>Metadaten:</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Media preview</source>
        <translation>Medienvorschau</translation>
    </message>
    <message>
        <source>Image preview</source>
        <translation>Bildvorschau</translation>
    </message>
    <message>
        <source>Video preview</source>
        <translation>Videovorschau</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Select w&amp;orking directory</source>
        <translation>Arbeitsverzeichnis &amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Import files</source>
        <translation>Dateien &amp;importieren</translation>
    </message>
    <message>
        <source>&amp;Save tags</source>
        <translation>Tags &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Inspect safetensor</source>
        <translation>Safetensors &amp;untersuchen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Edit image</source>
        <translation>&amp;Bild bearbeiten</translation>
    </message>
    <message>
        <source>Edit image</source>
        <translation>Bild bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Add tag</source>
        <translation>Tag &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add tag</source>
        <translation>Tag hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit video</source>
        <translation>&amp;Video bearbeiten</translation>
    </message>
    <message>
        <source>Edit video</source>
        <translation>Video bearbeiten</translation>
    </message>
    <message>
        <source>%1 hidden as they are saved</source>
        <translation>%1 ausgeblendet, da gespeichert</translation>
    </message>
    <message>
        <source>Restored the tags of %1 files, %2 sidecars have changed since.</source>
        <translation>Tags von %1 Dateien wiederhergestellt, %2 Tag-Dateien haben sich seither geändert.</translation>
    </message>
    <message>
        <source>extracted</source>
        <translation>extrahiert</translation>
    </message>
    <message>
        <source>Edit &amp;tag file</source>
        <translation>Ta&amp;g-Datei bearbeiten</translation>
    </message>
    <message>
        <source>Edit v&amp;ideo</source>
        <translation>&amp;Video bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Open in native app</source>
        <translation>In &amp;Anwendung öffnen</translation>
    </message>
    <message>
        <source>Show file in &amp;file browser</source>
        <translation>Im &amp;Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Copy co&amp;mment</source>
        <translation>Ko&amp;mmentar kopieren</translation>
    </message>
    <message>
        <source>E&amp;xtract workflow</source>
        <translation>Workflow e&amp;xtrahieren</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Copy files</source>
        <translation>Dateien &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Move files</source>
        <translation>Dateien v&amp;erschieben</translation>
    </message>
    <message>
        <source>&amp;Delete stray txt files</source>
        <translation>Verwaiste &amp;Txt-Dateien löschen</translation>
    </message>
    <message>
        <source>&amp;Delete file</source>
        <translation>Datei &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>An&amp;sicht</translation>
    </message>
    <message>
        <source>&amp;Icon</source>
        <translation>&amp;Symbole</translation>
    </message>
    <message>
        <source>&amp;List simple</source>
        <translation>&amp;Einfache Liste</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Pfad</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>&amp;Auflösung</translation>
    </message>
    <message>
        <source>Select directory</source>
        <translation>Verzeichnis wählen</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>kopiert</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>verschoben</translation>
    </message>
    <message>
        <source>Error, unable to copy file: %1 to: %2 error: %3</source>
        <translation>Fehler, Datei lässt sich nicht kopieren: %1 nach: %2 Fehler: %3</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation>%1: %2/%3</translation>
    </message>
    <message>
        <source>Delete files.</source>
        <translation>Dateien löschen.</translation>
    </message>
    <message>
        <source>Do you want to delete %1 files?</source>
        <translation>Ausgewählte Dateien löschen (%1)?</translation>
    </message>
    <message>
        <source>deleted %1/%2</source>
        <translation>gelöscht: %1/%2</translation>
    </message>
    <message>
        <source>Error, unable to move file to trash, error: %1</source>
        <translation>Fehler, Datei lässt sich nicht in den Papierkorb verschieben, Fehler: %1</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>gelöscht</translation>
    </message>
    <message>
        <source>Working path empty.</source>
        <translation>Kein Arbeitsverzeichnis angegeben.</translation>
    </message>
    <message>
        <source>Working path dont exists.</source>
        <translation>Das Arbeitsverzeichnis existiert nicht.</translation>
    </message>
    <message>
        <source>Failed to trash file: %1</source>
        <translation>Datei ließ sich nicht in den Papierkorb verschieben: %1</translation>
    </message>
    <message>
        <source>Found %1 stray txt files, moved to trash bin.</source>
        <translation>%1 verwaiste Txt-Dateien gefunden und in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>Set working directory. Path is empty.</source>
        <translation>Bitte ein Arbeitsverzeichnis angeben. Der Pfad ist leer.</translation>
    </message>
    <message>
        <source>Working directory don&apos;t exists at: %1</source>
        <translation>Das Arbeitsverzeichnis existiert nicht: %1</translation>
    </message>
    <message>
        <source>Select files to import</source>
        <translation>Dateien zum Importieren wählen</translation>
    </message>
    <message>
        <source>Files (*.*)</source>
        <translation>Dateien (*.*)</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>importiert</translation>
    </message>
    <message>
        <source>Unable to import file from %1, file already exist at: %2</source>
        <translation>Datei %1 lässt sich nicht importieren, es gibt bereits: %2</translation>
    </message>
    <message>
        <source>file already exist at: %1</source>
        <translation>es gibt bereits die Datei: %1</translation>
    </message>
    <message>
        <source>Unable to import file from %1, copy error: %2</source>
        <translation>Datei %1 lässt sich nicht importieren, Fehler beim Kopieren: %2</translation>
    </message>
    <message>
        <source>Imported file from %1 to %2</source>
        <translation>Datei %1 importiert nach %2</translation>
    </message>
    <message>
        <source>Import file error, unable to move to trash file: %1, error: %2</source>
        <translation>Fehler beim Importieren, Datei lässt sich nicht in den Papierkorb verschieben: %1, Fehler: %2</translation>
    </message>
    <message>
        <source>Open %1 file browsers?</source>
        <translation>%1 Dateimanager öffnen?</translation>
    </message>
    <message>
        <source>Error, no application to open file: %1</source>
        <translation>Fehler, keine Anwendung öffnet die Datei: %1</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Provide correct working directory path. Path is empty.</source>
        <translation>Bitte ein gültiges Arbeitsverzeichnis angeben. Der Pfad ist leer.</translation>
    </message>
    <message>
        <source>Provide correct working directory. Directory dont exists at: %1</source>
        <translation>Bitte ein gültiges Arbeitsverzeichnis angeben. Es existiert nicht: %1</translation>
    </message>
    <message>
        <source>Checking directory: %1</source>
        <translation>Verzeichnis wird gelesen: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Last modified</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>MediaType</source>
        <translation>Medientyp</translation>
    </message>
    <message>
        <source>FileFormat</source>
        <translation>Dateiformat</translation>
    </message>
    <message>
        <source>AudioBitRate</source>
        <translation>Audio-Bitrate</translation>
    </message>
    <message>
        <source>AudioCodec</source>
        <translation>Audio-Codec</translation>
    </message>
    <message>
        <source>VideoBitRate</source>
        <translation>Video-Bitrate</translation>
    </message>
    <message>
        <source>VideoCodec</source>
        <translation>Video-Codec</translation>
    </message>
    <message>
        <source>VideoFrameRate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Endung</translation>
    </message>
    <message>
        <source>Has txt file</source>
        <translation>Mit Txt-Datei</translation>
    </message>
    <message>
        <source>Found: %1 files</source>
        <translation>Gefundene Dateien: %1</translation>
    </message>
    <message>
        <source>Loaded in: %1 s</source>
        <translation>Geladen in: %1 s</translation>
    </message>
    <message>
        <source>Loading image previews</source>
        <translation>Vorschaubilder werden geladen</translation>
    </message>
    <message>
        <source>Image %2 preview [zoom: %1]</source>
        <translation>Bildvorschau %2 [Zoom: %1]</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>Oben mittig</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Center left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Center center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Center right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>Unten mittig</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Auto center</source>
        <translation>Automatisch zentrieren</translation>
    </message>
    <message>
        <source>Auto fit</source>
        <translation>Automatisch einpassen</translation>
    </message>
    <message>
        <source>%1 hidden by the filter line</source>
        <translation>%1 durch die Filterzeile ausgeblendet</translation>
    </message>
    <message>
        <source>Found %1 files.</source>
        <translation>Gefundene Dateien: %1.</translation>
    </message>
    <message>
        <source>No filter word: &quot;%1&quot;. Searching for the text.</source>
        <translation>Kein Filterwort: „%1“. Es wird nach dem Text gesucht.</translation>
    </message>
    <message>
        <source>Current selection [%1] tags:</source>
        <translation>Tags der Auswahl [%1]:</translation>
    </message>
    <message>
        <source>Selected: %1 items</source>
        <translation>Ausgewählt: %1 Einträge</translation>
    </message>
    <message>
        <source>Added %1 new items.</source>
        <translation>%1 neue Einträge hinzugefügt.</translation>
    </message>
    <message>
        <source>Removed %1 missing items.</source>
        <translation>%1 fehlende Einträge entfernt.</translation>
    </message>
    <message>
        <source>Refresh %1 working directory?</source>
        <translation>Arbeitsverzeichnis %1 neu einlesen?</translation>
    </message>
    <message>
        <source>All unsaved changes to tags will be discarded.</source>
        <translation>Alle nicht gespeicherten Änderungen an Tags gehen verloren.</translation>
    </message>
    <message>
        <source>Change %1 working directory?</source>
        <translation>Das Arbeitsverzeichnis %1 verlassen?</translation>
    </message>
    <message>
        <source>Change current working directory to %1?</source>
        <translation>Zum Arbeitsverzeichnis %1 wechseln?</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>Saved image: %1</source>
        <translation>Bild gespeichert: %1</translation>
    </message>
    <message>
        <source>Saved image as file: %1, file overwritten.</source>
        <translation>Bild gespeichert als Datei: %1, Datei überschrieben.</translation>
    </message>
    <message>
        <source>Saved image as file: %1, outside of working directory, not adding to list.</source>
        <translation>Bild gespeichert als Datei: %1, außerhalb des Arbeitsverzeichnisses, daher nicht in der Liste.</translation>
    </message>
    <message>
        <source>Adding saved image as file: %1</source>
        <translation>Gespeichertes Bild wird in die Liste aufgenommen: %1</translation>
    </message>
    <message>
        <source>Delete file?</source>
        <translation>Datei löschen?</translation>
    </message>
    <message>
        <source>Do you want to delete %1 file?</source>
        <translation>Möchten Sie die Datei %1 löschen?</translation>
    </message>
    <message>
        <source>Error %1 unable move file %2 to trash.</source>
        <translation>Fehler %1, Datei %2 lässt sich nicht in den Papierkorb verschieben.</translation>
    </message>
    <message>
        <source>Preview of effects is not saved, use Apply.</source>
        <translation>Die Vorschau der Effekte wird nicht gespeichert, dafür gibt es „Anwenden“.</translation>
    </message>
    <message>
        <source>Quality [%1]:</source>
        <translation>Qualität [%1]:</translation>
    </message>
    <message>
        <source>&amp;Toggle bypass</source>
        <translation>&amp;Umgehung umschalten</translation>
    </message>
    <message>
        <source>&amp;Bypass all</source>
        <translation>Alle um&amp;gehen</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>Aus&amp;wahl entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Error, unable to create out path %1 file will be not saved.</source>
        <translation>Fehler, Ausgabeverzeichnis %1 lässt sich nicht anlegen, nichts wird gespeichert.</translation>
    </message>
    <message>
        <source>Select image/s.</source>
        <translation>Bitte Bilder auswählen.</translation>
    </message>
    <message>
        <source>Error, image path is empty.</source>
        <translation>Fehler, der Pfad des Bildes ist leer.</translation>
    </message>
    <message>
        <source>no image was read</source>
        <translation>kein Bild gelesen</translation>
    </message>
    <message>
        <source>Applied filter to %1 of total: %2</source>
        <translation>Filter angewendet auf %1 von %2</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>gefiltert</translation>
    </message>
    <message>
        <source>Filters applied to: %1 files</source>
        <translation>Filter angewendet auf: %1 Dateien</translation>
    </message>
    <message>
        <source>Error, unable to write file: %1 error: %2</source>
        <translation>Fehler, Datei lässt sich nicht schreiben: %1 Fehler: %2</translation>
    </message>
    <message>
        <source>Select image.</source>
        <translation>Bitte ein Bild auswählen.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>No resize options specified.</source>
        <translation>Keine Art der Größenänderung gewählt.</translation>
    </message>
    <message>
        <source>Resized %1 of total: %2</source>
        <translation>Größe geändert bei %1 von %2</translation>
    </message>
    <message>
        <source>resized</source>
        <translation>Größe geändert</translation>
    </message>
    <message>
        <source>Resize completed, resized: %1 in %2 s</source>
        <translation>Größenänderung beendet: %1 Dateien in %2 s</translation>
    </message>
    <message>
        <source>Ollama status is online: %1</source>
        <translation>Ollama ist erreichbar: %1</translation>
    </message>
    <message>
        <source>No Ollama server answers at this address.</source>
        <translation>Unter dieser Adresse antwortet kein Ollama-Server.</translation>
    </message>
    <message>
        <source>Ollama aborting for %1</source>
        <translation>Ollama wird abgebrochen für %1</translation>
    </message>
    <message>
        <source>Abort prompt</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ollama processing done for %1</source>
        <translation>Ollama ist fertig mit %1</translation>
    </message>
    <message>
        <source>Ollama processing: %1 total %2</source>
        <translation>Ollama bearbeitet: %1 von %2</translation>
    </message>
    <message>
        <source>Error, image is null.</source>
        <translation>Fehler, das Bild ist leer.</translation>
    </message>
    <message>
        <source>Error processing: %1</source>
        <translation>Fehler bei: %1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>Safetensors-Datei öffnen</translation>
    </message>
    <message>
        <source>Safetensors (*.safetensors)</source>
        <translation>Safetensors (*.safetensors)</translation>
    </message>
    <message>
        <source>Inspecting %1 safetensors</source>
        <translation>Safetensors-Datei %1 wird untersucht</translation>
    </message>
    <message>
        <source>no backup name is left</source>
        <translation>kein Name für eine Sicherung ist mehr frei</translation>
    </message>
    <message>
        <source>the disk took only a part</source>
        <translation>nur ein Teil wurde geschrieben</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>File tag, txt, missing for: %1</source>
        <translation>Txt-Datei mit Tags fehlt: %1</translation>
    </message>
    <message>
        <source>saved %1/%2</source>
        <translation>gespeichert: %1/%2</translation>
    </message>
    <message>
        <source>Error, file name is empty.</source>
        <translation>Fehler, der Dateiname ist leer.</translation>
    </message>
    <message>
        <source>Failed to open txt file, error: %1</source>
        <translation>Txt-Datei lässt sich nicht öffnen, Fehler: %1</translation>
    </message>
    <message>
        <source>Failed to write data to txt file, error: %1</source>
        <translation>Txt-Datei lässt sich nicht schreiben, Fehler: %1</translation>
    </message>
    <message>
        <source>Error, image file name is empty.</source>
        <translation>Fehler, der Name der Bilddatei ist leer.</translation>
    </message>
    <message>
        <source>Shows the tags that contain the text. Ctrl+Enter adds the typed tag to the selected files.</source>
        <translation>Zeigt die Tags, die den Text enthalten. Strg+Eingabe fügt das eingetippte Tag den ausgewählten Dateien hinzu.</translation>
    </message>
    <message>
        <source>Added &quot;%1&quot; to %2 files.</source>
        <translation>„%1“ zu %2 Dateien hinzugefügt.</translation>
    </message>
    <message>
        <source>Unable to replace text, source &quot;%1&quot; or replacement &quot;%2&quot; is empty</source>
        <translation>Text lässt sich nicht ersetzen, der gesuchte „%1“ oder der neue „%2“ ist leer</translation>
    </message>
    <message>
        <source>Replacing text &quot;%1&quot; with &quot;%2&quot;.</source>
        <translation>Text „%1“ wird durch „%2“ ersetzt.</translation>
    </message>
    <message>
        <source>Source text is empty &quot;%1&quot;</source>
        <translation>Der gesuchte Text ist leer „%1“</translation>
    </message>
    <message>
        <source>Splitting text by &quot;%1&quot;.</source>
        <translation>Text wird an „%1“ geteilt.</translation>
    </message>
    <message>
        <source>All tags</source>
        <translation>Alle Tags</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>Anzahl: %1</translation>
    </message>
    <message>
        <source>%1 hidden by the tag search</source>
        <translation>%1 durch die Tag-Suche ausgeblendet</translation>
    </message>
    <message>
        <source>Found %1 images for tag: %2</source>
        <translation>Gefundene Bilder: %1, mit Tag: %2</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>In Zwischenablage &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>R&amp;eplace text</source>
        <translation>Text &amp;ersetzen</translation>
    </message>
    <message>
        <source>Spli&amp;t text</source>
        <translation>Text &amp;teilen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Aktualisie&amp;ren</translation>
    </message>
    <message>
        <source>View &amp;list</source>
        <translation>Als L&amp;iste</translation>
    </message>
    <message>
        <source>View &amp;icon</source>
        <translation>Als &amp;Symbole</translation>
    </message>
    <message>
        <source>No working directory to save the frame to.</source>
        <translation>Kein Arbeitsverzeichnis, in dem das Einzelbild gespeichert werden kann.</translation>
    </message>
    <message>
        <source>Error, unable to save file to: %1</source>
        <translation>Fehler, Datei lässt sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>grabbed</source>
        <translation>entnommen</translation>
    </message>
    <message>
        <source>Saved frame to: %1</source>
        <translation>Einzelbild gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>MediaFormats</name>
    <message>
        <source>Images (</source>
        <translation>Bilder (</translation>
    </message>
    <message>
        <source>Video (</source>
        <translation>Videos (</translation>
    </message>
</context>
<context>
    <name>MediaQuery</name>
    <message>
        <source>no sidecar on the disk, or an empty one; alone in the line</source>
        <translation>keine oder eine leere Txt-Datei; allein in der Zeile</translation>
    </message>
    <message>
        <source>files with this tag: :tag sky, :tag &quot;blue sky&quot;</source>
        <translation>Dateien mit diesem Tag: :tag sky, :tag &quot;blue sky&quot;</translation>
    </message>
    <message>
        <source>files without this tag</source>
        <translation>Dateien ohne dieses Tag</translation>
    </message>
    <message>
        <source>number of tags: :tags=0</source>
        <translation>Anzahl der Tags: :tags=0</translation>
    </message>
    <message>
        <source>fewer tags than: :tags&lt;5</source>
        <translation>weniger Tags als: :tags&lt;5</translation>
    </message>
    <message>
        <source>more tags than: :tags&gt;20</source>
        <translation>mehr Tags als: :tags&gt;20</translation>
    </message>
    <message>
        <source>width in pixels, also with &lt; and =: :w&gt;1024</source>
        <translation>Breite in Pixeln, auch mit &lt; und =: :w&gt;1024</translation>
    </message>
    <message>
        <source>height in pixels, also with &gt; and =: :h&lt;512</source>
        <translation>Höhe in Pixeln, auch mit &gt; und =: :h&lt;512</translation>
    </message>
    <message>
        <source>width to height, within one percent: :ratio 3:2</source>
        <translation>Breite zu Höhe, auf ein Prozent genau: :ratio 3:2</translation>
    </message>
    <message>
        <source>clips</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>files with tags that are not saved</source>
        <translation>Dateien mit nicht gespeicherten Tags</translation>
    </message>
    <message>
        <source>files that have a tag twice</source>
        <translation>Dateien, die ein Tag doppelt haben</translation>
    </message>
</context>
<context>
    <name>OllamaApi</name>
    <message>
        <source>Thinking:</source>
        <translation>Überlegung:</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preview size:</source>
        <translation>Vorschaugröße:</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Preview thread count:</source>
        <translation>Threads für Vorschau:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Thread count used to load image previews.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Anzahl der Threads, die Vorschaubilder laden.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Files import</source>
        <translation>Import von Dateien</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Delete original source file.&lt;/p&gt;&lt;p&gt;Example importing c:\file.jpg to c:\trainData\file.jpg will move file c:\file.jpg to trash.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Die Quelldatei löschen.&lt;/p&gt;&lt;p&gt;Beispiel: Der Import von c:\file.jpg nach c:\trainData\file.jpg verschiebt c:\file.jpg in den Papierkorb.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>during &quot;Files import&quot; remove source</source>
        <translation>beim Import die Quelldatei entfernen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Auto rename file, format fileName_X.suffix, if working directory already contains file withh same name.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Die Datei automatisch umbenennen, in der Form Dateiname_X.Endung, wenn das Arbeitsverzeichnis schon eine Datei dieses Namens enthält.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>auto rename</source>
        <translation>automatisch umbenennen</translation>
    </message>
    <message>
        <source>Safetensors options</source>
        <translation>Optionen für Safetensors</translation>
    </message>
    <message>
        <source>include meta info</source>
        <translation>Metadaten anzeigen</translation>
    </message>
    <message>
        <source>include tensors info</source>
        <translation>Tensoren anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ProfilesEditWidget</name>
    <message>
        <source>Profiles editor</source>
        <translation>Profil bearbeiten</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Data size: 0</source>
        <translation>Datenmenge: 0</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Data size: %1</source>
        <translation>Datenmenge: %1</translation>
    </message>
</context>
<context>
    <name>ProfilesWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Move profile up</source>
        <translation>Profil nach oben</translation>
    </message>
    <message>
        <source>Move profile down</source>
        <translation>Profil nach unten</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>Profil bearbeiten</translation>
    </message>
    <message>
        <source>Remove profile</source>
        <translation>Profil entfernen</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil: %1</translation>
    </message>
</context>
<context>
    <name>PromptProgress</name>
    <message>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>noch %1 h</translation>
    </message>
    <message>
        <source>captions %1/%2</source>
        <translation>Beschreibungen %1/%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>QImageWriter</name>
    <message>
        <source>Device not writable</source>
        <translation>Gerät nicht beschreibbar</translation>
    </message>
</context>
<context>
    <name>ReplaceTextDialog</name>
    <message>
        <source>Replace tags text</source>
        <translation>Text in Tags ersetzen</translation>
    </message>
    <message>
        <source>Replace text:</source>
        <translation>Ersetze Text:</translation>
    </message>
    <message>
        <source>with:</source>
        <translation>durch:</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Split tags by</source>
        <translation>Tags teilen</translation>
    </message>
    <message>
        <source>Split by:</source>
        <translation>Teilen an:</translation>
    </message>
</context>
<context>
    <name>SafetensorsDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Content of the file</source>
        <translation>Inhalt der Datei</translation>
    </message>
    <message>
        <source>metainfo</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>tensor</source>
        <translation>Tensoren</translation>
    </message>
    <message>
        <source>Load previous file</source>
        <translation>Vorherige Datei laden</translation>
    </message>
    <message>
        <source>Load previous file in current directory</source>
        <translation>Vorherige Datei im Verzeichnis laden</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Load next file</source>
        <translation>Nächste Datei laden</translation>
    </message>
    <message>
        <source>Load next file in current directory</source>
        <translation>Nächste Datei im Verzeichnis laden</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Reveal in file browser</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>Open safetensors file</source>
        <translation>Safetensors-Datei öffnen</translation>
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
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings data:</source>
        <translation>Gespeicherte Einstellungen:</translation>
    </message>
    <message>
        <source>Remove selected entries</source>
        <translation>Ausgewählte Einträge entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>%1 %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>%1, %2 failed</source>
        <translation>%1, %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Last result</source>
        <translation>Letztes Ergebnis</translation>
    </message>
    <message>
        <source>Progress of the batch</source>
        <translation>Fortschritt des Stapels</translation>
    </message>
    <message>
        <source>Shown files</source>
        <translation>Gezeigte Dateien</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Nicht gespeicherte Dateien</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>Click to show all files.</source>
        <translation>Ein Klick zeigt alle Dateien.</translation>
    </message>
    <message>
        <source>%1 unsaved</source>
        <translation>%1 ungespeichert</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Save tags</source>
        <translation>Tags speichern</translation>
    </message>
    <message>
        <source>Show unsaved files</source>
        <translation>Nicht gespeicherte Dateien zeigen</translation>
    </message>
    <message>
        <source>Restore %1 files of %2</source>
        <translation>%1 Dateien vom %2 wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>TagRecord</name>
    <message>
        <source>import %1 files</source>
        <translation>%1 Dateien importieren</translation>
    </message>
    <message>
        <source>edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>add %1 to %2 files</source>
        <translation>%1 zu %2 Dateien hinzufügen</translation>
    </message>
    <message>
        <source>delete %1 from %2 files</source>
        <translation>%1 aus %2 Dateien löschen</translation>
    </message>
    <message>
        <source>replace %1 in %2 files</source>
        <translation>%1 in %2 Dateien ersetzen</translation>
    </message>
    <message>
        <source>split by %1 in %2 files</source>
        <translation>an %1 in %2 Dateien teilen</translation>
    </message>
    <message>
        <source>save the text of %1</source>
        <translation>Text von %1 speichern</translation>
    </message>
    <message>
        <source>captions of %1 files</source>
        <translation>Beschreibungen von %1 Dateien</translation>
    </message>
    <message>
        <source>restore %1 files</source>
        <translation>%1 Dateien wiederherstellen</translation>
    </message>
</context>
<context>
    <name>TagsExportDialog</name>
    <message>
        <source>All tags</source>
        <translation>Alle Tags</translation>
    </message>
    <message>
        <source>remove duplicates</source>
        <translation>doppelte entfernen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Remove duplicated tags&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Doppelte Tags entfernen&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>append count</source>
        <translation>Anzahl anhängen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Append number of occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Anhängen, wie oft ein Tag vorkommt&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort by count</source>
        <translation>nach Anzahl sortieren</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sort by occurances of tag&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Nach der Häufigkeit der Tags sortieren&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>sort</source>
        <translation>sortieren</translation>
    </message>
    <message>
        <source>Sort direction</source>
        <translation>Sortierrichtung</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Aufsteigend</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Absteigend</translation>
    </message>
    <message>
        <source>Case sensitivity</source>
        <translation>Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>CaseSensitive</source>
        <translation>Groß/klein beachten</translation>
    </message>
    <message>
        <source>CaseInsensitive</source>
        <translation>Groß/klein ignorieren</translation>
    </message>
    <message>
        <source>Tags count: 0</source>
        <translation>Anzahl der Tags: 0</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Tags count: %1</source>
        <translation>Anzahl der Tags: %1</translation>
    </message>
</context>
<context>
    <name>Themes</name>
    <message>
        <source>Os theme</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Windows11</source>
        <translation>Windows11</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light Win95</source>
        <translation>Win95 hell</translation>
    </message>
    <message>
        <source>Light Fusion</source>
        <translation>Fusion hell</translation>
    </message>
    <message>
        <source>Emerald</source>
        <translation>Smaragd</translation>
    </message>
    <message>
        <source>Sapphire</source>
        <translation>Saphir</translation>
    </message>
    <message>
        <source>Ruby</source>
        <translation>Rubin</translation>
    </message>
    <message>
        <source>CobaltSky</source>
        <translation>Kobalthimmel</translation>
    </message>
    <message>
        <source>VioletAngelPurple</source>
        <translation>Engelsviolett</translation>
    </message>
    <message>
        <source>ScarletDevilRed</source>
        <translation>Teufelsrot</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Pizza Brown</source>
        <translation>Pizzabraun</translation>
    </message>
    <message>
        <source>Baby Pastel</source>
        <translation>Zartes Pastell</translation>
    </message>
    <message>
        <source>Untouched Lagoon</source>
        <translation>Unberührte Lagune</translation>
    </message>
    <message>
        <source>Grey Matter</source>
        <translation>Graue Zellen</translation>
    </message>
    <message>
        <source>Dark Fusion Blue</source>
        <translation>Fusion dunkelblau</translation>
    </message>
    <message>
        <source>Dark Fusion</source>
        <translation>Fusion dunkel</translation>
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
        <translation>Kein Dateimanager</translation>
    </message>
    <message>
        <source>Could not find a file manager to show %1.</source>
        <translation>Kein Dateimanager gefunden, um %1 zu zeigen.</translation>
    </message>
    <message>
        <source>Launching Windows Explorer Failed</source>
        <translation>Windows-Explorer lässt sich nicht starten</translation>
    </message>
    <message>
        <source>Could not find explorer.exe in path to launch Windows Explorer.</source>
        <translation>explorer.exe wurde im Suchpfad nicht gefunden, der Windows-Explorer startet daher nicht.</translation>
    </message>
</context>
<context>
    <name>VideoPreviewWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>VideoWidget</name>
    <message>
        <source>Video editor</source>
        <translation>Video-Editor</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Frame previous</source>
        <translation>Vorheriges Einzelbild</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame previous&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Vorheriges Einzelbild&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Frame next</source>
        <translation>Nächstes Einzelbild</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Frame next&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Nächstes Einzelbild&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open previous file</source>
        <translation>Vorherige Datei öffnen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open previous file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Vorherige Datei im Verzeichnis öffnen&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Open next file</source>
        <translation>Nächste Datei öffnen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Open next file in irectory&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Nächste Datei im Verzeichnis öffnen&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Grab current frame</source>
        <translation>Aktuelles Einzelbild entnehmen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Grab series of frames</source>
        <translation>Reihe von Einzelbildern entnehmen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab series of frames&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Reihe von Einzelbildern entnehmen&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames from files</source>
        <translation>Einzelbilder aus Dateien entnehmen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Grab frames from files&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Einzelbilder aus Dateien entnehmen&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Open video</source>
        <translation>Video ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open &amp;URL</source>
        <translation>&amp;URL öffnen</translation>
    </message>
    <message>
        <source>&amp;Frame next</source>
        <translation>&amp;Nächstes Einzelbild</translation>
    </message>
    <message>
        <source>&amp;Frame prev</source>
        <translation>&amp;Vorheriges Einzelbild</translation>
    </message>
    <message>
        <source>Frame prev</source>
        <translation>Vorheriges Einzelbild</translation>
    </message>
    <message>
        <source>&amp;Grab frame</source>
        <translation>Einzelbild &amp;entnehmen</translation>
    </message>
    <message>
        <source>Grab frame</source>
        <translation>Einzelbild entnehmen</translation>
    </message>
    <message>
        <source>Grab current frame [%1]</source>
        <translation>Aktuelles Einzelbild entnehmen [%1]</translation>
    </message>
    <message>
        <source>Last frame.</source>
        <translation>Letztes Einzelbild.</translation>
    </message>
    <message>
        <source>First frame.</source>
        <translation>Erstes Einzelbild.</translation>
    </message>
    <message>
        <source>Video editor - %1</source>
        <translation>Video-Editor - %1</translation>
    </message>
    <message>
        <source>Open video file</source>
        <translation>Videodatei öffnen</translation>
    </message>
    <message>
        <source>Open video URL</source>
        <translation>Video-URL öffnen</translation>
    </message>
    <message>
        <source>Video URL:</source>
        <translation>URL des Videos:</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Zustand: %1</translation>
    </message>
    <message>
        <source>no media</source>
        <translation>kein Medium</translation>
    </message>
    <message>
        <source>loading media</source>
        <translation>Medium wird geladen</translation>
    </message>
    <message>
        <source>loaded media</source>
        <translation>Medium geladen</translation>
    </message>
    <message>
        <source>stalled media</source>
        <translation>Wiedergabe stockt</translation>
    </message>
    <message>
        <source>buffering media</source>
        <translation>Medium wird gepuffert</translation>
    </message>
    <message>
        <source>buffered media</source>
        <translation>Medium gepuffert</translation>
    </message>
    <message>
        <source>end of media</source>
        <translation>Ende des Mediums</translation>
    </message>
    <message>
        <source>invalid media</source>
        <translation>ungültiges Medium</translation>
    </message>
    <message>
        <source>Seek speed modifier: %1 at fps: %2</source>
        <translation>Suchgeschwindigkeit: %1 bei Bildern/s: %2</translation>
    </message>
    <message>
        <source>No frame is shown.</source>
        <translation>Es wird kein Einzelbild gezeigt.</translation>
    </message>
    <message>
        <source>No frame to grab.</source>
        <translation>Kein Einzelbild zu entnehmen.</translation>
    </message>
    <message>
        <source>Source either empty or invalid: %1. Set correct media.</source>
        <translation>Quelle leer oder ungültig: %1. Bitte ein gültiges Medium wählen.</translation>
    </message>
</context>
<context>
    <name>VideoWidgetFrameGrabber</name>
    <message>
        <source>Frame grabber</source>
        <translation>Einzelbilder entnehmen</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Einzelbilder</translation>
    </message>
    <message>
        <source>Start ms:</source>
        <translation>Beginn (ms):</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Media start ms.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Beginn im Medium in Millisekunden.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Frame count:</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Number of frames to grab. Interval between frames is same.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Anzahl der zu entnehmenden Einzelbilder, in gleichen Abständen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Grab frames</source>
        <translation>Einzelbilder entnehmen</translation>
    </message>
    <message>
        <source>Select video files</source>
        <translation>Videodateien wählen</translation>
    </message>
    <message>
        <source>Add all</source>
        <translation>Alle hinzufügen</translation>
    </message>
    <message>
        <source>Add selected</source>
        <translation>Auswahl hinzufügen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Frame grabber: %1</source>
        <translation>Einzelbilder entnehmen: %1</translation>
    </message>
    <message>
        <source>Videos (*.avi *.mpeg *.ogv *.mp4 *.mkv)</source>
        <translation>Videos (*.avi *.mpeg *.ogv *.mp4 *.mkv)</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Add &amp;selected</source>
        <translation>Aus&amp;wahl hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;all</source>
        <translation>&amp;Alle hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove selected</source>
        <translation>Auswahl &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
</TS>
