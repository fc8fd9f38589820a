<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Plinkett</source>
        <translation>Über Plinkett</translation>
    </message>
    <message>
        <source>Makes printed books and boards talk.</source>
        <translation>Bringt gedruckte Bücher und Tafeln zum Sprechen.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Lizenz: %1</translation>
    </message>
    <message>
        <source>Libraries and their licences:</source>
        <translation>Bibliotheken und ihre Lizenzen:</translation>
    </message>
    <message>
        <source>Tells the version, to be named when something goes wrong, and the licences</source>
        <translation>Sagt die Version, die man nennt, wenn etwas nicht geht, und die Lizenzen</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>There is not enough memory to go on, so Plinkett ends here. What you had not saved is kept as it was some seconds ago: open the book again to get it back.</source>
        <translation>Der Speicher reicht nicht mehr aus, darum endet Plinkett hier. Was noch nicht gespeichert war, ist so aufbewahrt, wie es vor einigen Sekunden war: Öffnen Sie das Buch wieder, um es zurückzubekommen.</translation>
    </message>
</context>
<context>
    <name>AreaCommands</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>Takes the selected areas to the clipboard</source>
        <translation>Nimmt die ausgewählten Bereiche in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected areas to the clipboard</source>
        <translation>Kopiert die ausgewählten Bereiche in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Brings the areas on the clipboard onto this page: under their names, which are counted up on the page that they come from</source>
        <translation>Bringt die Bereiche aus der Zwischenablage auf diese Seite: unter ihren Namen, die auf der Seite, von der sie kommen, weitergezählt werden</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Copies the selected areas beside themselves</source>
        <translation>Kopiert die ausgewählten Bereiche neben sich</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the selected areas</source>
        <translation>Löscht die ausgewählten Bereiche</translation>
    </message>
    <message>
        <source>Where areas overlap, the one that comes first speaks</source>
        <translation>Wo Bereiche sich überdecken, spricht der erste</translation>
    </message>
    <message>
        <source>Bring &amp;forward</source>
        <translation>Nach &amp;vorn</translation>
    </message>
    <message>
        <source>Send &amp;backward</source>
        <translation>Nach &amp;hinten</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Selects all areas of the page</source>
        <translation>Wählt alle Bereiche der Seite aus</translation>
    </message>
    <message>
        <source>Areas copied: %1</source>
        <translation>Bereiche kopiert: %1</translation>
    </message>
    <message>
        <source>Areas cut: %1</source>
        <translation>Bereiche ausgeschnitten: %1</translation>
    </message>
    <message>
        <source>The clipboard holds no areas.</source>
        <translation>In der Zwischenablage sind keine Bereiche.</translation>
    </message>
    <message>
        <source>The areas on the clipboard cannot be read: line %1 is not as it should be.</source>
        <translation>Die Bereiche in der Zwischenablage sind nicht lesbar: Zeile %1 ist nicht, wie sie sein sollte.</translation>
    </message>
    <message>
        <source>Areas pasted: %1</source>
        <translation>Bereiche eingefügt: %1</translation>
    </message>
    <message>
        <source>%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.</source>
        <translation>%1 ist Bereich %2 von %3. Wo Bereiche sich überdecken, spricht der erste.</translation>
    </message>
</context>
<context>
    <name>BookPrinting</name>
    <message>
        <source>&amp;PDF of the book...</source>
        <translation>&amp;PDF des Buchs...</translation>
    </message>
    <message>
        <source>&amp;Symbols and legend...</source>
        <translation>&amp;Zeichen und Legende...</translation>
    </message>
    <message>
        <source>Printer&apos;s &amp;test page...</source>
        <translation>&amp;Testseite des Druckers...</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Es gibt noch kein Bild</translation>
    </message>
    <message>
        <source>Creating the PDF...</source>
        <translation>Das PDF wird erzeugt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The PDF was created: %1</source>
        <translation>Das PDF wurde erzeugt: %1</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Das Erzeugen wurde abgebrochen</translation>
    </message>
    <message>
        <source>The PDF was not created: %1</source>
        <translation>Das PDF wurde nicht erzeugt: %1</translation>
    </message>
    <message>
        <source>Making the printer&apos;s test page...</source>
        <translation>Die Testseite des Druckers wird erzeugt...</translation>
    </message>
    <message>
        <source>Print %1 at 100 %, and copy %2 onto the pen</source>
        <translation>%1 bei 100 % drucken und %2 auf den Stift kopieren</translation>
    </message>
    <message>
        <source>The test page was not created: %1</source>
        <translation>Die Testseite wurde nicht erzeugt: %1</translation>
    </message>
</context>
<context>
    <name>DotPreview</name>
    <message>
        <source>Preview: a square centimetre of the page</source>
        <translation>Vorschau: ein Quadratzentimeter der Seite</translation>
    </message>
    <message>
        <source>A square centimetre of the page: a pixel of the screen is one of the printer</source>
        <translation>Ein Quadratzentimeter der Seite: Ein Bildpunkt des Bildschirms ist einer des Druckers</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>The pen says only one of these texts, at random</source>
        <translation>Der Stift sagt nur einen dieser Texte, durch Zufall</translation>
    </message>
    <message>
        <source>Say one after the other</source>
        <translation>Einen nach dem anderen sagen</translation>
    </message>
    <message>
        <source>The saved project has one percent sign less here</source>
        <translation>Im gespeicherten Projekt steht hier ein Prozentzeichen weniger</translation>
    </message>
    <message>
        <source>Write one percent sign</source>
        <translation>Ein Prozentzeichen schreiben</translation>
    </message>
    <message>
        <source>This text shares its audio file with &quot;%1&quot; in line %2, and the pen says that one here, too</source>
        <translation>Dieser Text teilt seine Audiodatei mit „%1“ in Zeile %2, und der Stift sagt auch hier jenen</translation>
    </message>
    <message>
        <source>This text is too long: the name of its audio file has %1 characters, and 251 are the most</source>
        <translation>Dieser Text ist zu lang: Der Name seiner Audiodatei hat %1 Zeichen, höchstens 251 sind möglich</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a language, so the texts of this voice are not spoken</source>
        <translation>„%1“ kann keine Sprache sein, deshalb werden die Texte dieser Stimme nicht gesprochen</translation>
    </message>
    <message>
        <source>When this is neither 0 nor 1, the pen does neither what stands behind if nor what stands behind else</source>
        <translation>Ist dies weder 0 noch 1, tut der Stift weder, was hinter if, noch, was hinter else steht</translation>
    </message>
    <message>
        <source>Compare with 0</source>
        <translation>Mit 0 vergleichen</translation>
    </message>
    <message>
        <source>&amp; and | bind tighter than comparisons: each comparison needs parentheses of its own</source>
        <translation>&amp; und | binden stärker als Vergleiche: Jeder Vergleich braucht eigene Klammern</translation>
    </message>
    <message>
        <source>Put each comparison into parentheses</source>
        <translation>Jeden Vergleich in Klammern setzen</translation>
    </message>
    <message>
        <source>What falls below 0 here goes on down from 65535, so the comparison takes it for large</source>
        <translation>Was hier unter 0 fällt, geht von 65535 an abwärts weiter; der Vergleich hält es für groß</translation>
    </message>
    <message>
        <source>Add on the other side</source>
        <translation>Auf der anderen Seite addieren</translation>
    </message>
    <message>
        <source>%1 is above 65535 and becomes %2</source>
        <translation>%1 liegt über 65535 und wird zu %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is set here, but &apos;%2&apos; is read: names are read in small letters, and these are two variables</source>
        <translation>„%1“ wird hier gesetzt, aber „%2“ wird gelesen: Namen werden in Kleinbuchstaben gelesen, und dies sind zwei Variablen</translation>
    </message>
    <message>
        <source>Write it in small letters</source>
        <translation>In Kleinbuchstaben schreiben</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is set but never read</source>
        <translation>Die Variable „%1“ wird gesetzt, aber nie gelesen</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is read but never set, so it is always 0</source>
        <translation>Die Variable „%1“ wird gelesen, aber nie gesetzt, ist also immer 0</translation>
    </message>
    <message>
        <source>No game can be built with a variable named &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Mit einer Variablen namens „%1“ lässt sich kein Spiel bauen: Möglich sind Buchstaben, Ziffern und Unterstriche, aber keine Ziffer am Anfang</translation>
    </message>
    <message>
        <source>The compiler uses the name &apos;%1&apos; itself; one of the two would be lost</source>
        <translation>Den Namen „%1“ benutzt der Compiler selbst; eines von beiden ginge verloren</translation>
    </message>
    <message>
        <source>No game can be built with a goto to &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Mit einem goto zu „%1“ lässt sich kein Spiel bauen: Möglich sind Buchstaben, Ziffern und Unterstriche, aber keine Ziffer am Anfang</translation>
    </message>
    <message>
        <source>This stands outside of every sub and is never carried out</source>
        <translation>Dies steht außerhalb jedes sub und wird nie ausgeführt</translation>
    </message>
    <message>
        <source>The sub &apos;%1&apos; has no end, so no game can be built</source>
        <translation>Dem sub „%1“ fehlt das Ende, so lässt sich kein Spiel bauen</translation>
    </message>
    <message>
        <source>End it behind its last line</source>
        <translation>Hinter seiner letzten Zeile beenden</translation>
    </message>
    <message>
        <source>Add an empty sub</source>
        <translation>Einen leeren sub anfügen</translation>
    </message>
    <message>
        <source>The pen never comes to this: it stands behind a goto</source>
        <translation>Hierher kommt der Stift nie: Es steht hinter einem goto</translation>
    </message>
    <message>
        <source>This belongs to the select in line %1, which has ended, and not to the one in line %2</source>
        <translation>Dies gehört zum select in Zeile %1, das schon beendet ist, und nicht zu dem in Zeile %2</translation>
    </message>
    <message>
        <source>The pen goes round for ever and says nothing: %1</source>
        <translation>Der Stift läuft endlos im Kreis und sagt nichts: %1</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with this name</source>
        <translation>Bereich „%1“ auf Seite %2: Mit diesem Namen lässt sich kein Spiel bauen</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the game reads this name as &apos;%3&apos;</source>
        <translation>Bereich „%1“ auf Seite %2: Das Spiel liest diesen Namen als „%3“</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with a sub whose name is a number</source>
        <translation>Bereich „%1“ auf Seite %2: Mit einem sub, dessen Name eine Zahl ist, lässt sich kein Spiel bauen</translation>
    </message>
    <message>
        <source>Give it a free number</source>
        <translation>Eine freie Nummer geben</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: there is no dot pattern for the number %3, so nothing is printed</source>
        <translation>Bereich „%1“ auf Seite %2: Für die Nummer %3 gibt es kein Punktmuster, also wird nichts gedruckt</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is below 1000, where the pen looks for books and its own signs</source>
        <translation>Bereich „%1“ auf Seite %2: Die Nummer %3 liegt unter 1000, wo der Stift nach Büchern und eigenen Zeichen sucht</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is above 14999 and the pen does not know it</source>
        <translation>Bereich „%1“ auf Seite %2: Die Nummer %3 liegt über 14999, und der Stift kennt sie nicht</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the area &apos;%4&apos; has the number %3, too; the pen takes both for one</source>
        <translation>Bereich „%1“ auf Seite %2: Auch der Bereich „%4“ hat die Nummer %3; der Stift hält beide für einen</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: in the last build &apos;%4&apos; had the number %3; the next build gives it another one</source>
        <translation>Bereich „%1“ auf Seite %2: Beim letzten Bau hatte „%4“ die Nummer %3; der nächste gibt ihm eine andere</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it are black in the picture, where the pen sees no dots; 30 % are the most</source>
        <translation>Bereich „%1“ auf Seite %2: %3 % davon sind im Bild schwarz, wo der Stift keine Punkte sieht; 30 % sind das Höchste</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 has fewer than three corners, so nothing is printed</source>
        <translation>Bereich „%1“ auf Seite %2 hat weniger als drei Ecken, also wird nichts gedruckt</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: its edges cross, and what is enclosed twice is left out</source>
        <translation>Bereich „%1“ auf Seite %2: Seine Kanten kreuzen sich, und was doppelt umschlossen ist, bleibt frei</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it lie outside of the picture</source>
        <translation>Bereich „%1“ auf Seite %2: %3 % davon liegen außerhalb des Bildes</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 lies wholly below areas that come before it, so the pen never finds it</source>
        <translation>Bereich „%1“ auf Seite %2 liegt ganz unter Bereichen, die vor ihm kommen, also findet der Stift ihn nie</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 is %3 mm wide on paper where it is widest; the pen needs 8 mm</source>
        <translation>Bereich „%1“ auf Seite %2 ist an seiner breitesten Stelle auf dem Papier %3 mm breit; der Stift braucht 8 mm</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the picture is too dark there for black dots, its lightness is %3 %; 35 % are needed</source>
        <translation>Bereich „%1“ auf Seite %2: Das Bild ist dort zu dunkel für schwarze Punkte, seine Helligkeit ist %3 %; nötig sind 35 %</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the script has no sub of this name, so a touch does nothing</source>
        <translation>Bereich „%1“ auf Seite %2: Das Skript hat kein sub dieses Namens, also tut eine Berührung nichts</translation>
    </message>
    <message>
        <source>No area and no goto leads to the sub &apos;%1&apos;, so it is never carried out</source>
        <translation>Kein Bereich und kein goto führt zum sub „%1“, also wird es nie ausgeführt</translation>
    </message>
    <message>
        <source>The script has %1 steps; %2 are the most that a game can have</source>
        <translation>Das Skript hat %1 Schritte; %2 sind das Höchste, was ein Spiel haben kann</translation>
    </message>
    <message>
        <source>The name of the product cannot have these characters: %1</source>
        <translation>Der Name des Produkts kann diese Zeichen nicht haben: %1</translation>
    </message>
    <message>
        <source>The name of the product has %1 characters; no game can be built with more than 49</source>
        <translation>Der Name des Produkts hat %1 Zeichen; mit mehr als 49 lässt sich kein Spiel bauen</translation>
    </message>
    <message>
        <source>The game file cannot hold these characters of the product&apos;s name: %1</source>
        <translation>Die Spieldatei kann diese Zeichen aus dem Namen des Produkts nicht aufnehmen: %1</translation>
    </message>
    <message>
        <source>Other books in this folder have the number %1, too, and the same picture files: %2</source>
        <translation>Auch andere Bücher in diesem Ordner haben die Nummer %1 und dieselben Bilddateien: %2</translation>
    </message>
    <message>
        <source>The number of the product is %1; books made at home have 900 to 950, others may be those of a bought book</source>
        <translation>Die Nummer des Produkts ist %1; selbst gemachte Bücher haben 900 bis 950, andere kann ein gekauftes Buch haben</translation>
    </message>
    <message>
        <source>No area has the product&apos;s number %1: nothing on the pages starts the book, so a page of symbols has to</source>
        <translation>Kein Bereich hat die Nummer des Produkts, %1: Nichts auf den Seiten startet das Buch, ein Blatt mit Zeichen muss es tun</translation>
    </message>
    <message>
        <source>The script has %1 steps of the %2 that a game can have</source>
        <translation>Das Skript hat %1 der %2 Schritte, die ein Spiel haben kann</translation>
    </message>
    <message>
        <source>Page %1 has no areas; other programs that save the project lose it</source>
        <translation>Seite %1 hat keine Bereiche; andere Programme, die das Projekt speichern, verlieren sie</translation>
    </message>
    <message>
        <source>Page %1: on its paper the picture has %2 dpi; below 150 its pixels can be seen</source>
        <translation>Seite %1: Auf seinem Papier hat das Bild %2 dpi; unter 150 sieht man seine Bildpunkte</translation>
    </message>
    <message>
        <source>Print it with 1200 dpi</source>
        <translation>Mit 1200 dpi drucken</translation>
    </message>
    <message>
        <source>Page %1: with %2 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right</source>
        <translation>Seite %1: Mit %2 dpi werden die Punkte nicht gleichmäßig gedruckt; richtig sind 600 dpi oder das Doppelte, Vierfache</translation>
    </message>
    <message>
        <source>Page %1: picture and paper have other proportions, so %2 mm of the paper stay blank</source>
        <translation>Seite %1: Bild und Papier haben andere Seitenverhältnisse, also bleiben %2 mm des Papiers leer</translation>
    </message>
</context>
<context>
    <name>KVQtFindDialog</name>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Goes to the next place that holds the text (Return); F3 does it in the script</source>
        <translation>Geht zur nächsten Stelle mit dem Text (Eingabetaste); F3 tut es im Skript</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replaces what is selected, or else the next place that holds the text</source>
        <translation>Ersetzt, was ausgewählt ist, oder sonst die nächste Fundstelle</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>Replaces the text wherever it stands in the script; Undo brings all of it back</source>
        <translation>Ersetzt den Text überall im Skript; Rückgängig bringt alles wieder</translation>
    </message>
    <message>
        <source>Search &amp;backwards</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Searches from the caret toward the beginning instead of the end</source>
        <translation>Sucht von der Schreibmarke zum Anfang hin statt zum Ende</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>The text that takes its place; empty deletes what is found</source>
        <translation>Der Text, der an seine Stelle tritt; leer löscht, was gefunden wird</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find &amp;what:</source>
        <translation>Suchen &amp;nach:</translation>
    </message>
    <message>
        <source>The text that is searched for; capital and small letters differ</source>
        <translation>Der Text, der gesucht wird; Groß- und Kleinbuchstaben sind verschieden</translation>
    </message>
</context>
<context>
    <name>KVQtHighlightEditCtrlInlay</name>
    <message>
        <source>Go to line</source>
        <translation>Zu Zeile gehen</translation>
    </message>
    <message>
        <source>&amp;Line (1 to %1):</source>
        <translation>&amp;Zeile (1 bis %1):</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehen</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Kontextmenü</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>&amp;Ausschneiden	Strg+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopieren	Strg+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Einfügen	Strg+V</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>A&amp;lles auswählen	Strg+A</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F3</source>
        <translation>&amp;Suchen...	Strg+F3</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt	F3</source>
        <translation>&amp;Weitersuchen	F3</translation>
    </message>
    <message>
        <source>&amp;Replace...	Ctrl+H</source>
        <translation>E&amp;rsetzen...	Strg+H</translation>
    </message>
    <message>
        <source>Undo	Ctrl+Z</source>
        <translation>Rückgängig	Strg+Z</translation>
    </message>
    <message>
        <source>Redo	Ctrl+Y</source>
        <translation>Wiederholen	Strg+Y</translation>
    </message>
    <message>
        <source>Toggle Bookmark	Ctrl+F2</source>
        <translation>Lesezeichen ein/aus	Strg+F2</translation>
    </message>
    <message>
        <source>Next Bookmark	F2</source>
        <translation>Nächstes Lesezeichen	F2</translation>
    </message>
    <message>
        <source>Previous Bookmark	Shift+F2</source>
        <translation>Voriges Lesezeichen	Umschalt+F2</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Am Ende weitergesucht.</translation>
    </message>
    <message>
        <source>Went on from the beginning.</source>
        <translation>Am Anfang weitergesucht.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Ersetze...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The text would become too large. It stays as it was.</source>
        <translation>Der Text würde zu groß. Er bleibt, wie er war.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Plinkett</source>
        <translation>Plinkett</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Project Name</source>
        <translation>Projektname</translation>
    </message>
    <message>
        <source>The name of the book: the pen says it when the book is switched on, and game and PDF are named after it</source>
        <translation>Der Name des Buchs: Der Stift sagt ihn, wenn das Buch eingeschaltet wird, und Spiel und PDF heißen danach</translation>
    </message>
    <message>
        <source>Project ID</source>
        <translation>Projekt-ID</translation>
    </message>
    <message>
        <source>The number by which the pen knows the book: each book on the pen needs its own, 900 to 950 for those made at home</source>
        <translation>Die Nummer, an der der Stift das Buch kennt: Jedes Buch auf dem Stift braucht seine eigene, 900 bis 950 für selbst gemachte</translation>
    </message>
    <message>
        <source>Current Picture (Area)</source>
        <translation>Aktuelles Bild (Bereich)</translation>
    </message>
    <message>
        <source>Paper: [mm]</source>
        <translation>Papier: [mm]</translation>
    </message>
    <message>
        <source>Paper width in millimetres</source>
        <translation>Papierbreite in Millimetern</translation>
    </message>
    <message>
        <source>How wide this page is printed, in millimetres: its picture fills the paper</source>
        <translation>Wie breit diese Seite gedruckt wird, in Millimetern: Ihr Bild füllt das Papier</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Paper height in millimetres</source>
        <translation>Papierhöhe in Millimetern</translation>
    </message>
    <message>
        <source>How high this page is printed, in millimetres: its picture fills the paper</source>
        <translation>Wie hoch diese Seite gedruckt wird, in Millimetern: Ihr Bild füllt das Papier</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, for this page: the pen needs 600 at least, better are 1200</source>
        <translation>Die Punkte je Zoll des Druckers, für diese Seite: Der Stift braucht mindestens 600, besser sind 1200</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>Makes a print image (TIFF) of each page, for a print shop; for a printer at home take PDF</source>
        <translation>Macht von jeder Seite ein Druckbild (TIFF), für eine Druckerei; für einen Drucker zu Hause nehmen Sie PDF</translation>
    </message>
    <message>
        <source>Create the output image now...</source>
        <translation>Das Druckbild jetzt erzeugen...</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Makes a PDF of the book for your own printer, each page in its true size; its menu (key Down) has symbols and the printer&apos;s test page</source>
        <translation>Macht ein PDF des Buchs für den eigenen Drucker, jede Seite in ihrer wahren Größe; im Menü (Taste Ab): Zeichen und die Testseite des Druckers</translation>
    </message>
    <message>
        <source>Add START &amp;symbol</source>
        <translation>&amp;START-Zeichen einfügen</translation>
    </message>
    <message>
        <source>An area with the number of the book, which the pen must touch before it knows it</source>
        <translation>Ein Bereich mit der Nummer des Buchs, den der Stift berühren muss, bevor er es kennt</translation>
    </message>
    <message>
        <source>This page has its START symbol already: %1</source>
        <translation>Diese Seite hat ihr START-Zeichen schon: %1</translation>
    </message>
    <message>
        <source>The START symbol lies over other areas: nothing of the page is free. Move it.</source>
        <translation>Das START-Zeichen liegt über anderen Bereichen: Auf der Seite ist nichts frei. Verschieben Sie es.</translation>
    </message>
    <message>
        <source>The START symbol is on the page. Drag it where you like.</source>
        <translation>Das START-Zeichen ist auf der Seite. Ziehen Sie es, wohin Sie möchten.</translation>
    </message>
    <message>
        <source>For all pictures</source>
        <translation>Für alle Bilder</translation>
    </message>
    <message>
        <source>Gives the paper and the DPI of this picture to all others, for a book that is printed on one kind of paper</source>
        <translation>Gibt Papier und DPI dieses Bildes allen anderen, für ein Buch, das auf einerlei Papier gedruckt wird</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Es gibt noch kein Bild</translation>
    </message>
    <message>
        <source>Paper size and DPI must be greater than 0</source>
        <translation>Papiergröße und DPI müssen größer als 0 sein</translation>
    </message>
    <message>
        <source>All pictures have this paper and these DPI now</source>
        <translation>Alle Bilder haben jetzt dieses Papier und diese DPI</translation>
    </message>
    <message>
        <source>picture %1: %2 DPI are too few for the dots</source>
        <translation>Bild %1: %2 DPI sind zu wenig für die Punkte</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Das Erzeugen wurde abgebrochen</translation>
    </message>
    <message>
        <source>Picture %1 was not created: %2</source>
        <translation>Bild %1 wurde nicht erzeugt: %2</translation>
    </message>
    <message>
        <source>1 print image created</source>
        <translation>1 Druckbild erzeugt</translation>
    </message>
    <message>
        <source>%1 print images created</source>
        <translation>%1 Druckbilder erzeugt</translation>
    </message>
    <message>
        <source>Building...</source>
        <translation>Das Spiel wird gebaut...</translation>
    </message>
    <message>
        <source>The game was built: %1</source>
        <translation>Das Spiel wurde gebaut: %1</translation>
    </message>
    <message>
        <source>The game was not built. The console tells why.</source>
        <translation>Das Spiel wurde nicht gebaut. Die Konsole sagt, warum.</translation>
    </message>
    <message>
        <source>The game was copied to the pen, which can be unplugged</source>
        <translation>Das Spiel wurde auf den Stift kopiert, der abgezogen werden kann</translation>
    </message>
    <message>
        <source>The game was copied to the pen. Eject it before you unplug it</source>
        <translation>Das Spiel wurde auf den Stift kopiert. Werfen Sie ihn aus, bevor Sie ihn abziehen</translation>
    </message>
    <message>
        <source>The game was not copied to the pen</source>
        <translation>Das Spiel wurde nicht auf den Stift kopiert</translation>
    </message>
    <message>
        <source>There is no game yet: build it first</source>
        <translation>Es gibt noch kein Spiel: bauen Sie es zuerst</translation>
    </message>
    <message>
        <source>No pen was found: a pen is a drive that holds the file %1</source>
        <translation>Es wurde kein Stift gefunden: ein Stift ist ein Laufwerk mit der Datei %1</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>The script declares the new voice in its first line now.</source>
        <translation>Das Skript hat die neue Stimme jetzt in seiner ersten Zeile.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Show the previous picture</source>
        <translation>Zeigt das vorige Bild</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Shows the next picture or appends a new one</source>
        <translation>Zeigt das nächste Bild oder fügt ein neues an</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>load...</source>
        <translation>laden...</translation>
    </message>
    <message>
        <source>Puts another picture file in the place of this one, such as a better scan; paper and areas stay</source>
        <translation>Setzt eine andere Bilddatei an die Stelle dieser, etwa einen besseren Scan; Papier und Bereiche bleiben</translation>
    </message>
    <message>
        <source>✖</source>
        <translation>✖</translation>
    </message>
    <message>
        <source>Delete picture</source>
        <translation>Bild löschen</translation>
    </message>
    <message>
        <source>Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete does it and Undo brings it back</source>
        <translation>Zeigt, wie diese Seite entfernt wird: in der Liste der Seiten (Strg+Umschalt+P), wo Entf es tut und Rückgängig sie wiederbringt</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>↖</translation>
    </message>
    <message>
        <source>Pick area mode</source>
        <translation>Bereiche auswählen</translation>
    </message>
    <message>
        <source>Pick area</source>
        <translation>Bereich auswählen</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Add a new polygon mode</source>
        <translation>Ein neues Vieleck zeichnen</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Bereich hinzufügen</translation>
    </message>
    <message>
        <source>Delete selected polygon</source>
        <translation>Das ausgewählte Vieleck löschen</translation>
    </message>
    <message>
        <source>Delete area</source>
        <translation>Bereich löschen</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Area name</source>
        <translation>Name des Bereichs</translation>
    </message>
    <message>
        <source>The name of the area: the sub of that name in the script says what is heard. Areas of one name do the same</source>
        <translation>Der Name des Bereichs: Was zu hören ist, sagt das sub dieses Namens im Skript. Bereiche eines Namens tun dasselbe</translation>
    </message>
    <message>
        <source>OID of the area</source>
        <translation>OID des Bereichs</translation>
    </message>
    <message>
        <source>The number of the dots that the area is printed with: it comes by itself and stays, so that printed pages fit</source>
        <translation>Die Nummer der Punkte, mit denen der Bereich gedruckt wird: Sie kommt von selbst und bleibt, damit gedruckte Seiten passen</translation>
    </message>
    <message>
        <source>Goto code</source>
        <translation>Zum Code</translation>
    </message>
    <message>
        <source>Goes to the sub of the area in the script, where what it says is written; begins one where there is none</source>
        <translation>Geht zum sub des Bereichs im Skript, in dem steht, was er sagt; beginnt eines, wo es keines gibt</translation>
    </message>
    <message>
        <source>Picture with its areas</source>
        <translation>Bild mit seinen Bereichen</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Bauen</translation>
    </message>
    <message>
        <source>Book tests (*.booktest)</source>
        <translation>Buchtests (*.booktest)</translation>
    </message>
    <message>
        <source>Save book test</source>
        <translation>Buchtest speichern</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>👷 Build</source>
        <translation>👷 Bauen</translation>
    </message>
    <message>
        <source>Builds the project to a binary game</source>
        <translation>Baut aus dem Projekt das fertige Spiel</translation>
    </message>
    <message>
        <source>⚠Debug Mode</source>
        <translation>⚠Debugmodus</translation>
    </message>
    <message>
        <source>Tells (says) the code line number, when running on the device</source>
        <translation>Sagt auf dem Gerät die Nummer der Codezeile an</translation>
    </message>
    <message>
        <source>Copy to Device</source>
        <translation>Auf das Gerät kopieren</translation>
    </message>
    <message>
        <source>Copies the binary to the attached USB device</source>
        <translation>Kopiert das Spiel auf das angeschlossene USB-Gerät</translation>
    </message>
    <message>
        <source>&amp;Quick answers</source>
        <translation>S&amp;chnelle Antworten</translation>
    </message>
    <message>
        <source>Makes the same game in fewer steps, so that the pen answers at once, also where the script reckons much</source>
        <translation>Macht dasselbe Spiel in weniger Schritten, damit der Stift sofort antwortet, auch wo das Skript viel rechnet</translation>
    </message>
    <message>
        <source>The pen takes its time for every step of the script. With quick answers the game does the same in few of them. They are made by Plinkett&apos;s own assembler, also where tttool is installed.</source>
        <translation>Der Stift braucht für jeden Schritt des Skripts seine Zeit. Mit schnellen Antworten tut das Spiel dasselbe in wenigen Schritten. Sie macht der eigene Assembler von Plinkett, auch wo tttool installiert ist.</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>toolBar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens another book; of this one, what is not saved is kept and offered again</source>
        <translation>Öffnet ein anderes Buch; was an diesem nicht gespeichert ist, wird aufbewahrt und wieder angeboten</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Writes the book into its project file; pictures and audio files lie beside it</source>
        <translation>Schreibt das Buch in seine Projektdatei; Bilder und Audiodateien liegen daneben</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Takes back the last step, on pages and areas, or in the script while that is shown</source>
        <translation>Nimmt den letzten Schritt zurück, an Seiten und Bereichen, oder im Skript, solange das zu sehen ist</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Does again what was taken back last, until something else is changed</source>
        <translation>Macht noch einmal, was zuletzt zurückgenommen wurde, bis etwas anderes geändert wird</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Saves the book under another name or in another folder, and takes pictures and audio files along</source>
        <translation>Speichert das Buch unter einem anderen Namen oder in einem anderen Ordner und nimmt Bilder und Audiodateien mit</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Project files (*.oidpro)</source>
        <translation>Projektdateien (*.oidpro)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Import Picture</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Bilder der Seiten</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Neues Buch...</translation>
    </message>
    <message>
        <source>Makes a book with the pictures of its pages</source>
        <translation>Legt ein Buch mit den Bildern seiner Seiten an</translation>
    </message>
    <message>
        <source>Folder for your copy of the book</source>
        <translation>Ordner für Ihre Kopie des Buchs</translation>
    </message>
    <message>
        <source>The book could not be copied to %1.</source>
        <translation>Das Buch konnte nicht nach %1 kopiert werden.</translation>
    </message>
    <message>
        <source>Your copy of the book lies in %1.</source>
        <translation>Ihre Kopie des Buchs liegt in %1.</translation>
    </message>
    <message>
        <source>Picture files (*.png; *.jpg; *.jpeg; *.bmp)</source>
        <translation>Bilddateien (*.png; *.jpg; *.jpeg; *.bmp)</translation>
    </message>
    <message>
        <source>The file could not be saved to the drive</source>
        <translation>Die Datei konnte nicht auf dem Laufwerk gespeichert werden</translation>
    </message>
    <message>
        <source>This book has the number %1 now. Save it to keep that.</source>
        <translation>Dieses Buch hat jetzt die Nummer %1. Erst mit dem Speichern bleibt das so.</translation>
    </message>
    <message>
        <source>No area is selected, so this numbers none. Click one, then type its number.</source>
        <translation>Kein Bereich ist ausgewählt, also erhält keiner diese Nummer. Klicke einen an, dann gib seine Nummer ein.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Creating the print images...</source>
        <translation>Die Druckbilder werden erzeugt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Making the speech...</source>
        <translation>Die Sprache wird erzeugt...</translation>
    </message>
    <message>
        <source>Can&apos;t load that picture.</source>
        <translation>Dieses Bild kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>Save the project first: its pictures are kept beside the project file.</source>
        <translation>Bitte zuerst das Projekt speichern: Seine Bilder liegen neben der Projektdatei.</translation>
    </message>
    <message>
        <source>Overwrite Picture</source>
        <translation>Bild überschreiben</translation>
    </message>
    <message>
        <source>Do you want to overwrite the picture in the cache?</source>
        <translation>Soll das gespeicherte Bild überschrieben werden?</translation>
    </message>
    <message>
        <source>The picture could not be kept beside the project file.</source>
        <translation>Das Bild konnte nicht neben der Projektdatei abgelegt werden.</translation>
    </message>
    <message>
        <source>The pictures could not be brought to their pages.</source>
        <translation>Die Bilder konnten nicht zu ihren Seiten gebracht werden.</translation>
    </message>
    <message>
        <source>Shows or hides the list of the pages, in which one goes to pages, moves and removes them</source>
        <translation>Zeigt oder verbirgt die Liste der Seiten, in der man zu Seiten geht, sie verschiebt und entfernt</translation>
    </message>
    <message>
        <source>Shows or hides the list of all areas of the book, with what is wrong with them</source>
        <translation>Zeigt oder verbirgt die Liste aller Bereiche des Buchs, mit dem, was an ihnen nicht stimmt</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Ein anderes Fenster oder Programm hat die Projektdatei geändert, seit dieses Fenster sie geöffnet oder gespeichert hat.</translation>
    </message>
    <message>
        <source>Overwriting loses what the file holds now. When you open that, your unsaved work is kept and offered.</source>
        <translation>Überschreiben verliert, was jetzt in der Datei steht. Wird das geöffnet, bleibt die ungespeicherte Arbeit erhalten und wird angeboten.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Open the o&amp;ther</source>
        <translation>Das &amp;andere öffnen</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>Your unsaved work cannot be kept. Save it under another name first.</source>
        <translation>Die ungespeicherte Arbeit kann nicht aufbewahrt werden. Bitte zuerst unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>%1: another window has moved pages and saved that. Open the book again.</source>
        <translation>%1: Ein anderes Fenster hat Seiten verschoben und das gespeichert. Bitte das Buch neu öffnen.</translation>
    </message>
    <message>
        <source>The pictures are in the order of the pages again. Pages had been moved, but not saved.</source>
        <translation>Die Bilder sind wieder in der Reihenfolge der Seiten. Seiten waren verschoben, aber nicht gespeichert worden.</translation>
    </message>
    <message>
        <source>These files could not be copied along. The old ones are still where they were.</source>
        <translation>Diese Dateien konnten nicht mitkopiert werden. Die alten liegen noch, wo sie waren.</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Bild löschen</translation>
    </message>
    <message>
        <source>Do you really want to delete this picture?</source>
        <translation>Soll dieses Bild wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, at what the shown tab is for</source>
        <translation>Öffnet das Handbuch im Browser, bei dem, wofür der gezeigte Reiter da ist</translation>
    </message>
    <message>
        <source>Pages are removed in the list of the pages, which opens now: Delete removes this one, and Undo brings it back.</source>
        <translation>Seiten werden in der Liste der Seiten entfernt, die sich jetzt öffnet: Entf entfernt diese, und Rückgängig bringt sie wieder.</translation>
    </message>
    <message>
        <source>Delete removes page %1, and Undo brings it back.</source>
        <translation>Entf entfernt Seite %1, und Rückgängig bringt sie wieder.</translation>
    </message>
</context>
<context>
    <name>NewBook</name>
    <message>
        <source>The book needs a name.</source>
        <translation>Das Buch braucht einen Namen.</translation>
    </message>
    <message>
        <source>The number must be from %1 to %2.</source>
        <translation>Die Nummer muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>The book needs a folder.</source>
        <translation>Das Buch braucht einen Ordner.</translation>
    </message>
    <message>
        <source>The folder needs its whole path.</source>
        <translation>Der Ordner braucht seinen ganzen Pfad.</translation>
    </message>
    <message>
        <source>%1 is a file and no folder.</source>
        <translation>%1 ist eine Datei und kein Ordner.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1.</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>There is a book already: %1. Take another name or folder.</source>
        <translation>Dort ist schon ein Buch: %1. Nehmen Sie einen anderen Namen oder Ordner.</translation>
    </message>
    <message>
        <source>The book %1 in this folder has the number %2, too. Take another number or folder.</source>
        <translation>Auch das Buch %1 in diesem Ordner hat die Nummer %2. Nehmen Sie eine andere Nummer oder einen anderen Ordner.</translation>
    </message>
    <message>
        <source>In this folder is %1, which belongs to a book of the number %2. Take another number or folder.</source>
        <translation>In diesem Ordner liegt %1, das zu einem Buch mit der Nummer %2 gehört. Nehmen Sie eine andere Nummer oder einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 is no picture, or cannot be read.</source>
        <translation>%1 ist kein Bild oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be kept in the folder of the book.</source>
        <translation>Das Bild %1 kann nicht im Ordner des Buchs aufbewahrt werden.</translation>
    </message>
</context>
<context>
    <name>NewBookDialog</name>
    <message>
        <source>New book</source>
        <translation>Neues Buch</translation>
    </message>
    <message>
        <source>Make the book</source>
        <translation>Buch anlegen</translation>
    </message>
    <message>
        <source>The name of the book, which the pen says when it is switched on</source>
        <translation>Der Name des Buchs, den der Stift beim Einschalten sagt</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>%1 to %2, another one for each book on the pen; 900 to 950 are for books of your own</source>
        <translation>%1 bis %2, für jedes Buch auf dem Stift eine andere; 900 bis 950 sind für selbst gemachte Bücher</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nummer:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Pictures of the pages, which can also come later:</source>
        <translation>Bilder der Seiten, die auch später kommen können:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Where all files of the book lie; it is made when it is not there</source>
        <translation>Wo alle Dateien des Buchs liegen; er wird angelegt, wenn es ihn nicht gibt</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Chooses a folder that is there</source>
        <translation>Wählt einen Ordner, den es schon gibt</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Bilder der Seiten</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>Adds picture files, several at once</source>
        <translation>Fügt Bilddateien hinzu, mehrere auf einmal</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Moves the picture to the page before</source>
        <translation>Setzt das Bild auf die Seite davor</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Moves the picture to the next page</source>
        <translation>Setzt das Bild auf die nächste Seite</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes the picture off this list; its file stays</source>
        <translation>Nimmt das Bild aus dieser Liste; seine Datei bleibt</translation>
    </message>
    <message>
        <source>Folder of the book</source>
        <translation>Ordner des Buchs</translation>
    </message>
    <message>
        <source>No picture, so it is not in the list: %1</source>
        <translation>Kein Bild, darum nicht in der Liste: %1</translation>
    </message>
    <message>
        <source>The book %1 has this number, too: they cannot both be on the pen.</source>
        <translation>Auch das Buch %1 hat diese Nummer: Beide zusammen können nicht auf dem Stift sein.</translation>
    </message>
    <message>
        <source>Making the book...</source>
        <translation>Das Buch wird angelegt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancelled: nothing was made.</source>
        <translation>Abgebrochen: Es wurde nichts angelegt.</translation>
    </message>
</context>
<context>
    <name>OpenManual</name>
    <message>
        <source>The manual cannot be shown: it is not installed, or there is no browser.</source>
        <translation>Das Handbuch lässt sich nicht zeigen: Es ist nicht installiert, oder es gibt keinen Browser.</translation>
    </message>
</context>
<context>
    <name>PageAccessible</name>
    <message>
        <source>number %1, area %2 of %3</source>
        <translation>Nummer %1, Bereich %2 von %3</translation>
    </message>
    <message>
        <source>%1 % from the left, %2 % from the top</source>
        <translation>%1 % von links, %2 % von oben</translation>
    </message>
</context>
<context>
    <name>PageMenu</name>
    <message>
        <source>Areas here</source>
        <translation>Bereiche hier</translation>
    </message>
    <message>
        <source>%1 (speaks here)</source>
        <translation>%1 (spricht hier)</translation>
    </message>
</context>
<context>
    <name>PdfDialog</name>
    <message>
        <source>Lighten only inside of areas</source>
        <translation>Nur in Bereichen aufhellen</translation>
    </message>
    <message>
        <source>Outlines and names of the areas</source>
        <translation>Umrisse und Namen der Bereiche</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>überall</translation>
    </message>
    <message>
        <source>only in areas</source>
        <translation>nur in Bereichen</translation>
    </message>
    <message>
        <source>none: a proof</source>
        <translation>keine: ein Probedruck</translation>
    </message>
    <message>
        <source>when no area starts the book</source>
        <translation>wenn kein Bereich das Buch startet</translation>
    </message>
    <message>
        <source>always</source>
        <translation>immer</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation>nichts anderes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>1 cm of the page, dots 1:1</source>
        <translation>1 cm der Seite, Punkte 1:1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Only these pictures, counted from 0, such as 0,2-3, to print a changed page again; empty prints all</source>
        <translation>Nur diese Bilder, von 0 an gezählt, wie 0,2-3, um eine geänderte Seite neu zu drucken; leer druckt alle</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Whether the whole page gets dots, or only its areas, which leaves the rest as clear as it was</source>
        <translation>Ob die ganze Seite Punkte bekommt oder nur ihre Bereiche, was den Rest so klar lässt, wie er war</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Dots:</source>
        <translation>Punkte:</translation>
    </message>
    <message>
        <source>Lightens the picture on areas only, where the pen reads; the rest of it stays as it is</source>
        <translation>Hellt das Bild nur in den Bereichen auf, wo der Stift liest; der Rest bleibt, wie er ist</translation>
    </message>
    <message>
        <source>Draws the areas with their names, to check them on paper, in a colour that the pen does not see</source>
        <translation>Zeichnet die Bereiche mit ihren Namen, um sie auf dem Papier zu prüfen, in einer Farbe, die der Stift nicht sieht</translation>
    </message>
    <message>
        <source>as needed</source>
        <translation>nach Bedarf</translation>
    </message>
    <message>
        <source>White paper around each page, for a printer that does not print up to the edge</source>
        <translation>Weißes Papier um jede Seite, für einen Drucker, der nicht bis zum Rand druckt</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Margin:</source>
        <translation>Rand:</translation>
    </message>
    <message>
        <source>Marks in the margin where the page ends, to cut along them</source>
        <translation>Marken im Rand, wo die Seite endet, um daran zu schneiden</translation>
    </message>
    <message>
        <source>Prints pages that are larger than the paper on several sheets that overlap, to be glued together</source>
        <translation>Druckt Seiten, die größer als das Papier sind, auf mehrere Blätter, die sich überlappen, zum Zusammenkleben</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Plakat</translation>
    </message>
    <message>
        <source>Poster:</source>
        <translation>Plakat:</translation>
    </message>
    <message>
        <source>Adds a page with START, REPLAY, STOP and a legend of all areas, to be cut out; a book needs START somewhere</source>
        <translation>Fügt eine Seite mit START, REPLAY, STOP und einer Legende aller Bereiche an, zum Ausschneiden; irgendwo braucht ein Buch START</translation>
    </message>
    <message>
        <source>Symbols and legend</source>
        <translation>Zeichen und Legende</translation>
    </message>
    <message>
        <source>Symbols and legend:</source>
        <translation>Zeichen und Legende:</translation>
    </message>
    <message>
        <source>The PDF file that is written; one of this name that is there is replaced</source>
        <translation>Die PDF-Datei, die geschrieben wird; eine dieses Namens, die schon da ist, wird ersetzt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Chooses another file</source>
        <translation>Wählt eine andere Datei</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Sheets of paper: %1</source>
        <translation>Blätter Papier: %1</translation>
    </message>
    <message>
        <source>Pages are numbers from 0 to %1, such as 0,2-3.</source>
        <translation>Seiten sind Zahlen von 0 bis %1, etwa 0,2-3.</translation>
    </message>
    <message>
        <source>The DPI are a number from %1 to %2.</source>
        <translation>DPI sind eine Zahl von %1 bis %2.</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>Die Datei hat keinen Namen.</translation>
    </message>
</context>
<context>
    <name>PickTool</name>
    <message>
        <source>An area needs at least three corners.</source>
        <translation>Ein Bereich braucht mindestens drei Ecken.</translation>
    </message>
    <message>
        <source>Corner %1 of %2: %3 % from the left, %4 % from the top</source>
        <translation>Ecke %1 von %2: %3 % von links, %4 % von oben</translation>
    </message>
</context>
<context>
    <name>PolyEditorWidget</name>
    <message>
        <source>Here speaks %1; behind it lies %2.</source>
        <translation>Hier spricht %1; dahinter liegt %2.</translation>
    </message>
    <message>
        <source>Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the corners of the selected one; the arrow keys move them.</source>
        <translation>Strg+Ab und Strg+Auf gehen durch die Bereiche, Strg+Rechts und Strg+Links durch die Ecken des ausgewählten; die Pfeiltasten verschieben sie.</translation>
    </message>
</context>
<context>
    <name>PrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Merken...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Make profile...</source>
        <translation>Profil anlegen...</translation>
    </message>
    <message>
        <source>No black in the picture</source>
        <translation>Kein Schwarz im Bild</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>Best field:</source>
        <translation>Bestes Feld:</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Edge of a dot:</source>
        <translation>Kante eines Punkts:</translation>
    </message>
    <message>
        <source>Lighten the picture:</source>
        <translation>Bild aufhellen:</translation>
    </message>
    <message>
        <source>Profile of a printer</source>
        <translation>Profil eines Druckers</translation>
    </message>
    <message>
        <source>The settings that were kept for a printer: choose the one that the book is printed on</source>
        <translation>Die Einstellungen, die für einen Drucker aufbewahrt wurden: Wählen Sie den, auf dem das Buch gedruckt wird</translation>
    </message>
    <message>
        <source>Keeps the settings below under a name, so that this printer has them the next time, too</source>
        <translation>Bewahrt die Einstellungen darunter unter einem Namen auf, damit dieser Drucker sie auch das nächste Mal hat</translation>
    </message>
    <message>
        <source>Forgets the chosen profile</source>
        <translation>Vergisst das gewählte Profil</translation>
    </message>
    <message>
        <source>Best field of the printer&apos;s test page</source>
        <translation>Bestes Feld der Testseite des Druckers</translation>
    </message>
    <message>
        <source>The field of the printer&apos;s test page that the pen reads best, such as B3</source>
        <translation>Das Feld der Testseite des Druckers, das der Stift am besten liest, etwa B3</translation>
    </message>
    <message>
        <source>Makes a profile of what that field says about the printer</source>
        <translation>Macht ein Profil daraus, was dieses Feld über den Drucker sagt</translation>
    </message>
    <message>
        <source>Resolution of the printer</source>
        <translation>Auflösung des Druckers</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, when they are not those of the pictures</source>
        <translation>Die Punkte je Zoll des Druckers, wenn es nicht die der Bilder sind</translation>
    </message>
    <message>
        <source>that of each picture</source>
        <translation>die jedes Bilds</translation>
    </message>
    <message>
        <source>Edge of a dot in pixels of the printer</source>
        <translation>Kante eines Punkts in Bildpunkten des Druckers</translation>
    </message>
    <message>
        <source>Smaller dots for a printer that prints them too fat</source>
        <translation>Kleinere Punkte für einen Drucker, der sie zu dick druckt</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>üblich</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Bildpunkte</translation>
    </message>
    <message>
        <source>Mixes the picture&apos;s black of cyan, magenta and yellow, which the pen does not see</source>
        <translation>Mischt das Schwarz des Bilds aus Cyan, Magenta und Gelb, was der Stift nicht sieht</translation>
    </message>
    <message>
        <source>How much lighter the picture is, in percent</source>
        <translation>Um wie viel das Bild heller ist, in Prozent</translation>
    </message>
    <message>
        <source>Takes ink out of the picture, so that the pen finds the dots</source>
        <translation>Nimmt Farbe aus dem Bild, damit der Stift die Punkte findet</translation>
    </message>
    <message>
        <source>not</source>
        <translation>nicht</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>The profile %1 is gone.</source>
        <translation>Das Profil %1 ist entfernt.</translation>
    </message>
    <message>
        <source>The test page has no field %1.</source>
        <translation>Die Testseite hat kein Feld %1.</translation>
    </message>
    <message>
        <source>Printer %1</source>
        <translation>Drucker %1</translation>
    </message>
    <message>
        <source>Name of the printer:</source>
        <translation>Name des Druckers:</translation>
    </message>
    <message>
        <source>The profile %1 is kept.</source>
        <translation>Das Profil %1 ist gemerkt.</translation>
    </message>
</context>
<context>
    <name>PrinterTestDialog</name>
    <message>
        <source>Printer&apos;s test page</source>
        <translation>Testseite des Druckers</translation>
    </message>
    <message>
        <source>Makes a page and a game that find out how your printer prints dots. Print the page, copy the game onto the pen, touch the fields, and tell the best one&apos;s name where you make a PDF.</source>
        <translation>Erzeugt eine Seite und ein Spiel, die herausfinden, wie Ihr Drucker Punkte druckt. Drucken Sie die Seite, kopieren Sie das Spiel auf den Stift, berühren Sie die Felder und nennen Sie den Namen des besten dort, wo Sie ein PDF erzeugen.</translation>
    </message>
    <message>
        <source>%1 DPI</source>
        <translation>%1 DPI</translation>
    </message>
    <message>
        <source>Tries this resolution: tick those that your printer has, and the pen tells which one is best</source>
        <translation>Probiert diese Auflösung: Haken Sie an, was Ihr Drucker hat, und der Stift sagt, welche die beste ist</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folder in which the page to be printed and the game for the pen are written</source>
        <translation>Der Ordner, in den die Seite zum Drucken und das Spiel für den Stift geschrieben werden</translation>
    </message>
    <message>
        <source>Chooses another folder</source>
        <translation>Wählt einen anderen Ordner</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Language of the pen:</source>
        <translation>Sprache des Stifts:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>Language of the pen</source>
        <translation>Sprache des Stifts</translation>
    </message>
    <message>
        <source>The language in which the pen names the fields</source>
        <translation>Die Sprache, in der der Stift die Felder nennt</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation: en, de, fr or nl.</extracomment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No problems any more</source>
        <translation>Keine Probleme mehr</translation>
    </message>
    <message>
        <source>New problem. %1</source>
        <translation>Neues Problem. %1</translation>
    </message>
    <message>
        <source>%1 new problems. %2</source>
        <translation>%1 neue Probleme. %2</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Quick fix</source>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>Why?</source>
        <translation>Warum?</translation>
    </message>
    <message>
        <source>Opens the manual at what is told about this (F1)</source>
        <translation>Öffnet das Handbuch bei dem, was dazu gesagt ist (F1)</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why</source>
        <translation>Eingabe führt zur Stelle, Alt+Eingabe behebt, was sich beheben lässt, F1 sagt warum</translation>
    </message>
    <message>
        <source>Shows or folds the list of problems. F8 goes to the next one in the script, Shift+F8 to the one before.</source>
        <translation>Zeigt die Liste der Probleme oder klappt sie ein. F8 geht zum nächsten im Skript, Umschalt+F8 zum vorigen.</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 Problem</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 Probleme</translation>
    </message>
    <message>
        <source>A click goes to the place (Enter); further clicks put right what can be put right (Alt+Enter) and tell why (F1)</source>
        <translation>Ein Klick geht zur Stelle (Eingabetaste); weitere Klicks bringen in Ordnung, was sich in Ordnung bringen lässt (Alt+Eingabetaste), und sagen warum (F1)</translation>
    </message>
</context>
<context>
    <name>ProblemsGuide</name>
    <message>
        <source>Alt+Enter: %1</source>
        <translation>Alt+Eingabe: %1</translation>
    </message>
    <message>
        <source>There is no quick fix here</source>
        <translation>Hier gibt es keine Abhilfe</translation>
    </message>
    <message>
        <source>The book has changed meanwhile. Try again.</source>
        <translation>Das Buch hat sich inzwischen geändert. Versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>ProductNameNote</name>
    <message>
        <source>Not possible in the name: %1</source>
        <translation>Im Namen nicht möglich: %1</translation>
    </message>
    <message>
        <source>%1 characters, at most %2</source>
        <translation>%1 Zeichen, höchstens %2</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>Nothing is heard: no loudspeaker can be used (%1)</source>
        <translation>Es ist nichts zu hören: Kein Lautsprecher ist nutzbar (%1)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>%1 cannot be played: it has more than two channels</source>
        <translation>%1 lässt sich nicht abspielen: Die Datei hat mehr als zwei Kanäle</translation>
    </message>
    <message>
        <source>%1 is damaged and cannot be played to its end</source>
        <translation>%1 ist beschädigt und lässt sich nicht bis zum Ende abspielen</translation>
    </message>
    <message>
        <source>%1 cannot be played: it is damaged, or no sound in one of the formats WAV, Ogg, FLAC and MP3</source>
        <translation>%1 lässt sich nicht abspielen: Die Datei ist beschädigt oder kein Ton in einem der Formate WAV, Ogg, FLAC und MP3</translation>
    </message>
</context>
<context>
    <name>Microphone</name>
    <message>
        <source>No microphone can be used (%1)</source>
        <translation>Kein Mikrofon ist nutzbar (%1)</translation>
    </message>
    <message>
        <source>There is no microphone: plug one in, or allow programs to hear it</source>
        <translation>Es gibt kein Mikrofon: Schließen Sie eines an, oder erlauben Sie Programmen, es zu hören</translation>
    </message>
    <message>
        <source>The microphone cannot be used (%1)</source>
        <translation>Das Mikrofon ist nicht nutzbar (%1)</translation>
    </message>
    <message>
        <source>The microphone is gone: is it still plugged in?</source>
        <translation>Das Mikrofon ist weg: Ist es noch angeschlossen?</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone any more</source>
        <translation>Vom Mikrofon kommt nichts mehr</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>it is a link to a file in another folder</source>
        <translation>das ist eine Verknüpfung mit einer Datei in einem anderen Ordner</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>%1 is longer than an hour</source>
        <translation>%1 ist länger als eine Stunde</translation>
    </message>
    <message>
        <source>There is no sound in %1</source>
        <translation>In %1 ist kein Ton</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>the program ffmpeg, which would read it, is not there</source>
        <translation>das Programm ffmpeg, das es lesen würde, ist nicht da</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>the program ffmpeg was stopped</source>
        <translation>das Programm ffmpeg wurde beendet</translation>
    </message>
    <message>
        <source>the program ffmpeg ended with status %1</source>
        <translation>das Programm ffmpeg endete mit Status %1</translation>
    </message>
    <message>
        <source>The original of %1 cannot be kept: %2</source>
        <translation>Das Original von %1 lässt sich nicht aufheben: %2</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>still</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation>%1: %2, vorher %3</translation>
    </message>
    <message>
        <source>%1: %2, not changed</source>
        <translation>%1: %2, nicht geändert</translation>
    </message>
    <message>
        <source>Nothing is recorded for %1</source>
        <translation>Für %1 ist nichts aufgenommen</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level of the microphone</source>
        <translation>Pegel des Mikrofons</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Leise</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Too loud</source>
        <translation>Zu laut</translation>
    </message>
    <message>
        <source>Nothing is heard</source>
        <translation>Nichts zu hören</translation>
    </message>
</context>
<context>
    <name>RecordCard</name>
    <message>
        <source>Text to read aloud</source>
        <translation>Text zum Vorlesen</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>The microphone that is recorded from; the level below shows whether it hears you</source>
        <translation>Das Mikrofon, mit dem aufgenommen wird; der Pegel darunter zeigt, ob es Sie hört</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Übliches Mikrofon</translation>
    </message>
    <message>
        <source>Count &amp;in</source>
        <translation>&amp;Einzählen</translation>
    </message>
    <message>
        <source>Counts 3, 2, 1 before a recording begins, so that you can take a breath</source>
        <translation>Zählt 3, 2, 1, bevor eine Aufnahme beginnt, damit Sie Luft holen können</translation>
    </message>
    <message>
        <source>Begins and ends a recording (Space)</source>
        <translation>Beginnt und beendet eine Aufnahme (Leertaste)</translation>
    </message>
    <message>
        <source>&amp;Listen</source>
        <translation>An&amp;hören</translation>
    </message>
    <message>
        <source>Plays it as the pen will (Ctrl+L)</source>
        <translation>Spielt es ab, wie der Stift es tun wird (Strg+L)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes back the last change (Ctrl+Z)</source>
        <translation>Nimmt die letzte Änderung zurück (Strg+Z)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Makes it again (Ctrl+Shift+Z)</source>
        <translation>Macht sie wieder (Strg+Umschalt+Z)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>The text before this one (Page Up)</source>
        <translation>Der Text vor diesem (Bild auf)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Ü&amp;berspringen</translation>
    </message>
    <message>
        <source>The text after this one (Page Down)</source>
        <translation>Der Text nach diesem (Bild ab)</translation>
    </message>
    <message>
        <source>Keep, &amp;next</source>
        <translation>Behalten, &amp;weiter</translation>
    </message>
    <message>
        <source>Keeps the recording and goes to the next text that is missing (Enter)</source>
        <translation>Behält die Aufnahme und geht zum nächsten fehlenden Text (Eingabe)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Ends recording (Escape)</source>
        <translation>Beendet das Aufnehmen (Esc)</translation>
    </message>
    <message>
        <source>&amp;Microphone:</source>
        <translation>&amp;Mikrofon:</translation>
    </message>
    <message>
        <source>Looking for the microphone ...</source>
        <translation>Das Mikrofon wird gesucht ...</translation>
    </message>
    <message>
        <source>The recording ended by itself: it cannot be longer than ten minutes</source>
        <translation>Die Aufnahme endete von selbst: Länger als zehn Minuten kann sie nicht sein</translation>
    </message>
    <message>
        <source>Not recorded</source>
        <translation>Nicht aufgenommen</translation>
    </message>
    <message>
        <source>Nothing was heard: is the microphone muted?</source>
        <translation>Es war nichts zu hören: Ist das Mikrofon stumm?</translation>
    </message>
    <message>
        <source>It was too loud and is distorted: speak more softly, or from farther away</source>
        <translation>Es war zu laut und ist verzerrt: Sprechen Sie leiser oder aus größerer Entfernung</translation>
    </message>
    <message>
        <source>Recorded: %1 s</source>
        <translation>Aufgenommen: %1 s</translation>
    </message>
    <message>
        <source>All texts are recorded</source>
        <translation>Alle Texte sind aufgenommen</translation>
    </message>
    <message>
        <source>Nothing was heard, so there is nothing to keep</source>
        <translation>Es war nichts zu hören, also gibt es nichts zu behalten</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>Wird gespeichert ...</translation>
    </message>
    <message>
        <source>This recording is not kept yet. Keep it?</source>
        <translation>Diese Aufnahme ist noch nicht behalten. Behalten?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>&amp;Throw away</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>Es lässt sich nicht abspielen: %1</translation>
    </message>
    <message>
        <source>Text %1 of %2, %3 missing</source>
        <translation>Text %1 von %2, %3 fehlen</translation>
    </message>
    <message>
        <source>&amp;Stop (Space)</source>
        <translation>&amp;Stopp (Leertaste)</translation>
    </message>
    <message>
        <source>&amp;Record (Space)</source>
        <translation>&amp;Aufnehmen (Leertaste)</translation>
    </message>
    <message>
        <source>Stop &amp;listening</source>
        <translation>Nicht mehr an&amp;hören</translation>
    </message>
    <message>
        <source>Keep, &amp;next (Enter)</source>
        <translation>Behalten, &amp;weiter (Eingabe)</translation>
    </message>
    <message>
        <source>&amp;Next (Enter)</source>
        <translation>&amp;Weiter (Eingabe)</translation>
    </message>
</context>
<context>
    <name>WaveHandle</name>
    <message>
        <source>Beginning of what is kept, in milliseconds</source>
        <translation>Anfang dessen, was bleibt, in Millisekunden</translation>
    </message>
    <message>
        <source>End of what is kept, in milliseconds</source>
        <translation>Ende dessen, was bleibt, in Millisekunden</translation>
    </message>
    <message>
        <source>Drag this to where the voice begins, or move it with the arrow keys</source>
        <translation>Ziehen Sie dies dorthin, wo die Stimme beginnt, oder bewegen Sie es mit den Pfeiltasten</translation>
    </message>
    <message>
        <source>Drag this to where the voice ends, or move it with the arrow keys</source>
        <translation>Ziehen Sie dies dorthin, wo die Stimme endet, oder bewegen Sie es mit den Pfeiltasten</translation>
    </message>
</context>
<context>
    <name>WaveView</name>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Noch nichts aufgenommen</translation>
    </message>
    <message>
        <source>%1 of %2 s are kept</source>
        <translation>%1 von %2 s bleiben</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Begin with a book</source>
        <translation>Mit einem Buch beginnen</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Neues Buch...</translation>
    </message>
    <message>
        <source>Asks for name, number, folder and pictures, and makes the book</source>
        <translation>Fragt nach Name, Nummer, Ordner und Bildern und legt das Buch an</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Opens a project that is there</source>
        <translation>Öffnet ein Projekt, das es schon gibt</translation>
    </message>
    <message>
        <source>Sample books, to try out and to change</source>
        <translation>Beispielbücher zum Ausprobieren und Ändern</translation>
    </message>
    <message>
        <source>Last books</source>
        <translation>Letzte Bücher</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Takes the book off this list; its files stay (Delete)</source>
        <translation>Nimmt das Buch aus dieser Liste; seine Dateien bleiben (Entf)</translation>
    </message>
    <message>
        <source>Copies this sample book to a folder of yours, and opens the copy</source>
        <translation>Kopiert dieses Beispielbuch in einen Ihrer Ordner und öffnet die Kopie</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 in %2 (not there any more)</source>
        <translation>%1 in %2 (nicht mehr da)</translation>
    </message>
    <message>
        <source>%1 is not there any more. It can be removed from the list.</source>
        <translation>%1 ist nicht mehr da. Das Buch kann aus der Liste entfernt werden.</translation>
    </message>
    <message>
        <source>%1 is off the list.</source>
        <translation>%1 steht nicht mehr in der Liste.</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>What was said</source>
        <translation>Was gesagt wurde</translation>
    </message>
    <message>
        <source>Tapped</source>
        <translation>Angetippt</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Gesagt</translation>
    </message>
    <message>
        <source>Waited</source>
        <translation>Gewartet</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Chosen by chance from:</source>
        <translation>Zufällig gewählt aus:</translation>
    </message>
    <message>
        <source>There is no script for this area</source>
        <translation>Für diesen Bereich gibt es kein Skript</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>A value ran over 65535 and went on from 0</source>
        <translation>Ein Wert lief über 65535 hinaus und ging bei 0 weiter</translation>
    </message>
    <message>
        <source>A value fell below 0 and went on from 65535</source>
        <translation>Ein Wert fiel unter 0 und ging bei 65535 weiter</translation>
    </message>
    <message>
        <source>The condition was %1, neither 0 nor 1, so no branch was run</source>
        <translation>Die Bedingung war %1, weder 0 noch 1, darum lief kein Zweig</translation>
    </message>
    <message>
        <source>There was no end after %1 steps</source>
        <translation>Nach %1 Schritten war kein Ende da</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, %2 steps</source>
        <translation>%1, %2 Schritte</translation>
    </message>
    <message>
        <source>The reader waits long before the first sound: %1 steps</source>
        <translation>Der Leser wartet lange auf den ersten Ton: %1 Schritte</translation>
    </message>
    <message>
        <source>Until the first sound: %1 steps</source>
        <translation>Bis zum ersten Ton: %1 Schritte</translation>
    </message>
    <message>
        <source>What was tapped and what was heard, the latest at the end</source>
        <translation>Was angetippt und was gehört wurde, das Neueste am Ende</translation>
    </message>
</context>
<context>
    <name>PageWindow</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Seite zum Antippen</translation>
    </message>
</context>
<context>
    <name>ReaderPage</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Seite zum Antippen</translation>
    </message>
    <message>
        <source>The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages.</source>
        <translation>Die Pfeiltasten gehen von Bereich zu Bereich, Enter tippt an, Bild auf und Bild ab blättern.</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>A click sets a breakpoint, or takes it away (F9)</source>
        <translation>Ein Klick setzt einen Haltepunkt oder nimmt ihn weg (F9)</translation>
    </message>
    <message>
        <source>The script that runs</source>
        <translation>Das laufende Skript</translation>
    </message>
    <message>
        <source>The script that runs, with the line that is next; a double click goes to the line in the tab Script, to change it</source>
        <translation>Das Skript, das läuft, mit der nächsten Zeile; ein Doppelklick geht zur Zeile auf dem Reiter Skript, um sie zu ändern</translation>
    </message>
</context>
<context>
    <name>TriedBook</name>
    <message>
        <source>A text is too long for the speech program and is only shown.</source>
        <translation>Ein Text ist zu lang für das Sprachprogramm und wird nur gezeigt.</translation>
    </message>
    <message>
        <source>The speech program is not there: texts without an audio file are only shown.</source>
        <translation>Das Sprachprogramm fehlt: Texte ohne Audiodatei werden nur gezeigt.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown.</source>
        <translation>Das Sprachprogramm konnte einen Text nicht sprechen; er wird nur gezeigt.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown: %1</source>
        <translation>Das Sprachprogramm konnte einen Text nicht sprechen; er wird nur gezeigt: %1</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now. Line %1: %2</source>
        <translation>Das Buch lässt sich so nicht ausprobieren. Zeile %1: %2</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now: %1</source>
        <translation>Das Buch lässt sich so nicht ausprobieren: %1</translation>
    </message>
</context>
<context>
    <name>SpeechModel</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>spoken</source>
        <translation>gesprochen</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>aufgenommen</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>impossible</source>
        <translation>unmöglich</translation>
    </message>
    <message>
        <source>too long a name</source>
        <translation>zu langer Name</translation>
    </message>
    <message>
        <source>too long a text</source>
        <translation>zu langer Text</translation>
    </message>
    <message>
        <source>name of line %1</source>
        <translation>Name von Zeile %1</translation>
    </message>
    <message>
        <source>welcome</source>
        <translation>Begrüßung</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, line %2: %3, %4</source>
        <translation>%1, Zeile %2: %3, %4</translation>
    </message>
    <message>
        <source>%1, welcome: %2, %3</source>
        <translation>%1, Begrüßung: %2, %3</translation>
    </message>
    <message>
        <source>Goes to the line in the script</source>
        <translation>Geht zur Zeile im Skript</translation>
    </message>
    <message>
        <source>Goes to the name of the product</source>
        <translation>Geht zum Namen des Produkts</translation>
    </message>
    <message>
        <source>Plays this text, or stops it</source>
        <translation>Spielt diesen Text ab oder beendet ihn</translation>
    </message>
    <message>
        <source>There is no audio file yet; the next build speaks the text</source>
        <translation>Es gibt noch keine Audiodatei; beim nächsten Erstellen wird der Text gesprochen</translation>
    </message>
    <message>
        <source>The audio file was spoken by the speech program</source>
        <translation>Die Audiodatei wurde vom Sprachprogramm gesprochen</translation>
    </message>
    <message>
        <source>The audio file is your own; a build leaves it as it is</source>
        <translation>Die Audiodatei ist Ihre eigene; das Erstellen lässt sie, wie sie ist</translation>
    </message>
    <message>
        <source>The text or its voice has changed since it was spoken; the next build speaks it again</source>
        <translation>Der Text oder seine Stimme hat sich geändert, seit er gesprochen wurde; beim nächsten Erstellen wird er neu gesprochen</translation>
    </message>
    <message>
        <source>The text is too long for the name of an audio file; say it in several parts</source>
        <translation>Der Text ist zu lang für den Namen einer Audiodatei; sagen Sie ihn in mehreren Teilen</translation>
    </message>
    <message>
        <source>The text is too long for the speech program; it can be recorded</source>
        <translation>Der Text ist zu lang für das Sprachprogramm; er kann aufgenommen werden</translation>
    </message>
    <message>
        <source>The pen says the text of line %1 here: both have one audio name, in which all but letters and digits is the same</source>
        <translation>Der Stift sagt hier den Text von Zeile %1: Beide haben denselben Audionamen, in dem alles außer Buchstaben und Ziffern gleich ist</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>SpeechTab</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search in the texts</source>
        <translation>In den Texten suchen</translation>
    </message>
    <message>
        <source>Shows only texts that hold these words, to find one among many; empty shows all</source>
        <translation>Zeigt nur Texte, die diese Wörter enthalten, um einen unter vielen zu finden; leer zeigt alle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Shows only texts of this state, such as those that are missing still</source>
        <translation>Zeigt nur Texte in diesem Zustand, etwa die, die noch fehlen</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>Alle Zustände</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>Shows only texts of this voice, such as those that one person records</source>
        <translation>Zeigt nur Texte dieser Stimme, etwa die, die eine Person aufnimmt</translation>
    </message>
    <message>
        <source>All voices</source>
        <translation>Alle Stimmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ends what is being made; what is done stays</source>
        <translation>Beendet, was gerade gemacht wird; was fertig ist, bleibt</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <source>Plays the selected texts, one after the other, or stops</source>
        <translation>Spielt die ausgewählten Texte nacheinander ab oder hört damit auf</translation>
    </message>
    <message>
        <source>&amp;Speak</source>
        <translation>&amp;Sprechen</translation>
    </message>
    <message>
        <source>Has the selected texts spoken that are missing or out of date; without a selection all of them</source>
        <translation>Lässt die ausgewählten Texte sprechen, die fehlen oder veraltet sind; ohne Auswahl alle</translation>
    </message>
    <message>
        <source>Re&amp;cord...</source>
        <translation>&amp;Aufnehmen...</translation>
    </message>
    <message>
        <source>Records texts with the microphone, one after the other, beginning with the selected one</source>
        <translation>Nimmt Texte mit dem Mikrofon auf, einen nach dem anderen, angefangen beim ausgewählten</translation>
    </message>
    <message>
        <source>&amp;Use file...</source>
        <translation>&amp;Datei nehmen...</translation>
    </message>
    <message>
        <source>Takes a sound file for the selected text; one can also be dropped on a row</source>
        <translation>Nimmt eine Tondatei für den ausgewählten Text; man kann sie auch auf eine Zeile ziehen</translation>
    </message>
    <message>
        <source>Take &amp;back</source>
        <translation>&amp;Zurücknehmen</translation>
    </message>
    <message>
        <source>Puts the selected recordings into the trash, so that the texts are spoken again</source>
        <translation>Legt die ausgewählten Aufnahmen in den Papierkorb, so dass die Texte wieder gesprochen werden</translation>
    </message>
    <message>
        <source>&amp;Even out</source>
        <translation>An&amp;gleichen</translation>
    </message>
    <message>
        <source>Makes the selected texts equally loud; without a selection all</source>
        <translation>Macht die ausgewählten Texte gleich laut; ohne Auswahl alle</translation>
    </message>
    <message>
        <source>Try &amp;voices...</source>
        <translation>S&amp;timmen probieren...</translation>
    </message>
    <message>
        <source>Lets you hear one sentence in many voices, and writes the one that you like into the script</source>
        <translation>Lässt Sie einen Satz in vielen Stimmen hören und schreibt die, die gefällt, ins Skript</translation>
    </message>
    <message>
        <source>Save the project first: its audio files lie in a folder beside it.</source>
        <translation>Speichern Sie zuerst das Projekt: Seine Audiodateien liegen in einem Ordner daneben.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 Text</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 Texte</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>This text has no audio file yet.</source>
        <translation>Dieser Text hat noch keine Audiodatei.</translation>
    </message>
    <message>
        <source>Wait until what is being made is done.</source>
        <translation>Warten Sie, bis fertig ist, was gerade gemacht wird.</translation>
    </message>
    <message>
        <source>Speaking...</source>
        <translation>Wird gesprochen...</translation>
    </message>
    <message>
        <source>Making the texts equally loud...</source>
        <translation>Die Texte werden gleich laut gemacht...</translation>
    </message>
    <message>
        <source>Use file</source>
        <translation>Datei nehmen</translation>
    </message>
    <message>
        <source>Sound files</source>
        <translation>Tondateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>This text can have no file: %1.</source>
        <translation>Dieser Text kann keine Datei haben: %1.</translation>
    </message>
    <message>
        <source>Taking the file...</source>
        <translation>Die Datei wird übernommen...</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 bleibt: Die Datei kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>1 recording is in the trash.</source>
        <translation>1 Aufnahme ist im Papierkorb.</translation>
    </message>
    <message>
        <source>%1 recordings are in the trash.</source>
        <translation>%1 Aufnahmen sind im Papierkorb.</translation>
    </message>
    <message>
        <source>&amp;Import folder...</source>
        <translation>&amp;Ordner nehmen...</translation>
    </message>
    <message>
        <source>Takes recordings from a folder; one can also be dropped on the table</source>
        <translation>Nimmt Aufnahmen aus einem Ordner; man kann ihn auch auf die Tabelle ziehen</translation>
    </message>
    <message>
        <source>Prin&amp;t sheet...</source>
        <translation>&amp;Lesebogen drucken...</translation>
    </message>
    <message>
        <source>Makes a PDF to be printed, from which somebody reads the selected texts; without a selection all</source>
        <translation>Macht ein PDF zum Drucken, aus dem jemand die ausgewählten Texte liest; ohne Auswahl alle</translation>
    </message>
    <message>
        <source>Save s&amp;heet...</source>
        <translation>Lese&amp;bogen speichern...</translation>
    </message>
    <message>
        <source>Saves the sheet to read the selected texts from as a text; without a selection all</source>
        <translation>Speichert den Lesebogen der ausgewählten Texte als Textdatei; ohne Auswahl alle</translation>
    </message>
    <message>
        <source>Ti&amp;dy...</source>
        <translation>A&amp;ufräumen...</translation>
    </message>
    <message>
        <source>Lists the audio files that no text uses, and moves them to the trash</source>
        <translation>Listet die Audiodateien auf, die kein Text benutzt, und legt sie in den Papierkorb</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Ordner nehmen</translation>
    </message>
    <message>
        <source>%1 is the audio folder of the book itself.</source>
        <translation>%1 ist der Audioordner des Buches selbst.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>Der Ordner %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There are no files in %1.</source>
        <translation>In %1 sind keine Dateien.</translation>
    </message>
    <message>
        <source>Print sheet</source>
        <translation>Lesebogen drucken</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Save sheet</source>
        <translation>Lesebogen speichern</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>reading sheet</source>
        <translation>Lesebogen</translation>
    </message>
    <message>
        <source>Writing the sheet...</source>
        <translation>Der Lesebogen wird geschrieben...</translation>
    </message>
    <message>
        <source>The script has mistakes, so it is not known which audio files it uses. Correct them first.</source>
        <translation>Das Skript hat Fehler, deshalb ist nicht bekannt, welche Audiodateien es benutzt. Berichtigen Sie sie zuerst.</translation>
    </message>
    <message>
        <source>All audio files are used by texts.</source>
        <translation>Alle Audiodateien werden von Texten benutzt.</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>Die Dateien kommen in den Papierkorb...</translation>
    </message>
</context>
<context>
    <name>SpeechView</name>
    <message>
        <source>Texts of the book</source>
        <translation>Texte des Buches</translation>
    </message>
    <message>
        <source>Space plays a text, Enter goes to its line in the script</source>
        <translation>Die Leertaste spielt einen Text ab, die Eingabetaste geht zu seiner Zeile im Skript</translation>
    </message>
    <message>
        <source>Every text of the book. A click on the sign plays it (Space), one on the line goes there (Enter)</source>
        <translation>Jeder Text des Buchs. Ein Klick auf das Zeichen spielt ihn (Leertaste), einer auf die Zeile geht dorthin (Eingabetaste)</translation>
    </message>
</context>
<context>
    <name>SpeechJobs</name>
    <message>
        <source>The text was spoken.</source>
        <translation>Der Text wurde gesprochen.</translation>
    </message>
    <message>
        <source>%1 texts were spoken.</source>
        <translation>%1 Texte wurden gesprochen.</translation>
    </message>
    <message>
        <source>Speaking was cancelled. &quot;Speak&quot; goes on where it stopped.</source>
        <translation>Das Sprechen wurde abgebrochen. „Sprechen“ macht dort weiter.</translation>
    </message>
    <message>
        <source>Not all texts could be spoken:</source>
        <translation>Nicht alle Texte konnten gesprochen werden:</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>1 recording was taken.</source>
        <translation>1 Aufnahme wurde übernommen.</translation>
    </message>
    <message>
        <source>%1 recordings were taken.</source>
        <translation>%1 Aufnahmen wurden übernommen.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>1 audio file was made as loud as all are to be.</source>
        <translation>1 Audiodatei wurde so laut gemacht, wie alle sein sollen.</translation>
    </message>
    <message>
        <source>%1 audio files were made as loud as all are to be.</source>
        <translation>%1 Audiodateien wurden so laut gemacht, wie alle sein sollen.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The sheet is in the file %1.</source>
        <translation>Der Lesebogen ist in der Datei %1.</translation>
    </message>
    <message>
        <source>The numbers begin anew; earlier sheets do not fit any more.</source>
        <translation>Die Nummern beginnen neu; frühere Lesebögen passen nicht mehr.</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 bleibt: Die Datei kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>1 file is in the trash.</source>
        <translation>1 Datei ist im Papierkorb.</translation>
    </message>
    <message>
        <source>%1 files are in the trash.</source>
        <translation>%1 Dateien sind im Papierkorb.</translation>
    </message>
</context>
<context>
    <name>SheetPdf</name>
    <message>
        <source>Record each text as a file of its own whose name begins with the number: 7.wav</source>
        <translation>Nehmen Sie jeden Text als eigene Datei auf, deren Name mit der Nummer beginnt: 7.wav</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Was daraus wird</translation>
    </message>
    <message>
        <source>&amp;All that fit</source>
        <translation>&amp;Alle, die passen</translation>
    </message>
    <message>
        <source>Import recordings</source>
        <translation>Aufnahmen importieren</translation>
    </message>
    <message>
        <source>Files and the texts that they fit</source>
        <translation>Dateien und die Texte, zu denen sie passen</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>Die Leertaste setzt oder entfernt den Haken der ausgewählten Dateien</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick are taken</source>
        <translation>Setzt oder entfernt alle Haken; nur Dateien mit einem Haken werden übernommen</translation>
    </message>
    <message>
        <source>Taking the files...</source>
        <translation>Die Dateien werden übernommen...</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Takes the files with a tick as the recordings of their texts</source>
        <translation>Nimmt die Dateien mit einem Haken als Aufnahmen ihrer Texte</translation>
    </message>
    <message>
        <source>fits by its name</source>
        <translation>passt mit seinem Namen</translation>
    </message>
    <message>
        <source>fits by its text</source>
        <translation>passt mit seinem Text</translation>
    </message>
    <message>
        <source>fits by its number</source>
        <translation>passt mit seiner Nummer</translation>
    </message>
    <message>
        <source>%1; takes the place of your recording, which is kept</source>
        <translation>%1; ersetzt Ihre Aufnahme, die aufgehoben wird</translation>
    </message>
    <message>
        <source>not taken: another file fits the text better</source>
        <translation>nicht übernommen: eine andere Datei passt besser zum Text</translation>
    </message>
    <message>
        <source>not taken: other files fit the text as well</source>
        <translation>nicht übernommen: andere Dateien passen ebenso zum Text</translation>
    </message>
    <message>
        <source>not taken: it fits several texts</source>
        <translation>nicht übernommen: passt zu mehreren Texten</translation>
    </message>
    <message>
        <source>not taken: it fits no text</source>
        <translation>nicht übernommen: passt zu keinem Text</translation>
    </message>
    <message>
        <source>%1 of %2 files become recordings. Take away the tick of what is to be left out.</source>
        <translation>%1 von %2 Dateien werden Aufnahmen. Nehmen Sie den Haken weg, wo eine wegbleiben soll.</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>nicht übernommen</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>übernommen: %1</translation>
    </message>
</context>
<context>
    <name>TidyDialog</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Tidy</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>No text uses these audio files. Those with a tick go into the system&apos;s trash, from where you can take them back.</source>
        <translation>Kein Text benutzt diese Audiodateien. Die mit einem Haken kommen in den Papierkorb des Systems, aus dem Sie sie zurückholen können.</translation>
    </message>
    <message>
        <source>Files that no text uses</source>
        <translation>Dateien, die kein Text benutzt</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>Die Leertaste setzt oder entfernt den Haken der ausgewählten Dateien</translation>
    </message>
    <message>
        <source>spoken by the speech program</source>
        <translation>vom Sprechprogramm gesprochen</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>Ihre eigene</translation>
    </message>
    <message>
        <source>&amp;All files</source>
        <translation>&amp;Alle Dateien</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick go to the trash</source>
        <translation>Setzt oder entfernt alle Haken; nur Dateien mit einem Haken kommen in den Papierkorb</translation>
    </message>
    <message>
        <source>&amp;Move to the trash</source>
        <translation>In den &amp;Papierkorb</translation>
    </message>
</context>
<context>
    <name>TryTab</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Nochmal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Switches the book on, as START on paper does: plays the welcome</source>
        <translation>Schaltet das Buch ein, wie START auf dem Papier: spielt die Begrüßung</translation>
    </message>
    <message>
        <source>Plays once more what was played last, as REPLAY on paper does</source>
        <translation>Spielt noch einmal, was zuletzt gespielt wurde, wie REPLAY auf dem Papier</translation>
    </message>
    <message>
        <source>Ends the sound that plays, as STOP on paper does</source>
        <translation>Beendet den Ton, der läuft, wie STOP auf dem Papier</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>All as in the beginning: nothing was tapped, no variable changed</source>
        <translation>Alles wie am Anfang: nichts angetippt, keine Variable geändert</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Goes on by one line of the script; the next tap begins like that</source>
        <translation>Geht um eine Zeile des Skripts weiter; das nächste Antippen beginnt so</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Goes on to the next breakpoint</source>
        <translation>Geht weiter bis zum nächsten Haltepunkt</translation>
    </message>
    <message>
        <source>Breakpoint</source>
        <translation>Haltepunkt</translation>
    </message>
    <message>
        <source>Sets a breakpoint at the line of the caret, or takes it away</source>
        <translation>Setzt einen Haltepunkt an der Zeile der Schreibmarke oder nimmt ihn weg</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Shows the page in a window of its own, for a second screen</source>
        <translation>Zeigt die Seite in einem eigenen Fenster, für einen zweiten Bildschirm</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The page that is shown; Page Up and Page Down turn the pages, too</source>
        <translation>Die gezeigte Seite; auch Bild auf und Bild ab blättern</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Begins anew and writes down what is tapped, as a book test; a second click keeps it</source>
        <translation>Beginnt neu und schreibt als Buchtest auf, was angetippt wird; ein zweiter Klick behält ihn</translation>
    </message>
    <message>
        <source>What is tapped now becomes a book test. Another click on &quot;Record&quot; keeps it.</source>
        <translation>Was jetzt angetippt wird, wird ein Buchtest. Ein weiterer Klick auf „Aufnehmen“ behält ihn.</translation>
    </message>
    <message>
        <source>Nothing was tapped, so there is no book test.</source>
        <translation>Nichts wurde angetippt, also gibt es keinen Buchtest.</translation>
    </message>
    <message>
        <source>The book test was not saved; it goes on. &quot;Fresh&quot; begins it anew.</source>
        <translation>Der Buchtest wurde nicht gespeichert; er geht weiter. „Neu“ beginnt ihn von vorn.</translation>
    </message>
    <message>
        <source>What is shown beside the page</source>
        <translation>Was neben der Seite gezeigt wird</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Gesagt</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>There is no area here.</source>
        <translation>Hier ist kein Bereich.</translation>
    </message>
    <message>
        <source>Line %1 comes next: F10 runs it, F5 goes on</source>
        <translation>Zeile %1 kommt als Nächstes: F10 führt sie aus, F5 geht weiter</translation>
    </message>
    <message>
        <source>Something is heard</source>
        <translation>Etwas ist zu hören</translation>
    </message>
    <message>
        <source>The next tap goes line by line</source>
        <translation>Das nächste Antippen geht Zeile für Zeile</translation>
    </message>
    <message>
        <source>Tap an area of the page</source>
        <translation>Tippen Sie einen Bereich der Seite an</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>How loud the book is on this computer; the pen has keys of its own</source>
        <translation>Wie laut das Buch auf diesem Computer ist; der Stift hat eigene Tasten</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The value that the script goes on with, from 0 to 65535</source>
        <translation>Der Wert, mit dem das Skript weitergeht, von 0 bis 65535</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>What the script remembers. A click on a value changes it, to try what would come then</source>
        <translation>Was sich das Skript merkt. Ein Klick auf einen Wert ändert ihn, um zu probieren, was dann käme</translation>
    </message>
</context>
<context>
    <name>TryVoicesDialog</name>
    <message>
        <source>The sentence is too long for the speech program.</source>
        <translation>Der Satz ist zu lang für das Sprachprogramm.</translation>
    </message>
    <message>
        <source>The speech program is not there.</source>
        <translation>Das Sprachprogramm fehlt.</translation>
    </message>
    <message>
        <source>The speech program could not speak the sentence.</source>
        <translation>Das Sprachprogramm konnte den Satz nicht sprechen.</translation>
    </message>
    <message>
        <source>The sentence was not spoken: %1</source>
        <translation>Der Satz wurde nicht gesprochen: %1</translation>
    </message>
    <message>
        <source>Try voices</source>
        <translation>Stimmen ausprobieren</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Stimmen</translation>
    </message>
    <message>
        <source>What all voices of this language say; write what your book will say</source>
        <translation>Was alle Stimmen dieser Sprache sagen; schreiben Sie, was Ihr Buch sagen wird</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language of the voices below those of the script, by age and sex</source>
        <translation>Die Sprache der Stimmen unter denen des Skripts, nach Alter und Geschlecht</translation>
    </message>
    <message>
        <source>&amp;Sentence:</source>
        <translation>&amp;Satz:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Abspielen</translation>
    </message>
    <message>
        <source>Lets the chosen voice say the sentence</source>
        <translation>Lässt die gewählte Stimme den Satz sagen</translation>
    </message>
    <message>
        <source>Play &amp;all</source>
        <translation>A&amp;lle abspielen</translation>
    </message>
    <message>
        <source>Lets one voice after the other say the sentence</source>
        <translation>Lässt eine Stimme nach der anderen den Satz sagen</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>Ends the sound, also while one voice after the other speaks</source>
        <translation>Beendet den Ton, auch während eine Stimme nach der anderen spricht</translation>
    </message>
    <message>
        <source>The name of the voice in the script, which stands behind say</source>
        <translation>Der Name der Stimme im Skript, der hinter say steht</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;Insert into the script</source>
        <translation>In das Skript &amp;einfügen</translation>
    </message>
    <message>
        <source>Writes the statement below into the script, so that texts can be said by this voice</source>
        <translation>Schreibt die Anweisung darunter ins Skript, sodass Texte mit dieser Stimme gesprochen werden können</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages.</source>
        <translation>Das Sprachprogramm nennt seine Sprachen nicht.</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages: %1</source>
        <translation>Das Sprachprogramm nennt seine Sprachen nicht: %1</translation>
    </message>
    <message>
        <source>%1 speaks.</source>
        <translation>%1 spricht.</translation>
    </message>
    <message>
        <source>The script has this voice.</source>
        <translation>Das Skript hat diese Stimme.</translation>
    </message>
    <message>
        <source>A name has small letters from a to z, and digits behind them.</source>
        <translation>Ein Name hat Kleinbuchstaben von a bis z und dahinter Ziffern.</translation>
    </message>
    <message>
        <source>The script has a voice of this name.</source>
        <translation>Das Skript hat eine Stimme mit diesem Namen.</translation>
    </message>
    <message>
        <source>%1 takes a breath ...</source>
        <translation>%1 holt Luft ...</translation>
    </message>
</context>
<context>
    <name>VoiceTable</name>
    <message>
        <source>girl</source>
        <translation>maedchen</translation>
    </message>
    <message>
        <source>boy</source>
        <translation>junge</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>schwester</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>bruder</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>mutter</translation>
    </message>
    <message>
        <source>father</source>
        <translation>vater</translation>
    </message>
    <message>
        <source>grandma</source>
        <translation>oma</translation>
    </message>
    <message>
        <source>grandpa</source>
        <translation>opa</translation>
    </message>
    <message>
        <source>Girl</source>
        <translation>Mädchen</translation>
    </message>
    <message>
        <source>Boy</source>
        <translation>Junge</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Frau</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Mann</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Sprecher</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Sprachprogramm</translation>
    </message>
    <message>
        <source>Voices of the script</source>
        <translation>Stimmen des Skripts</translation>
    </message>
    <message>
        <source>Other voices</source>
        <translation>Andere Stimmen</translation>
    </message>
</context>
<context>
    <name>SubNameNote</name>
    <message>
        <source>No area is selected, so this names none. Click one, then type its name.</source>
        <translation>Kein Bereich ist ausgewählt, also benennt das keinen. Klicke einen an, dann gib seinen Namen ein.</translation>
    </message>
    <message>
        <source>An area needs a name. Type one.</source>
        <translation>Ein Bereich braucht einen Namen. Gib einen ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand in a name. Leave it out.</source>
        <translation>„%1“ kann nicht in einem Namen stehen. Lass es weg.</translation>
    </message>
    <message>
        <source>A name cannot begin with &quot;%1&quot;. Begin with a letter.</source>
        <translation>Ein Name kann nicht mit „%1“ beginnen. Beginne mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>The name would be taken for a number of dots. Begin with a letter.</source>
        <translation>Der Name würde für eine Punktnummer gehalten. Beginne mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>&quot;asm&quot; with a number belongs to the compiler. Choose another name.</source>
        <translation>„asm“ mit einer Zahl gehört dem Compiler. Wähle einen anderen Namen.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name that begins with a digit. Begin with a letter.</source>
        <translation>Kein „goto“ kann zu einem Namen führen, der mit einer Ziffer beginnt. Beginne mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name with &quot;%1&quot;. Take letters, digits and &quot;_&quot;.</source>
        <translation>Kein „goto“ kann zu einem Namen mit „%1“ führen. Nimm Buchstaben, Ziffern und „_“.</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename everywhere</source>
        <translation>Überall umbenennen</translation>
    </message>
    <message>
        <source>&amp;New name of &quot;%1&quot;:</source>
        <translation>&amp;Neuer Name von „%1“:</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>RenameEverywhere</name>
    <message>
        <source>Rename &amp;everywhere...</source>
        <translation>Überall &amp;umbenennen ...</translation>
    </message>
    <message>
        <source>Changes the name on all pages and in the script</source>
        <translation>Ändert den Namen auf allen Seiten und im Skript</translation>
    </message>
    <message>
        <source>The script keeps the name &quot;%1&quot;: both names stand there now.</source>
        <translation>Das Skript behält den Namen „%1“: dort stehen jetzt beide Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>„%1“ heißt jetzt überall „%2“.</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Stellen im Skript: %1</translation>
    </message>
    <message>
        <source>Areas: %1 (pages: %2)</source>
        <translation>Bereiche: %1 (Seiten: %2)</translation>
    </message>
    <message>
        <source>The script has a sub of this name already, and can have only one. Choose another name.</source>
        <translation>Das Skript hat schon ein sub dieses Namens und kann nur eines haben. Wähle einen anderen Namen.</translation>
    </message>
    <message>
        <source>This name is taken already.</source>
        <translation>Dieser Name ist schon vergeben.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is taken already. The areas would share one number and one sub. Rename?</source>
        <translation>Der Name „%1“ ist schon vergeben. Die Bereiche hätten dann eine Nummer und ein sub gemeinsam. Umbenennen?</translation>
    </message>
    <message>
        <source>Rename everywhere</source>
        <translation>Überall umbenennen</translation>
    </message>
</context>
<context>
    <name>ScriptHelp</name>
    <message>
        <source>There is no name of a sub, variable or voice here.</source>
        <translation>Hier steht kein Name eines sub, einer Variablen oder einer Stimme.</translation>
    </message>
    <message>
        <source>No area has the name &quot;%1&quot;.</source>
        <translation>Kein Bereich hat den Namen „%1“.</translation>
    </message>
    <message>
        <source>There is no sub and no area &quot;%1&quot;.</source>
        <translation>Es gibt kein sub und keinen Bereich „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is never set.</source>
        <translation>„%1“ wird nie gesetzt.</translation>
    </message>
    <message>
        <source>The voice &quot;%1&quot; is built in.</source>
        <translation>Die Stimme „%1“ ist eingebaut.</translation>
    </message>
    <message>
        <source>Uses of &quot;%1&quot;</source>
        <translation>Verwendungen von „%1“</translation>
    </message>
    <message>
        <source>Subs</source>
        <translation>Subs</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Stellen im Skript: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>„%1“ heißt jetzt überall „%2“.</translation>
    </message>
    <message>
        <source>Variable %1, never set: always 0</source>
        <translation>Variable %1, nie gesetzt: immer 0</translation>
    </message>
    <message>
        <source>Variable %1, set in lines %2</source>
        <translation>Variable %1, gesetzt in den Zeilen %2</translation>
    </message>
    <message>
        <source>Voice %1, line %2</source>
        <translation>Stimme %1, Zeile %2</translation>
    </message>
    <message>
        <source>Voice %1, built in</source>
        <translation>Stimme %1, eingebaut</translation>
    </message>
</context>
<context>
    <name>KeywordToolTips</name>
    <message>
        <source>without it: %1</source>
        <translation>ohne: %1</translation>
    </message>
</context>
<context>
    <name>ScriptLanguage</name>
    <message>
        <source>what the pen does when the area NAME is touched</source>
        <translation>was der Stift tut, wenn der Bereich NAME berührt wird</translation>
    </message>
    <message>
        <source>goes on with the sub NAME and does not come back</source>
        <translation>macht mit dem sub NAME weiter und kommt nicht zurück</translation>
    </message>
    <message>
        <source>gives a variable a value</source>
        <translation>gibt einer Variablen einen Wert</translation>
    </message>
    <message>
        <source>does one or the other</source>
        <translation>tut das eine oder das andere</translation>
    </message>
    <message>
        <source>chooses by the value of a variable</source>
        <translation>wählt nach dem Wert einer Variablen</translation>
    </message>
    <message>
        <source>declares a voice</source>
        <translation>vereinbart eine Stimme</translation>
    </message>
    <message>
        <source>speaks the text, or one of several</source>
        <translation>spricht den Text, oder einen von mehreren</translation>
    </message>
    <message>
        <source>the language: `en`, `de`, `es`, ...</source>
        <translation>die Sprache: `en`, `de`, `es`, ...</translation>
    </message>
    <message>
        <source>`m` or `f`</source>
        <translation>`m` oder `f`</translation>
    </message>
    <message>
        <source>1 to 99</source>
        <translation>1 bis 99</translation>
    </message>
    <message>
        <source>a number; meant is 1 to 5, up to 99 is accepted</source>
        <translation>eine Zahl; gemeint ist 1 bis 5, bis 99 wird angenommen</translation>
    </message>
</context>
<context>
    <name>JumpList</name>
    <message>
        <source>Type a part of it</source>
        <translation>Einen Teil davon eingeben</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>CompletionList</name>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
</context>
<context>
    <name>VariableNames</name>
    <message>
        <source>Take letters, digits and &quot;_&quot;, and begin with a letter.</source>
        <translation>Nimm Buchstaben, Ziffern und „_“ und beginne mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>Take small letters: a name with capitals is not found when it is read.</source>
        <translation>Nimm Kleinbuchstaben: ein Name mit Großbuchstaben wird beim Lesen nicht gefunden.</translation>
    </message>
    <message>
        <source>Names that begin with &quot;_&quot; belong to the compiler.</source>
        <translation>Namen, die mit „_“ beginnen, gehören dem Compiler.</translation>
    </message>
    <message>
        <source>This is a word of the language. Choose another name.</source>
        <translation>Das ist ein Wort der Sprache. Wähle einen anderen Namen.</translation>
    </message>
    <message>
        <source>This name is taken already. Choose another name.</source>
        <translation>Dieser Name ist schon vergeben. Wähle einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>CaretStatus</name>
    <message>
        <source>Help while writing</source>
        <translation>Hilfe beim Schreiben</translation>
    </message>
    <message>
        <source>Switches on and off what comes by itself while you write the script: names, indentation, explanations, marks</source>
        <translation>Schaltet ein und aus, was beim Schreiben des Skripts von selbst kommt: Namen, Einrückung, Erklärungen, Markierungen</translation>
    </message>
    <message>
        <source>&amp;Suggest names while typing</source>
        <translation>Namen beim Tippen &amp;vorschlagen</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>Neue Zeilen &amp;einrücken</translation>
    </message>
    <message>
        <source>&amp;Explain words under the mouse</source>
        <translation>W&amp;örter unter der Maus erklären</translation>
    </message>
    <message>
        <source>&amp;Mark problems in the text</source>
        <translation>Probleme im Text &amp;markieren</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>ÜB</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>EINF</translation>
    </message>
    <message>
        <source>Typing replaces what stands there (Insert)</source>
        <translation>Tippen ersetzt, was dort steht (Einfg)</translation>
    </message>
    <message>
        <source>Typing inserts (Insert)</source>
        <translation>Tippen fügt ein (Einfg)</translation>
    </message>
</context>
<context>
    <name>ScriptAreas</name>
    <message>
        <source>Area %1, number %2, page %3</source>
        <translation>Bereich %1, Nummer %2, Seite %3</translation>
    </message>
</context>
<context>
    <name>ChangedFileBar</name>
    <message>
        <source>Open the other</source>
        <translation>Das andere öffnen</translation>
    </message>
    <message>
        <source>Shows what the file holds now; your unsaved work is kept and offered</source>
        <translation>Zeigt, was jetzt in der Datei steht; die ungespeicherte Arbeit bleibt erhalten und wird angeboten</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Ein anderes Fenster oder Programm hat die Projektdatei geändert, seit dieses Fenster sie geöffnet oder gespeichert hat.</translation>
    </message>
</context>
<context>
    <name>NumberBar</name>
    <message>
        <source>This book gets another number</source>
        <translation>Dieses Buch bekommt eine andere Nummer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Both books keep their number</source>
        <translation>Beide Bücher behalten ihre Nummer</translation>
    </message>
    <message>
        <source>The number %1 is also that of %2 in this folder: the books would use the same pictures.</source>
        <translation>Die Nummer %1 hat in diesem Ordner auch %2: Die Bücher würden dieselben Bilder benutzen.</translation>
    </message>
    <message>
        <source>Take number %1</source>
        <translation>Nummer %1 nehmen</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Unsaved work cannot be kept in %1. Save it soon.</source>
        <translation>Ungespeicherte Arbeit kann in %1 nicht aufbewahrt werden. Bitte bald speichern.</translation>
    </message>
    <message>
        <source>That work is not there any more, or another window has it.</source>
        <translation>Diese Arbeit ist nicht mehr da, oder ein anderes Fenster hat sie.</translation>
    </message>
</context>
<context>
    <name>RecoveryBar</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Brings the unsaved work into the window; the file stays as it is</source>
        <translation>Holt die ungespeicherte Arbeit ins Fenster; die Datei bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Throws the unsaved work away</source>
        <translation>Wirft die ungespeicherte Arbeit weg</translation>
    </message>
    <message>
        <source>The copy of the unsaved work of %1 is damaged and cannot be restored. It stays here: %2</source>
        <translation>Die Kopie der ungespeicherten Arbeit vom %1 ist beschädigt und kann nicht wiederhergestellt werden. Sie bleibt hier: %2</translation>
    </message>
    <message>
        <source>There is work since %1 that was never saved.</source>
        <translation>Es gibt Arbeit seit dem %1, die nie gespeichert wurde.</translation>
    </message>
    <message>
        <source>There is unsaved work since %1 on a project that is not there any more: %2</source>
        <translation>Es gibt ungespeicherte Arbeit seit dem %1 an einem Projekt, das nicht mehr da ist: %2</translation>
    </message>
    <message>
        <source>There is unsaved work on this project since %1.</source>
        <translation>An diesem Projekt gibt es ungespeicherte Arbeit seit dem %1.</translation>
    </message>
</context>
<context>
    <name>SettingsBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Blendet diese Zeile aus</translation>
    </message>
    <message>
        <source>How you like the window cannot be kept for the next start, since %1 cannot be written: the disk is full, or the folder is protected.</source>
        <translation>Wie Sie das Fenster eingerichtet haben, bleibt nicht bis zum nächsten Start erhalten, denn %1 kann nicht geschrieben werden: Der Datenträger ist voll, oder der Ordner ist geschützt.</translation>
    </message>
</context>
<context>
    <name>PagePictures</name>
    <message>
        <source>The book has another number now. Save it before that.</source>
        <translation>Das Buch hat jetzt eine andere Nummer. Bitte vorher speichern.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>In den Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and saved that. Open the book again.</source>
        <translation>Ein anderes Fenster hat Seiten dieses Buchs verschoben und das gespeichert. Bitte das Buch neu öffnen.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and not saved that yet.</source>
        <translation>Ein anderes Fenster hat Seiten dieses Buchs verschoben und das noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>It is a link to a file outside of the project&apos;s folder.</source>
        <translation>Dort ist eine Verknüpfung zu einer Datei außerhalb des Projektordners.</translation>
    </message>
    <message>
        <source>It is damaged. Put the pictures in order, then remove it.</source>
        <translation>Sie ist beschädigt. Bitte die Bilder ordnen und sie dann löschen.</translation>
    </message>
</context>
<context>
    <name>AreaTools</name>
    <message>
        <source>Click an area to select it; drag it or its corners to change it</source>
        <translation>Einen Bereich durch Klicken auswählen, durch Ziehen an ihm oder seinen Ecken ändern</translation>
    </message>
    <message>
        <source>A new area: click its corners one after the other</source>
        <translation>Ein neuer Bereich: seine Ecken nacheinander anklicken</translation>
    </message>
    <message>
        <source>%1. By keys: arrows, Space, Enter</source>
        <translation>%1. Mit Tasten: Pfeile, Leertaste, Eingabetaste</translation>
    </message>
    <message>
        <source>Add rectangle</source>
        <translation>Rechteck hinzufügen</translation>
    </message>
    <message>
        <source>A new area: drag a rectangle, with Shift a square</source>
        <translation>Ein neuer Bereich: ein Rechteck aufziehen, mit Umschalt ein Quadrat</translation>
    </message>
    <message>
        <source>Add ellipse</source>
        <translation>Ellipse hinzufügen</translation>
    </message>
    <message>
        <source>A new area: drag an ellipse, with Shift a circle</source>
        <translation>Ein neuer Bereich: eine Ellipse aufziehen, mit Umschalt einen Kreis</translation>
    </message>
    <message>
        <source>Area of one colour</source>
        <translation>Bereich einer Farbe</translation>
    </message>
    <message>
        <source>A new area: click what has about the same colour</source>
        <translation>Ein neuer Bereich: anklicken, was etwa die gleiche Farbe hat</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; has fewer than three corners. The pen will not find it.</source>
        <translation>Der Bereich &quot;%1&quot; hat weniger als drei Ecken. Der Stift findet ihn nicht.</translation>
    </message>
    <message>
        <source>This page has no area to draw. &quot;+&quot; begins one.</source>
        <translation>Auf dieser Seite ist kein Bereich zu zeichnen. &quot;+&quot; beginnt einen.</translation>
    </message>
    <message>
        <source>Clicks now add corners to &quot;%1&quot;, the last area of this page.</source>
        <translation>Klicks fügen jetzt &quot;%1&quot;, dem letzten Bereich dieser Seite, Ecken hinzu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends drawing.</source>
        <translation>&quot;%1&quot; beendet das Zeichnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, which was there before, has one more corner. Undo takes it back.</source>
        <translation>&quot;%1&quot;, den es schon gab, hat eine Ecke mehr. Rückgängig nimmt sie zurück.</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; needs three corners.</source>
        <translation>Der Bereich &quot;%1&quot; braucht drei Ecken.</translation>
    </message>
    <message>
        <source>Enter takes the area, the wheel changes the tolerance: %1</source>
        <translation>Die Eingabetaste übernimmt den Bereich, das Rad ändert die Toleranz: %1</translation>
    </message>
    <message>
        <source>There is no picture here.</source>
        <translation>Hier ist kein Bild.</translation>
    </message>
</context>
<context>
    <name>WhyButton</name>
    <message>
        <source>Why?</source>
        <translation>Warum?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, where it tells what to do</source>
        <translation>Öffnet das Handbuch im Browser, wo es sagt, was zu tun ist</translation>
    </message>
</context>
<context>
    <name>ZoomActions</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse</source>
        <translation>Zeigt die Seite größer, für kleine Bereiche; Strg und das Rad tun es um die Maus herum</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too</source>
        <translation>Zeigt die Seite kleiner, um mehr davon auf einmal zu sehen; Strg und das Rad tun es auch</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Shows the page as wide as the window, however it was zoomed</source>
        <translation>Zeigt die Seite so breit wie das Fenster, wie immer sie gezoomt war</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Zoom: %1 %</translation>
    </message>
</context>
<context>
    <name>AreaTableModel</name>
    <message>
        <source>Fewer than three corners</source>
        <translation>Weniger als drei Ecken</translation>
    </message>
    <message>
        <source>Not in the script</source>
        <translation>Nicht im Skript</translation>
    </message>
    <message>
        <source>Number above 15000: not known to the pen</source>
        <translation>Nummer über 15000: kennt der Stift nicht</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
</context>
<context>
    <name>AreasDock</name>
    <message>
        <source>Areas</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the areas</source>
        <translation>Filter der Bereiche</translation>
    </message>
    <message>
        <source>Shows only areas whose name has this text, to find one among many; empty shows all</source>
        <translation>Zeigt nur Bereiche, deren Name diesen Text enthält, um einen unter vielen zu finden; leer zeigt alle</translation>
    </message>
    <message>
        <source>Areas of all pages</source>
        <translation>Bereiche aller Seiten</translation>
    </message>
    <message>
        <source>A click selects an area, a double click goes to its code, F2 renames it</source>
        <translation>Ein Klick wählt einen Bereich aus, ein Doppelklick geht zu seinem Code, F2 benennt ihn um</translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>PagesDock</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Pages of the book</source>
        <translation>Seiten des Buchs</translation>
    </message>
    <message>
        <source>Move page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Move page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Seite entfernen</translation>
    </message>
    <message>
        <source>Page %1 is page %2 now.</source>
        <translation>Seite %1 ist jetzt Seite %2.</translation>
    </message>
    <message>
        <source>Page %1 is removed with its areas. Undo brings it back.</source>
        <translation>Seite %1 ist mit ihren Bereichen entfernt. Rückgängig bringt sie zurück.</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>Keine Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete removes it, and Undo brings it back</source>
        <translation>Ein Klick geht zu einer Seite. Ziehen verschiebt sie (Strg+Auf, Strg+Ab); Entf entfernt sie, und Rückgängig bringt sie wieder</translation>
    </message>
</context>
</TS>
