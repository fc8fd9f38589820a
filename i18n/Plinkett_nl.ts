<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Plinkett</source>
        <translation>Over Plinkett</translation>
    </message>
    <message>
        <source>Makes printed books and boards talk.</source>
        <translation>Laat gedrukte boeken en borden praten.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licentie: %1</translation>
    </message>
    <message>
        <source>Libraries and their licences:</source>
        <translation>Bibliotheken en hun licenties:</translation>
    </message>
    <message>
        <source>Tells the version, to be named when something goes wrong, and the licences</source>
        <translation>Zegt de versie, te noemen als er iets misgaat, en de licenties</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>There is not enough memory to go on, so Plinkett ends here. What you had not saved is kept as it was some seconds ago: open the book again to get it back.</source>
        <translation>Er is niet genoeg geheugen om verder te gaan, daarom stopt Plinkett hier. Wat nog niet was opgeslagen, is bewaard zoals het enkele seconden geleden was: open het boek opnieuw om het terug te krijgen.</translation>
    </message>
</context>
<context>
    <name>AreaCommands</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>Takes the selected areas to the clipboard</source>
        <translation>Neemt de gekozen gebieden naar het klembord</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Copies the selected areas to the clipboard</source>
        <translation>Kopieert de gekozen gebieden naar het klembord</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Brings the areas on the clipboard onto this page: under their names, which are counted up on the page that they come from</source>
        <translation>Brengt de gebieden van het klembord op deze pagina: onder hun namen, die op de pagina waar ze vandaan komen worden doorgeteld</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;upliceren</translation>
    </message>
    <message>
        <source>Copies the selected areas beside themselves</source>
        <translation>Kopieert de gekozen gebieden naast zichzelf</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Deletes the selected areas</source>
        <translation>Verwijdert de gekozen gebieden</translation>
    </message>
    <message>
        <source>Where areas overlap, the one that comes first speaks</source>
        <translation>Waar gebieden overlappen, spreekt het eerste</translation>
    </message>
    <message>
        <source>Bring &amp;forward</source>
        <translation>Naar v&amp;oren</translation>
    </message>
    <message>
        <source>Send &amp;backward</source>
        <translation>Naar &amp;achteren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>A&amp;lles kiezen</translation>
    </message>
    <message>
        <source>Selects all areas of the page</source>
        <translation>Kiest alle gebieden van de pagina</translation>
    </message>
    <message>
        <source>Areas copied: %1</source>
        <translation>Gebieden gekopieerd: %1</translation>
    </message>
    <message>
        <source>Areas cut: %1</source>
        <translation>Gebieden geknipt: %1</translation>
    </message>
    <message>
        <source>The clipboard holds no areas.</source>
        <translation>Op het klembord staan geen gebieden.</translation>
    </message>
    <message>
        <source>The areas on the clipboard cannot be read: line %1 is not as it should be.</source>
        <translation>De gebieden op het klembord kunnen niet worden gelezen: regel %1 is niet zoals het hoort.</translation>
    </message>
    <message>
        <source>Areas pasted: %1</source>
        <translation>Gebieden geplakt: %1</translation>
    </message>
    <message>
        <source>%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.</source>
        <translation>%1 is gebied %2 van %3. Waar gebieden overlappen, spreekt het eerste.</translation>
    </message>
</context>
<context>
    <name>BookPrinting</name>
    <message>
        <source>&amp;PDF of the book...</source>
        <translation>&amp;PDF van het boek...</translation>
    </message>
    <message>
        <source>&amp;Symbols and legend...</source>
        <translation>&amp;Symbolen en legenda...</translation>
    </message>
    <message>
        <source>Printer&apos;s &amp;test page...</source>
        <translation>&amp;Testpagina van de printer...</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Er is nog geen plaatje</translation>
    </message>
    <message>
        <source>Creating the PDF...</source>
        <translation>De PDF wordt gemaakt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>The PDF was created: %1</source>
        <translation>De PDF is gemaakt: %1</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Het maken is geannuleerd</translation>
    </message>
    <message>
        <source>The PDF was not created: %1</source>
        <translation>De PDF is niet gemaakt: %1</translation>
    </message>
    <message>
        <source>Making the printer&apos;s test page...</source>
        <translation>De testpagina van de printer wordt gemaakt...</translation>
    </message>
    <message>
        <source>Print %1 at 100 %, and copy %2 onto the pen</source>
        <translation>Druk %1 af op 100 % en kopieer %2 naar de pen</translation>
    </message>
    <message>
        <source>The test page was not created: %1</source>
        <translation>De testpagina is niet gemaakt: %1</translation>
    </message>
</context>
<context>
    <name>DotPreview</name>
    <message>
        <source>Preview: a square centimetre of the page</source>
        <translation>Voorbeeld: een vierkante centimeter van de pagina</translation>
    </message>
    <message>
        <source>A square centimetre of the page: a pixel of the screen is one of the printer</source>
        <translation>Een vierkante centimeter van de pagina: een pixel van het scherm is er een van de printer</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>The pen says only one of these texts, at random</source>
        <translation>De pen zegt maar een van deze teksten, willekeurig</translation>
    </message>
    <message>
        <source>Say one after the other</source>
        <translation>De een na de ander zeggen</translation>
    </message>
    <message>
        <source>The saved project has one percent sign less here</source>
        <translation>In het opgeslagen project staat hier een procentteken minder</translation>
    </message>
    <message>
        <source>Write one percent sign</source>
        <translation>Eén procentteken schrijven</translation>
    </message>
    <message>
        <source>This text shares its audio file with &quot;%1&quot; in line %2, and the pen says that one here, too</source>
        <translation>Deze tekst deelt zijn audiobestand met “%1” in regel %2, en de pen zegt ook hier die tekst</translation>
    </message>
    <message>
        <source>This text is too long: the name of its audio file has %1 characters, and 251 are the most</source>
        <translation>Deze tekst is te lang: de naam van zijn audiobestand heeft %1 tekens, hoogstens 251 zijn mogelijk</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a language, so the texts of this voice are not spoken</source>
        <translation>„%1” kan geen taal zijn, dus de teksten van deze stem worden niet uitgesproken</translation>
    </message>
    <message>
        <source>When this is neither 0 nor 1, the pen does neither what stands behind if nor what stands behind else</source>
        <translation>Is dit noch 0 noch 1, dan doet de pen noch wat achter if noch wat achter else staat</translation>
    </message>
    <message>
        <source>Compare with 0</source>
        <translation>Met 0 vergelijken</translation>
    </message>
    <message>
        <source>&amp; and | bind tighter than comparisons: each comparison needs parentheses of its own</source>
        <translation>&amp; en | binden sterker dan vergelijkingen: elke vergelijking heeft eigen haakjes nodig</translation>
    </message>
    <message>
        <source>Put each comparison into parentheses</source>
        <translation>Elke vergelijking tussen haakjes zetten</translation>
    </message>
    <message>
        <source>What falls below 0 here goes on down from 65535, so the comparison takes it for large</source>
        <translation>Wat hier onder 0 komt, gaat vanaf 65535 omlaag verder; de vergelijking houdt het voor groot</translation>
    </message>
    <message>
        <source>Add on the other side</source>
        <translation>Aan de andere kant optellen</translation>
    </message>
    <message>
        <source>%1 is above 65535 and becomes %2</source>
        <translation>%1 is hoger dan 65535 en wordt %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is set here, but &apos;%2&apos; is read: names are read in small letters, and these are two variables</source>
        <translation>‘%1’ wordt hier gezet, maar ‘%2’ wordt gelezen: namen worden in kleine letters gelezen, en dit zijn twee variabelen</translation>
    </message>
    <message>
        <source>Write it in small letters</source>
        <translation>In kleine letters schrijven</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is set but never read</source>
        <translation>De variabele ‘%1’ wordt gezet maar nooit gelezen</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is read but never set, so it is always 0</source>
        <translation>De variabele ‘%1’ wordt gelezen maar nooit gezet, dus is ze altijd 0</translation>
    </message>
    <message>
        <source>No game can be built with a variable named &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Met een variabele ‘%1’ kan geen spel gebouwd worden: letters, cijfers en onderstrepingstekens zijn mogelijk, maar geen cijfer vooraan</translation>
    </message>
    <message>
        <source>The compiler uses the name &apos;%1&apos; itself; one of the two would be lost</source>
        <translation>De compiler gebruikt de naam ‘%1’ zelf; een van beide zou verloren gaan</translation>
    </message>
    <message>
        <source>No game can be built with a goto to &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Met een goto naar ‘%1’ kan geen spel gebouwd worden: letters, cijfers en onderstrepingstekens zijn mogelijk, maar geen cijfer vooraan</translation>
    </message>
    <message>
        <source>This stands outside of every sub and is never carried out</source>
        <translation>Dit staat buiten elke sub en wordt nooit uitgevoerd</translation>
    </message>
    <message>
        <source>The sub &apos;%1&apos; has no end, so no game can be built</source>
        <translation>De sub ‘%1’ heeft geen einde, dus kan geen spel gebouwd worden</translation>
    </message>
    <message>
        <source>End it behind its last line</source>
        <translation>Achter de laatste regel beëindigen</translation>
    </message>
    <message>
        <source>Add an empty sub</source>
        <translation>Een lege sub toevoegen</translation>
    </message>
    <message>
        <source>The pen never comes to this: it stands behind a goto</source>
        <translation>Hier komt de pen nooit: het staat achter een goto</translation>
    </message>
    <message>
        <source>This belongs to the select in line %1, which has ended, and not to the one in line %2</source>
        <translation>Dit hoort bij de select in regel %1, die al beëindigd is, en niet bij die in regel %2</translation>
    </message>
    <message>
        <source>The pen goes round for ever and says nothing: %1</source>
        <translation>De pen loopt eindeloos in een kring en zegt niets: %1</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with this name</source>
        <translation>Gebied ‘%1’ op pagina %2: met deze naam kan geen spel gebouwd worden</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the game reads this name as &apos;%3&apos;</source>
        <translation>Gebied ‘%1’ op pagina %2: het spel leest deze naam als ‘%3’</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with a sub whose name is a number</source>
        <translation>Gebied ‘%1’ op pagina %2: met een sub waarvan de naam een getal is, kan geen spel gebouwd worden</translation>
    </message>
    <message>
        <source>Give it a free number</source>
        <translation>Een vrij nummer geven</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: there is no dot pattern for the number %3, so nothing is printed</source>
        <translation>Gebied ‘%1’ op pagina %2: voor het nummer %3 is er geen puntenpatroon, dus wordt er niets gedrukt</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is below 1000, where the pen looks for books and its own signs</source>
        <translation>Gebied ‘%1’ op pagina %2: het nummer %3 is lager dan 1000, waar de pen boeken en eigen tekens zoekt</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is above 14999 and the pen does not know it</source>
        <translation>Gebied ‘%1’ op pagina %2: het nummer %3 is hoger dan 14999 en de pen kent het niet</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the area &apos;%4&apos; has the number %3, too; the pen takes both for one</source>
        <translation>Gebied ‘%1’ op pagina %2: ook het gebied ‘%4’ heeft nummer %3; de pen houdt beide voor één</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: in the last build &apos;%4&apos; had the number %3; the next build gives it another one</source>
        <translation>Gebied ‘%1’ op pagina %2: bij de laatste bouw had ‘%4’ het nummer %3; de volgende geeft het een ander</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it are black in the picture, where the pen sees no dots; 30 % are the most</source>
        <translation>Gebied ‘%1’ op pagina %2: %3 % ervan is zwart in de afbeelding, waar de pen geen punten ziet; 30 % is het hoogste</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 has fewer than three corners, so nothing is printed</source>
        <translation>Gebied ‘%1’ op pagina %2 heeft minder dan drie hoeken, dus wordt er niets gedrukt</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: its edges cross, and what is enclosed twice is left out</source>
        <translation>Gebied ‘%1’ op pagina %2: de randen kruisen elkaar, en wat twee keer omsloten is, blijft leeg</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it lie outside of the picture</source>
        <translation>Gebied ‘%1’ op pagina %2: %3 % ervan ligt buiten de afbeelding</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 lies wholly below areas that come before it, so the pen never finds it</source>
        <translation>Gebied ‘%1’ op pagina %2 ligt helemaal onder gebieden die ervoor komen, dus vindt de pen het nooit</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 is %3 mm wide on paper where it is widest; the pen needs 8 mm</source>
        <translation>Gebied ‘%1’ op pagina %2 is op de breedste plaats %3 mm breed op papier; de pen heeft 8 mm nodig</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the picture is too dark there for black dots, its lightness is %3 %; 35 % are needed</source>
        <translation>Gebied ‘%1’ op pagina %2: de afbeelding is daar te donker voor zwarte punten, de lichtheid is %3 %; 35 % is nodig</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the script has no sub of this name, so a touch does nothing</source>
        <translation>Gebied ‘%1’ op pagina %2: het script heeft geen sub met deze naam, dus doet een aanraking niets</translation>
    </message>
    <message>
        <source>No area and no goto leads to the sub &apos;%1&apos;, so it is never carried out</source>
        <translation>Geen gebied en geen goto leidt naar de sub ‘%1’, dus wordt die nooit uitgevoerd</translation>
    </message>
    <message>
        <source>The script has %1 steps; %2 are the most that a game can have</source>
        <translation>Het script heeft %1 stappen; een spel kan er hoogstens %2 hebben</translation>
    </message>
    <message>
        <source>The name of the product cannot have these characters: %1</source>
        <translation>De naam van het product kan deze tekens niet hebben: %1</translation>
    </message>
    <message>
        <source>The name of the product has %1 characters; no game can be built with more than 49</source>
        <translation>De naam van het product heeft %1 tekens; met meer dan 49 kan geen spel gebouwd worden</translation>
    </message>
    <message>
        <source>The game file cannot hold these characters of the product&apos;s name: %1</source>
        <translation>Het spelbestand kan deze tekens uit de naam van het product niet bevatten: %1</translation>
    </message>
    <message>
        <source>Other books in this folder have the number %1, too, and the same picture files: %2</source>
        <translation>Ook andere boeken in deze map hebben het nummer %1 en dezelfde afbeeldingsbestanden: %2</translation>
    </message>
    <message>
        <source>The number of the product is %1; books made at home have 900 to 950, others may be those of a bought book</source>
        <translation>Het nummer van het product is %1; zelfgemaakte boeken hebben 900 tot 950, andere kunnen van een gekocht boek zijn</translation>
    </message>
    <message>
        <source>No area has the product&apos;s number %1: nothing on the pages starts the book, so a page of symbols has to</source>
        <translation>Geen gebied heeft het nummer van het product, %1: niets op de pagina&apos;s start het boek, een blad met tekens moet dat doen</translation>
    </message>
    <message>
        <source>The script has %1 steps of the %2 that a game can have</source>
        <translation>Het script heeft %1 van de %2 stappen die een spel kan hebben</translation>
    </message>
    <message>
        <source>Page %1 has no areas; other programs that save the project lose it</source>
        <translation>Pagina %1 heeft geen gebieden; andere programma&apos;s die het project opslaan, verliezen haar</translation>
    </message>
    <message>
        <source>Page %1: on its paper the picture has %2 dpi; below 150 its pixels can be seen</source>
        <translation>Pagina %1: op haar papier heeft de afbeelding %2 dpi; onder 150 zijn de beeldpunten te zien</translation>
    </message>
    <message>
        <source>Print it with 1200 dpi</source>
        <translation>Met 1200 dpi afdrukken</translation>
    </message>
    <message>
        <source>Page %1: with %2 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right</source>
        <translation>Pagina %1: met %2 dpi worden de punten niet gelijkmatig gedrukt; 600 dpi of het dubbele, viervoudige is goed</translation>
    </message>
    <message>
        <source>Page %1: picture and paper have other proportions, so %2 mm of the paper stay blank</source>
        <translation>Pagina %1: afbeelding en papier hebben andere verhoudingen, dus blijft %2 mm van het papier leeg</translation>
    </message>
</context>
<context>
    <name>KVQtFindDialog</name>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Zoeken</translation>
    </message>
    <message>
        <source>Goes to the next place that holds the text (Return); F3 does it in the script</source>
        <translation>Gaat naar de volgende plaats met de tekst (Enter); F3 doet het in het script</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Vervangen</translation>
    </message>
    <message>
        <source>Replaces what is selected, or else the next place that holds the text</source>
        <translation>Vervangt de selectie of anders de volgende vindplaats</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>&amp;Alles vervangen</translation>
    </message>
    <message>
        <source>Replaces the text wherever it stands in the script; Undo brings all of it back</source>
        <translation>Vervangt de tekst overal in het script; Ongedaan maken brengt alles terug</translation>
    </message>
    <message>
        <source>Search &amp;backwards</source>
        <translation>&amp;Achteruit zoeken</translation>
    </message>
    <message>
        <source>Searches from the caret toward the beginning instead of the end</source>
        <translation>Zoekt vanaf de cursor naar het begin in plaats van het einde</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Vervangen door:</translation>
    </message>
    <message>
        <source>The text that takes its place; empty deletes what is found</source>
        <translation>De tekst die ervoor in de plaats komt; leeg verwijdert wat is gevonden</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Zoeken en vervangen</translation>
    </message>
    <message>
        <source>Find &amp;what:</source>
        <translation>Zoeken &amp;naar:</translation>
    </message>
    <message>
        <source>The text that is searched for; capital and small letters differ</source>
        <translation>De tekst die wordt gezocht; hoofdletters en kleine letters zijn verschillend</translation>
    </message>
</context>
<context>
    <name>KVQtHighlightEditCtrlInlay</name>
    <message>
        <source>Go to line</source>
        <translation>Ga naar regel</translation>
    </message>
    <message>
        <source>&amp;Line (1 to %1):</source>
        <translation>&amp;Regel (1 tot %1):</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ga</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Contextmenu</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>K&amp;nippen	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopiëren	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Plakken	Ctrl+V</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>&amp;Alles selecteren	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F3</source>
        <translation>&amp;Zoeken...	Ctrl+F3</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt	F3</source>
        <translation>&amp;Volgende zoeken	F3</translation>
    </message>
    <message>
        <source>&amp;Replace...	Ctrl+H</source>
        <translation>Ve&amp;rvangen...	Ctrl+H</translation>
    </message>
    <message>
        <source>Undo	Ctrl+Z</source>
        <translation>Ongedaan maken	Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo	Ctrl+Y</source>
        <translation>Opnieuw	Ctrl+Y</translation>
    </message>
    <message>
        <source>Toggle Bookmark	Ctrl+F2</source>
        <translation>Bladwijzer aan/uit	Ctrl+F2</translation>
    </message>
    <message>
        <source>Next Bookmark	F2</source>
        <translation>Volgende bladwijzer	F2</translation>
    </message>
    <message>
        <source>Previous Bookmark	Shift+F2</source>
        <translation>Vorige bladwijzer	Shift+F2</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Verder gezocht vanaf het einde.</translation>
    </message>
    <message>
        <source>Went on from the beginning.</source>
        <translation>Verder gezocht vanaf het begin.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Niets gevonden.</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Bezig met vervangen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>The text would become too large. It stays as it was.</source>
        <translation>De tekst zou te groot worden. Hij blijft zoals hij was.</translation>
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
        <translation>Project</translation>
    </message>
    <message>
        <source>Project Name</source>
        <translation>Projectnaam</translation>
    </message>
    <message>
        <source>The name of the book: the pen says it when the book is switched on, and game and PDF are named after it</source>
        <translation>De naam van het boek: de pen zegt hem als het boek wordt ingeschakeld, en spel en pdf heten ernaar</translation>
    </message>
    <message>
        <source>Project ID</source>
        <translation>Project-ID</translation>
    </message>
    <message>
        <source>The number by which the pen knows the book: each book on the pen needs its own, 900 to 950 for those made at home</source>
        <translation>Het nummer waaraan de pen het boek kent: elk boek op de pen heeft zijn eigen, 900 tot 950 voor zelfgemaakte</translation>
    </message>
    <message>
        <source>Current Picture (Area)</source>
        <translation>Huidige afbeelding (gebied)</translation>
    </message>
    <message>
        <source>Paper: [mm]</source>
        <translation>Papier: [mm]</translation>
    </message>
    <message>
        <source>Paper width in millimetres</source>
        <translation>Papierbreedte in millimeters</translation>
    </message>
    <message>
        <source>How wide this page is printed, in millimetres: its picture fills the paper</source>
        <translation>Hoe breed deze pagina wordt afgedrukt, in millimeters: de afbeelding vult het papier</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Paper height in millimetres</source>
        <translation>Papierhoogte in millimeters</translation>
    </message>
    <message>
        <source>How high this page is printed, in millimetres: its picture fills the paper</source>
        <translation>Hoe hoog deze pagina wordt afgedrukt, in millimeters: de afbeelding vult het papier</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, for this page: the pen needs 600 at least, better are 1200</source>
        <translation>De punten per inch van de printer, voor deze pagina: de pen heeft er minstens 600 nodig, beter is 1200</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Maken</translation>
    </message>
    <message>
        <source>Makes a print image (TIFF) of each page, for a print shop; for a printer at home take PDF</source>
        <translation>Maakt van elke pagina een afdrukbeeld (TIFF), voor een drukkerij; voor een printer thuis is er PDF</translation>
    </message>
    <message>
        <source>Create the output image now...</source>
        <translation>De afdrukafbeelding nu maken...</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Makes a PDF of the book for your own printer, each page in its true size; its menu (key Down) has symbols and the printer&apos;s test page</source>
        <translation>Maakt een pdf van het boek voor uw eigen printer, elke pagina op ware grootte; in het menu (toets Omlaag): tekens en de testpagina</translation>
    </message>
    <message>
        <source>Add START &amp;symbol</source>
        <translation>START-&amp;symbool toevoegen</translation>
    </message>
    <message>
        <source>An area with the number of the book, which the pen must touch before it knows it</source>
        <translation>Een gebied met het nummer van het boek, dat de pen moet aanraken voordat hij het kent</translation>
    </message>
    <message>
        <source>This page has its START symbol already: %1</source>
        <translation>Deze pagina heeft haar START-symbool al: %1</translation>
    </message>
    <message>
        <source>The START symbol lies over other areas: nothing of the page is free. Move it.</source>
        <translation>Het START-symbool ligt over andere gebieden: op de pagina is niets vrij. Verplaats het.</translation>
    </message>
    <message>
        <source>The START symbol is on the page. Drag it where you like.</source>
        <translation>Het START-symbool staat op de pagina. Sleep het waarheen u wilt.</translation>
    </message>
    <message>
        <source>For all pictures</source>
        <translation>Voor alle afbeeldingen</translation>
    </message>
    <message>
        <source>Gives the paper and the DPI of this picture to all others, for a book that is printed on one kind of paper</source>
        <translation>Geeft het papier en de DPI van deze afbeelding aan alle andere, voor een boek op één soort papier</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Er is nog geen afbeelding</translation>
    </message>
    <message>
        <source>Paper size and DPI must be greater than 0</source>
        <translation>Papierformaat en DPI moeten groter dan 0 zijn</translation>
    </message>
    <message>
        <source>All pictures have this paper and these DPI now</source>
        <translation>Alle afbeeldingen hebben nu dit papier en deze DPI</translation>
    </message>
    <message>
        <source>picture %1: %2 DPI are too few for the dots</source>
        <translation>afbeelding %1: %2 DPI zijn te weinig voor de punten</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Het maken is geannuleerd</translation>
    </message>
    <message>
        <source>Picture %1 was not created: %2</source>
        <translation>Afbeelding %1 is niet gemaakt: %2</translation>
    </message>
    <message>
        <source>1 print image created</source>
        <translation>1 afdrukafbeelding gemaakt</translation>
    </message>
    <message>
        <source>%1 print images created</source>
        <translation>%1 afdrukafbeeldingen gemaakt</translation>
    </message>
    <message>
        <source>Building...</source>
        <translation>Het spel wordt gebouwd...</translation>
    </message>
    <message>
        <source>The game was built: %1</source>
        <translation>Het spel is gebouwd: %1</translation>
    </message>
    <message>
        <source>The game was not built. The console tells why.</source>
        <translation>Het spel is niet gebouwd. De console zegt waarom.</translation>
    </message>
    <message>
        <source>The game was copied to the pen, which can be unplugged</source>
        <translation>Het spel is naar de pen gekopieerd, die losgekoppeld kan worden</translation>
    </message>
    <message>
        <source>The game was copied to the pen. Eject it before you unplug it</source>
        <translation>Het spel is naar de pen gekopieerd. Werp die uit voordat u hem loskoppelt</translation>
    </message>
    <message>
        <source>The game was not copied to the pen</source>
        <translation>Het spel is niet naar de pen gekopieerd</translation>
    </message>
    <message>
        <source>There is no game yet: build it first</source>
        <translation>Er is nog geen spel: bouw het eerst</translation>
    </message>
    <message>
        <source>No pen was found: a pen is a drive that holds the file %1</source>
        <translation>Er is geen pen gevonden: een pen is een station met het bestand %1</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handleiding</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Geopend: %1</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Niet geopend: %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Opgeslagen: %1</translation>
    </message>
    <message>
        <source>The script declares the new voice in its first line now.</source>
        <translation>Het script heeft de nieuwe stem nu op de eerste regel.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Niet opgeslagen: %1</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Gebieden</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Show the previous picture</source>
        <translation>Toont de vorige afbeelding</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Vorige afbeelding</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Shows the next picture or appends a new one</source>
        <translation>Toont de volgende afbeelding of voegt een nieuwe toe</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Volgende afbeelding</translation>
    </message>
    <message>
        <source>load...</source>
        <translation>laden...</translation>
    </message>
    <message>
        <source>Puts another picture file in the place of this one, such as a better scan; paper and areas stay</source>
        <translation>Zet een ander afbeeldingsbestand in de plaats van dit, zoals een betere scan; papier en gebieden blijven</translation>
    </message>
    <message>
        <source>✖</source>
        <translation>✖</translation>
    </message>
    <message>
        <source>Delete picture</source>
        <translation>Afbeelding verwijderen</translation>
    </message>
    <message>
        <source>Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete does it and Undo brings it back</source>
        <translation>Toont hoe deze pagina wordt verwijderd: in de lijst van pagina&apos;s (Ctrl+Shift+P), waar Delete het doet en Ongedaan maken haar terugbrengt</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebied</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>↖</translation>
    </message>
    <message>
        <source>Pick area mode</source>
        <translation>Gebieden kiezen</translation>
    </message>
    <message>
        <source>Pick area</source>
        <translation>Gebied kiezen</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Add a new polygon mode</source>
        <translation>Een nieuwe veelhoek tekenen</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Gebied toevoegen</translation>
    </message>
    <message>
        <source>Delete selected polygon</source>
        <translation>De gekozen veelhoek verwijderen</translation>
    </message>
    <message>
        <source>Delete area</source>
        <translation>Gebied verwijderen</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Area name</source>
        <translation>Naam van het gebied</translation>
    </message>
    <message>
        <source>The name of the area: the sub of that name in the script says what is heard. Areas of one name do the same</source>
        <translation>De naam van het gebied: de sub met die naam in het script zegt wat er klinkt. Gebieden met dezelfde naam doen hetzelfde</translation>
    </message>
    <message>
        <source>OID of the area</source>
        <translation>OID van het gebied</translation>
    </message>
    <message>
        <source>The number of the dots that the area is printed with: it comes by itself and stays, so that printed pages fit</source>
        <translation>Het nummer van de punten waarmee het gebied wordt afgedrukt: het komt vanzelf en blijft, zodat afgedrukte pagina&apos;s passen</translation>
    </message>
    <message>
        <source>Goto code</source>
        <translation>Naar de code</translation>
    </message>
    <message>
        <source>Goes to the sub of the area in the script, where what it says is written; begins one where there is none</source>
        <translation>Gaat naar de sub van het gebied in het script, waar staat wat het zegt; begint er een als er geen is</translation>
    </message>
    <message>
        <source>Picture with its areas</source>
        <translation>Afbeelding met haar gebieden</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Bouwen</translation>
    </message>
    <message>
        <source>Book tests (*.booktest)</source>
        <translation>Boektests (*.booktest)</translation>
    </message>
    <message>
        <source>Save book test</source>
        <translation>Boektest opslaan</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Proberen</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Spraak</translation>
    </message>
    <message>
        <source>👷 Build</source>
        <translation>👷 Bouwen</translation>
    </message>
    <message>
        <source>Builds the project to a binary game</source>
        <translation>Bouwt het project tot een kant-en-klaar spel</translation>
    </message>
    <message>
        <source>⚠Debug Mode</source>
        <translation>⚠Debugmodus</translation>
    </message>
    <message>
        <source>Tells (says) the code line number, when running on the device</source>
        <translation>Zegt op het apparaat het nummer van de coderegel</translation>
    </message>
    <message>
        <source>Copy to Device</source>
        <translation>Naar apparaat kopiëren</translation>
    </message>
    <message>
        <source>Copies the binary to the attached USB device</source>
        <translation>Kopieert het spel naar het aangesloten USB-apparaat</translation>
    </message>
    <message>
        <source>&amp;Quick answers</source>
        <translation>Sn&amp;elle antwoorden</translation>
    </message>
    <message>
        <source>Makes the same game in fewer steps, so that the pen answers at once, also where the script reckons much</source>
        <translation>Maakt hetzelfde spel in minder stappen, zodat de pen meteen antwoordt, ook waar het script veel rekent</translation>
    </message>
    <message>
        <source>The pen takes its time for every step of the script. With quick answers the game does the same in few of them. They are made by Plinkett&apos;s own assembler, also where tttool is installed.</source>
        <translation>De pen heeft voor elke stap van het script tijd nodig. Met snelle antwoorden doet het spel hetzelfde in weinig stappen. Ze worden gemaakt door de eigen assembler van Plinkett, ook als tttool geïnstalleerd is.</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>toolBar</source>
        <translation>Werkbalk</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Openen</translation>
    </message>
    <message>
        <source>Opens another book; of this one, what is not saved is kept and offered again</source>
        <translation>Opent een ander boek; wat van dit niet is opgeslagen, wordt bewaard en weer aangeboden</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Writes the book into its project file; pictures and audio files lie beside it</source>
        <translation>Schrijft het boek in zijn projectbestand; afbeeldingen en audiobestanden liggen ernaast</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Takes back the last step, on pages and areas, or in the script while that is shown</source>
        <translation>Maakt de laatste stap ongedaan, aan pagina&apos;s en gebieden, of in het script zolang dat te zien is</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Does again what was taken back last, until something else is changed</source>
        <translation>Doet opnieuw wat het laatst ongedaan is gemaakt, tot er iets anders wordt veranderd</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Opslaan &amp;als...</translation>
    </message>
    <message>
        <source>Saves the book under another name or in another folder, and takes pictures and audio files along</source>
        <translation>Slaat het boek op onder een andere naam of in een andere map en neemt afbeeldingen en audiobestanden mee</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Project openen</translation>
    </message>
    <message>
        <source>Project files (*.oidpro)</source>
        <translation>Projectbestanden (*.oidpro)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Project opslaan</translation>
    </message>
    <message>
        <source>Import Picture</source>
        <translation>Afbeelding importeren</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Afbeeldingen van de pagina&apos;s</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Nieuw boek...</translation>
    </message>
    <message>
        <source>Makes a book with the pictures of its pages</source>
        <translation>Maakt een boek met de afbeeldingen van zijn pagina&apos;s</translation>
    </message>
    <message>
        <source>Folder for your copy of the book</source>
        <translation>Map voor uw kopie van het boek</translation>
    </message>
    <message>
        <source>The book could not be copied to %1.</source>
        <translation>Het boek kon niet naar %1 worden gekopieerd.</translation>
    </message>
    <message>
        <source>Your copy of the book lies in %1.</source>
        <translation>Uw kopie van het boek staat in %1.</translation>
    </message>
    <message>
        <source>Picture files (*.png; *.jpg; *.jpeg; *.bmp)</source>
        <translation>Afbeeldingsbestanden (*.png; *.jpg; *.jpeg; *.bmp)</translation>
    </message>
    <message>
        <source>The file could not be saved to the drive</source>
        <translation>Het bestand kon niet op de schijf worden opgeslagen</translation>
    </message>
    <message>
        <source>This book has the number %1 now. Save it to keep that.</source>
        <translation>Dit boek heeft nu het nummer %1. Sla het op om dat te behouden.</translation>
    </message>
    <message>
        <source>No area is selected, so this numbers none. Click one, then type its number.</source>
        <translation>Er is geen gebied geselecteerd, dus dit nummert er geen. Klik er een aan en typ dan het nummer.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Creating the print images...</source>
        <translation>De afdrukafbeeldingen worden gemaakt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Making the speech...</source>
        <translation>De spraak wordt gemaakt...</translation>
    </message>
    <message>
        <source>Can&apos;t load that picture.</source>
        <translation>Deze afbeelding kan niet worden geladen.</translation>
    </message>
    <message>
        <source>Save the project first: its pictures are kept beside the project file.</source>
        <translation>Sla eerst het project op: de afbeeldingen worden naast het projectbestand bewaard.</translation>
    </message>
    <message>
        <source>Overwrite Picture</source>
        <translation>Afbeelding overschrijven</translation>
    </message>
    <message>
        <source>Do you want to overwrite the picture in the cache?</source>
        <translation>Wilt u de bewaarde afbeelding overschrijven?</translation>
    </message>
    <message>
        <source>The picture could not be kept beside the project file.</source>
        <translation>De afbeelding kon niet naast het projectbestand worden bewaard.</translation>
    </message>
    <message>
        <source>The pictures could not be brought to their pages.</source>
        <translation>De afbeeldingen konden niet bij hun pagina&apos;s worden gezet.</translation>
    </message>
    <message>
        <source>Shows or hides the list of the pages, in which one goes to pages, moves and removes them</source>
        <translation>Toont of verbergt de lijst van de pagina&apos;s, waarin men naar pagina&apos;s gaat, ze verplaatst en verwijdert</translation>
    </message>
    <message>
        <source>Shows or hides the list of all areas of the book, with what is wrong with them</source>
        <translation>Toont of verbergt de lijst van alle gebieden van het boek, met wat er niet klopt</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Een ander venster of programma heeft het projectbestand gewijzigd sinds dit venster het heeft geopend of opgeslagen.</translation>
    </message>
    <message>
        <source>Overwriting loses what the file holds now. When you open that, your unsaved work is kept and offered.</source>
        <translation>Overschrijven verliest wat er nu in het bestand staat. Als u dat opent, blijft uw niet-opgeslagen werk bewaard en wordt het aangeboden.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Opslaan &amp;als...</translation>
    </message>
    <message>
        <source>Open the o&amp;ther</source>
        <translation>Het a&amp;ndere openen</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Overschrijven</translation>
    </message>
    <message>
        <source>Your unsaved work cannot be kept. Save it under another name first.</source>
        <translation>Uw niet-opgeslagen werk kan niet worden bewaard. Sla het eerst onder een andere naam op.</translation>
    </message>
    <message>
        <source>%1: another window has moved pages and saved that. Open the book again.</source>
        <translation>%1: een ander venster heeft pagina&apos;s verplaatst en dat opgeslagen. Open het boek opnieuw.</translation>
    </message>
    <message>
        <source>The pictures are in the order of the pages again. Pages had been moved, but not saved.</source>
        <translation>De afbeeldingen staan weer in de volgorde van de pagina&apos;s. Er waren pagina&apos;s verplaatst, maar niet opgeslagen.</translation>
    </message>
    <message>
        <source>These files could not be copied along. The old ones are still where they were.</source>
        <translation>Deze bestanden konden niet worden meegekopieerd. De oude staan nog waar ze waren.</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Afbeelding verwijderen</translation>
    </message>
    <message>
        <source>Do you really want to delete this picture?</source>
        <translation>Wilt u deze afbeelding echt verwijderen?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, at what the shown tab is for</source>
        <translation>Opent de handleiding in de browser, bij waar het getoonde tabblad voor is</translation>
    </message>
    <message>
        <source>Pages are removed in the list of the pages, which opens now: Delete removes this one, and Undo brings it back.</source>
        <translation>Pagina&apos;s worden verwijderd in de lijst van de pagina&apos;s, die nu opengaat: Delete verwijdert deze, en Ongedaan maken brengt haar terug.</translation>
    </message>
    <message>
        <source>Delete removes page %1, and Undo brings it back.</source>
        <translation>Delete verwijdert pagina %1, en Ongedaan maken brengt haar terug.</translation>
    </message>
</context>
<context>
    <name>NewBook</name>
    <message>
        <source>The book needs a name.</source>
        <translation>Het boek heeft een naam nodig.</translation>
    </message>
    <message>
        <source>The number must be from %1 to %2.</source>
        <translation>Het nummer moet tussen %1 en %2 liggen.</translation>
    </message>
    <message>
        <source>The book needs a folder.</source>
        <translation>Het boek heeft een map nodig.</translation>
    </message>
    <message>
        <source>The folder needs its whole path.</source>
        <translation>De map moet met het hele pad worden opgegeven.</translation>
    </message>
    <message>
        <source>%1 is a file and no folder.</source>
        <translation>%1 is een bestand en geen map.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1.</source>
        <translation>In de map %1 kan niets worden geschreven.</translation>
    </message>
    <message>
        <source>There is a book already: %1. Take another name or folder.</source>
        <translation>Er is al een boek: %1. Neem een andere naam of map.</translation>
    </message>
    <message>
        <source>The book %1 in this folder has the number %2, too. Take another number or folder.</source>
        <translation>Ook het boek %1 in deze map heeft het nummer %2. Neem een ander nummer of een andere map.</translation>
    </message>
    <message>
        <source>In this folder is %1, which belongs to a book of the number %2. Take another number or folder.</source>
        <translation>In deze map staat %1, dat bij een boek met het nummer %2 hoort. Neem een ander nummer of een andere map.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>De map %1 kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>%1 is no picture, or cannot be read.</source>
        <translation>%1 is geen afbeelding of kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be kept in the folder of the book.</source>
        <translation>De afbeelding %1 kan niet in de map van het boek worden bewaard.</translation>
    </message>
</context>
<context>
    <name>NewBookDialog</name>
    <message>
        <source>New book</source>
        <translation>Nieuw boek</translation>
    </message>
    <message>
        <source>Make the book</source>
        <translation>Boek maken</translation>
    </message>
    <message>
        <source>The name of the book, which the pen says when it is switched on</source>
        <translation>De naam van het boek, die de pen bij het inschakelen zegt</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>%1 to %2, another one for each book on the pen; 900 to 950 are for books of your own</source>
        <translation>%1 tot %2, een ander voor elk boek op de pen; 900 tot 950 zijn voor eigen boeken</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nummer:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Pictures of the pages, which can also come later:</source>
        <translation>Afbeeldingen van de pagina&apos;s, die ook later kunnen komen:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Where all files of the book lie; it is made when it is not there</source>
        <translation>Waar alle bestanden van het boek staan; wordt gemaakt als hij er niet is</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Kiezen...</translation>
    </message>
    <message>
        <source>Chooses a folder that is there</source>
        <translation>Kiest een map die er al is</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Afbeeldingen van de pagina&apos;s</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Toevoegen...</translation>
    </message>
    <message>
        <source>Adds picture files, several at once</source>
        <translation>Voegt afbeeldingsbestanden toe, meerdere tegelijk</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Moves the picture to the page before</source>
        <translation>Verplaatst de afbeelding naar de vorige pagina</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Moves the picture to the next page</source>
        <translation>Verplaatst de afbeelding naar de volgende pagina</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Takes the picture off this list; its file stays</source>
        <translation>Haalt de afbeelding van deze lijst; het bestand blijft</translation>
    </message>
    <message>
        <source>Folder of the book</source>
        <translation>Map van het boek</translation>
    </message>
    <message>
        <source>No picture, so it is not in the list: %1</source>
        <translation>Geen afbeelding, dus niet in de lijst: %1</translation>
    </message>
    <message>
        <source>The book %1 has this number, too: they cannot both be on the pen.</source>
        <translation>Ook het boek %1 heeft dit nummer: ze kunnen niet allebei op de pen staan.</translation>
    </message>
    <message>
        <source>Making the book...</source>
        <translation>Het boek wordt gemaakt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Cancelled: nothing was made.</source>
        <translation>Geannuleerd: er is niets gemaakt.</translation>
    </message>
</context>
<context>
    <name>OpenManual</name>
    <message>
        <source>The manual cannot be shown: it is not installed, or there is no browser.</source>
        <translation>De handleiding kan niet worden getoond: ze is niet geïnstalleerd, of er is geen browser.</translation>
    </message>
</context>
<context>
    <name>PageAccessible</name>
    <message>
        <source>number %1, area %2 of %3</source>
        <translation>nummer %1, gebied %2 van %3</translation>
    </message>
    <message>
        <source>%1 % from the left, %2 % from the top</source>
        <translation>%1 % van links, %2 % van boven</translation>
    </message>
</context>
<context>
    <name>PageMenu</name>
    <message>
        <source>Areas here</source>
        <translation>Gebieden hier</translation>
    </message>
    <message>
        <source>%1 (speaks here)</source>
        <translation>%1 (spreekt hier)</translation>
    </message>
</context>
<context>
    <name>PdfDialog</name>
    <message>
        <source>Lighten only inside of areas</source>
        <translation>Alleen in gebieden lichter maken</translation>
    </message>
    <message>
        <source>Outlines and names of the areas</source>
        <translation>Omtrekken en namen van de gebieden</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Snijtekens</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>overal</translation>
    </message>
    <message>
        <source>only in areas</source>
        <translation>alleen in gebieden</translation>
    </message>
    <message>
        <source>none: a proof</source>
        <translation>geen: een proefdruk</translation>
    </message>
    <message>
        <source>when no area starts the book</source>
        <translation>als geen gebied het boek start</translation>
    </message>
    <message>
        <source>always</source>
        <translation>altijd</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nooit</translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation>niets anders</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Maken</translation>
    </message>
    <message>
        <source>1 cm of the page, dots 1:1</source>
        <translation>1 cm van de pagina, punten 1:1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Only these pictures, counted from 0, such as 0,2-3, to print a changed page again; empty prints all</source>
        <translation>Alleen deze afbeeldingen, geteld vanaf 0, zoals 0,2-3, om een gewijzigde pagina opnieuw af te drukken; leeg drukt alle af</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagina&apos;s:</translation>
    </message>
    <message>
        <source>Whether the whole page gets dots, or only its areas, which leaves the rest as clear as it was</source>
        <translation>Of de hele pagina punten krijgt of alleen haar gebieden, wat de rest zo helder laat als hij was</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punten</translation>
    </message>
    <message>
        <source>Dots:</source>
        <translation>Punten:</translation>
    </message>
    <message>
        <source>Lightens the picture on areas only, where the pen reads; the rest of it stays as it is</source>
        <translation>Maakt de afbeelding alleen in de gebieden lichter, waar de pen leest; de rest blijft zoals hij is</translation>
    </message>
    <message>
        <source>Draws the areas with their names, to check them on paper, in a colour that the pen does not see</source>
        <translation>Tekent de gebieden met hun namen, om ze op papier te controleren, in een kleur die de pen niet ziet</translation>
    </message>
    <message>
        <source>as needed</source>
        <translation>naar behoefte</translation>
    </message>
    <message>
        <source>White paper around each page, for a printer that does not print up to the edge</source>
        <translation>Wit papier rond elke pagina, voor een printer die niet tot de rand afdrukt</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin:</source>
        <translation>Marge:</translation>
    </message>
    <message>
        <source>Marks in the margin where the page ends, to cut along them</source>
        <translation>Tekens in de marge waar de pagina eindigt, om langs te snijden</translation>
    </message>
    <message>
        <source>Prints pages that are larger than the paper on several sheets that overlap, to be glued together</source>
        <translation>Drukt pagina&apos;s die groter zijn dan het papier af op meer bladen die elkaar overlappen, om aan elkaar te plakken</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Poster</translation>
    </message>
    <message>
        <source>Poster:</source>
        <translation>Poster:</translation>
    </message>
    <message>
        <source>Adds a page with START, REPLAY, STOP and a legend of all areas, to be cut out; a book needs START somewhere</source>
        <translation>Voegt een pagina toe met START, REPLAY, STOP en een legenda van alle gebieden, om uit te knippen; een boek heeft ergens START nodig</translation>
    </message>
    <message>
        <source>Symbols and legend</source>
        <translation>Symbolen en legenda</translation>
    </message>
    <message>
        <source>Symbols and legend:</source>
        <translation>Symbolen en legenda:</translation>
    </message>
    <message>
        <source>The PDF file that is written; one of this name that is there is replaced</source>
        <translation>Het pdf-bestand dat wordt geschreven; een bestaand bestand met die naam wordt vervangen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Chooses another file</source>
        <translation>Kiest een ander bestand</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Bestand:</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-bestanden (*.pdf)</translation>
    </message>
    <message>
        <source>Sheets of paper: %1</source>
        <translation>Vellen papier: %1</translation>
    </message>
    <message>
        <source>Pages are numbers from 0 to %1, such as 0,2-3.</source>
        <translation>Pagina&apos;s zijn getallen van 0 tot %1, bijvoorbeeld 0,2-3.</translation>
    </message>
    <message>
        <source>The DPI are a number from %1 to %2.</source>
        <translation>De DPI zijn een getal van %1 tot %2.</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>Het bestand heeft geen naam.</translation>
    </message>
</context>
<context>
    <name>PickTool</name>
    <message>
        <source>An area needs at least three corners.</source>
        <translation>Een gebied heeft minstens drie hoeken nodig.</translation>
    </message>
    <message>
        <source>Corner %1 of %2: %3 % from the left, %4 % from the top</source>
        <translation>Hoek %1 van %2: %3 % van links, %4 % van boven</translation>
    </message>
</context>
<context>
    <name>PolyEditorWidget</name>
    <message>
        <source>Here speaks %1; behind it lies %2.</source>
        <translation>Hier spreekt %1; daarachter ligt %2.</translation>
    </message>
    <message>
        <source>Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the corners of the selected one; the arrow keys move them.</source>
        <translation>Ctrl+Omlaag en Ctrl+Omhoog gaan door de gebieden, Ctrl+Rechts en Ctrl+Links door de hoeken van het gekozen gebied; de pijltoetsen verplaatsen ze.</translation>
    </message>
</context>
<context>
    <name>PrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Bewaren...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Make profile...</source>
        <translation>Profiel maken...</translation>
    </message>
    <message>
        <source>No black in the picture</source>
        <translation>Geen zwart in het plaatje</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profiel:</translation>
    </message>
    <message>
        <source>Best field:</source>
        <translation>Beste veld:</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Edge of a dot:</source>
        <translation>Zijde van een punt:</translation>
    </message>
    <message>
        <source>Lighten the picture:</source>
        <translation>Plaatje lichter maken:</translation>
    </message>
    <message>
        <source>Profile of a printer</source>
        <translation>Profiel van een printer</translation>
    </message>
    <message>
        <source>The settings that were kept for a printer: choose the one that the book is printed on</source>
        <translation>De instellingen die voor een printer zijn bewaard: kies die waarop het boek wordt afgedrukt</translation>
    </message>
    <message>
        <source>Keeps the settings below under a name, so that this printer has them the next time, too</source>
        <translation>Bewaart de instellingen hieronder onder een naam, zodat deze printer ze ook de volgende keer heeft</translation>
    </message>
    <message>
        <source>Forgets the chosen profile</source>
        <translation>Vergeet het gekozen profiel</translation>
    </message>
    <message>
        <source>Best field of the printer&apos;s test page</source>
        <translation>Beste veld van de testpagina van de printer</translation>
    </message>
    <message>
        <source>The field of the printer&apos;s test page that the pen reads best, such as B3</source>
        <translation>Het veld van de testpagina van de printer dat de pen het best leest, bijvoorbeeld B3</translation>
    </message>
    <message>
        <source>Makes a profile of what that field says about the printer</source>
        <translation>Maakt een profiel van wat dat veld over de printer zegt</translation>
    </message>
    <message>
        <source>Resolution of the printer</source>
        <translation>Resolutie van de printer</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, when they are not those of the pictures</source>
        <translation>De punten per inch van de printer, als het niet die van de plaatjes zijn</translation>
    </message>
    <message>
        <source>that of each picture</source>
        <translation>die van elk plaatje</translation>
    </message>
    <message>
        <source>Edge of a dot in pixels of the printer</source>
        <translation>Zijde van een punt in pixels van de printer</translation>
    </message>
    <message>
        <source>Smaller dots for a printer that prints them too fat</source>
        <translation>Kleinere punten voor een printer die ze te dik drukt</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standaard</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Mixes the picture&apos;s black of cyan, magenta and yellow, which the pen does not see</source>
        <translation>Mengt het zwart van het plaatje uit cyaan, magenta en geel, wat de pen niet ziet</translation>
    </message>
    <message>
        <source>How much lighter the picture is, in percent</source>
        <translation>Hoeveel lichter het plaatje is, in procent</translation>
    </message>
    <message>
        <source>Takes ink out of the picture, so that the pen finds the dots</source>
        <translation>Haalt inkt uit het plaatje, zodat de pen de punten vindt</translation>
    </message>
    <message>
        <source>not</source>
        <translation>niet</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>The profile %1 is gone.</source>
        <translation>Het profiel %1 is verwijderd.</translation>
    </message>
    <message>
        <source>The test page has no field %1.</source>
        <translation>De testpagina heeft geen veld %1.</translation>
    </message>
    <message>
        <source>Printer %1</source>
        <translation>Printer %1</translation>
    </message>
    <message>
        <source>Name of the printer:</source>
        <translation>Naam van de printer:</translation>
    </message>
    <message>
        <source>The profile %1 is kept.</source>
        <translation>Het profiel %1 is bewaard.</translation>
    </message>
</context>
<context>
    <name>PrinterTestDialog</name>
    <message>
        <source>Printer&apos;s test page</source>
        <translation>Testpagina van de printer</translation>
    </message>
    <message>
        <source>Makes a page and a game that find out how your printer prints dots. Print the page, copy the game onto the pen, touch the fields, and tell the best one&apos;s name where you make a PDF.</source>
        <translation>Maakt een pagina en een spel die uitzoeken hoe uw printer punten drukt. Druk de pagina af, kopieer het spel naar de pen, raak de velden aan en noem de naam van het beste waar u een PDF maakt.</translation>
    </message>
    <message>
        <source>%1 DPI</source>
        <translation>%1 DPI</translation>
    </message>
    <message>
        <source>Tries this resolution: tick those that your printer has, and the pen tells which one is best</source>
        <translation>Probeert deze resolutie: vink aan wat uw printer heeft, en de pen zegt welke de beste is</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>The folder in which the page to be printed and the game for the pen are written</source>
        <translation>De map waarin de af te drukken pagina en het spel voor de pen worden geschreven</translation>
    </message>
    <message>
        <source>Chooses another folder</source>
        <translation>Kiest een andere map</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Language of the pen:</source>
        <translation>Taal van de pen:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Maken</translation>
    </message>
    <message>
        <source>Language of the pen</source>
        <translation>Taal van de pen</translation>
    </message>
    <message>
        <source>The language in which the pen names the fields</source>
        <translation>De taal waarin de pen de velden noemt</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation: en, de, fr or nl.</extracomment>
        <translation>nl</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, regel %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No problems any more</source>
        <translation>Geen problemen meer</translation>
    </message>
    <message>
        <source>New problem. %1</source>
        <translation>Nieuw probleem. %1</translation>
    </message>
    <message>
        <source>%1 new problems. %2</source>
        <translation>%1 nieuwe problemen. %2</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>pagina %1</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>pagina %1: %2</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebied</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Probleem</translation>
    </message>
    <message>
        <source>Quick fix</source>
        <translation>Oplossing</translation>
    </message>
    <message>
        <source>Why?</source>
        <translation>Waarom?</translation>
    </message>
    <message>
        <source>Opens the manual at what is told about this (F1)</source>
        <translation>Opent de handleiding bij wat hierover wordt gezegd (F1)</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handleiding</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation>Problemen</translation>
    </message>
    <message>
        <source>Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why</source>
        <translation>Enter gaat naar de plaats, Alt+Enter verhelpt wat te verhelpen is, F1 zegt waarom</translation>
    </message>
    <message>
        <source>Shows or folds the list of problems. F8 goes to the next one in the script, Shift+F8 to the one before.</source>
        <translation>Toont de lijst van problemen of klapt haar in. F8 gaat naar het volgende in het script, Shift+F8 naar het vorige.</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Geen problemen</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 probleem</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 problemen</translation>
    </message>
    <message>
        <source>A click goes to the place (Enter); further clicks put right what can be put right (Alt+Enter) and tell why (F1)</source>
        <translation>Een klik gaat naar de plaats (Enter); andere klikken zetten recht wat rechtgezet kan worden (Alt+Enter) en zeggen waarom (F1)</translation>
    </message>
</context>
<context>
    <name>ProblemsGuide</name>
    <message>
        <source>Alt+Enter: %1</source>
        <translation>Alt+Enter: %1</translation>
    </message>
    <message>
        <source>There is no quick fix here</source>
        <translation>Hier is geen oplossing</translation>
    </message>
    <message>
        <source>The book has changed meanwhile. Try again.</source>
        <translation>Het boek is intussen veranderd. Probeer het nog eens.</translation>
    </message>
</context>
<context>
    <name>ProductNameNote</name>
    <message>
        <source>Not possible in the name: %1</source>
        <translation>Niet mogelijk in de naam: %1</translation>
    </message>
    <message>
        <source>%1 characters, at most %2</source>
        <translation>%1 tekens, hoogstens %2</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>Nothing is heard: no loudspeaker can be used (%1)</source>
        <translation>Er is niets te horen: er is geen bruikbare luidspreker (%1)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>%1 cannot be played: it has more than two channels</source>
        <translation>%1 kan niet worden afgespeeld: het heeft meer dan twee kanalen</translation>
    </message>
    <message>
        <source>%1 is damaged and cannot be played to its end</source>
        <translation>%1 is beschadigd en kan niet tot het einde worden afgespeeld</translation>
    </message>
    <message>
        <source>%1 cannot be played: it is damaged, or no sound in one of the formats WAV, Ogg, FLAC and MP3</source>
        <translation>%1 kan niet worden afgespeeld: het is beschadigd, of geen geluid in een van de formaten WAV, Ogg, FLAC en MP3</translation>
    </message>
</context>
<context>
    <name>Microphone</name>
    <message>
        <source>No microphone can be used (%1)</source>
        <translation>Er is geen bruikbare microfoon (%1)</translation>
    </message>
    <message>
        <source>There is no microphone: plug one in, or allow programs to hear it</source>
        <translation>Er is geen microfoon: sluit er een aan, of sta programma&apos;s toe ernaar te luisteren</translation>
    </message>
    <message>
        <source>The microphone cannot be used (%1)</source>
        <translation>De microfoon is niet bruikbaar (%1)</translation>
    </message>
    <message>
        <source>The microphone is gone: is it still plugged in?</source>
        <translation>De microfoon is weg: is hij nog aangesloten?</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone any more</source>
        <translation>Er komt niets meer van de microfoon</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>it is a link to a file in another folder</source>
        <translation>het is een koppeling naar een bestand in een andere map</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>%1 is longer than an hour</source>
        <translation>%1 duurt langer dan een uur</translation>
    </message>
    <message>
        <source>There is no sound in %1</source>
        <translation>Er zit geen geluid in %1</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>the program ffmpeg, which would read it, is not there</source>
        <translation>het programma ffmpeg, dat het zou lezen, is er niet</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>afgebroken</translation>
    </message>
    <message>
        <source>the program ffmpeg was stopped</source>
        <translation>het programma ffmpeg is gestopt</translation>
    </message>
    <message>
        <source>the program ffmpeg ended with status %1</source>
        <translation>het programma ffmpeg eindigde met status %1</translation>
    </message>
    <message>
        <source>The original of %1 cannot be kept: %2</source>
        <translation>Het origineel van %1 kan niet worden bewaard: %2</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>stil</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation>%1: %2, eerder %3</translation>
    </message>
    <message>
        <source>%1: %2, not changed</source>
        <translation>%1: %2, niet gewijzigd</translation>
    </message>
    <message>
        <source>Nothing is recorded for %1</source>
        <translation>Voor %1 is niets opgenomen</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level of the microphone</source>
        <translation>Niveau van de microfoon</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Zacht</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Goed</translation>
    </message>
    <message>
        <source>Too loud</source>
        <translation>Te hard</translation>
    </message>
    <message>
        <source>Nothing is heard</source>
        <translation>Niets te horen</translation>
    </message>
</context>
<context>
    <name>RecordCard</name>
    <message>
        <source>Text to read aloud</source>
        <translation>Tekst om voor te lezen</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record</source>
        <translation>Opnemen</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfoon</translation>
    </message>
    <message>
        <source>The microphone that is recorded from; the level below shows whether it hears you</source>
        <translation>De microfoon waarmee wordt opgenomen; het niveau eronder toont of die u hoort</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Gewone microfoon</translation>
    </message>
    <message>
        <source>Count &amp;in</source>
        <translation>&amp;Aftellen</translation>
    </message>
    <message>
        <source>Counts 3, 2, 1 before a recording begins, so that you can take a breath</source>
        <translation>Telt 3, 2, 1 voordat een opname begint, zodat u adem kunt halen</translation>
    </message>
    <message>
        <source>Begins and ends a recording (Space)</source>
        <translation>Begint en beëindigt een opname (spatie)</translation>
    </message>
    <message>
        <source>&amp;Listen</source>
        <translation>Be&amp;luisteren</translation>
    </message>
    <message>
        <source>Plays it as the pen will (Ctrl+L)</source>
        <translation>Speelt het af zoals de pen dat zal doen (Ctrl+L)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>Takes back the last change (Ctrl+Z)</source>
        <translation>Maakt de laatste wijziging ongedaan (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Opnie&amp;uw</translation>
    </message>
    <message>
        <source>Makes it again (Ctrl+Shift+Z)</source>
        <translation>Voert haar weer uit (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Terug</translation>
    </message>
    <message>
        <source>The text before this one (Page Up)</source>
        <translation>De tekst vóór deze (Page Up)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Over&amp;slaan</translation>
    </message>
    <message>
        <source>The text after this one (Page Down)</source>
        <translation>De tekst na deze (Page Down)</translation>
    </message>
    <message>
        <source>Keep, &amp;next</source>
        <translation>Bewaren, &amp;verder</translation>
    </message>
    <message>
        <source>Keeps the recording and goes to the next text that is missing (Enter)</source>
        <translation>Bewaart de opname en gaat naar de volgende ontbrekende tekst (Enter)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Slu&amp;iten</translation>
    </message>
    <message>
        <source>Ends recording (Escape)</source>
        <translation>Beëindigt het opnemen (Esc)</translation>
    </message>
    <message>
        <source>&amp;Microphone:</source>
        <translation>&amp;Microfoon:</translation>
    </message>
    <message>
        <source>Looking for the microphone ...</source>
        <translation>De microfoon wordt gezocht ...</translation>
    </message>
    <message>
        <source>The recording ended by itself: it cannot be longer than ten minutes</source>
        <translation>De opname eindigde vanzelf: langer dan tien minuten kan ze niet zijn</translation>
    </message>
    <message>
        <source>Not recorded</source>
        <translation>Niet opgenomen</translation>
    </message>
    <message>
        <source>Nothing was heard: is the microphone muted?</source>
        <translation>Er was niets te horen: staat de microfoon uit?</translation>
    </message>
    <message>
        <source>It was too loud and is distorted: speak more softly, or from farther away</source>
        <translation>Het was te hard en is vervormd: spreek zachter, of van verder weg</translation>
    </message>
    <message>
        <source>Recorded: %1 s</source>
        <translation>Opgenomen: %1 s</translation>
    </message>
    <message>
        <source>All texts are recorded</source>
        <translation>Alle teksten zijn opgenomen</translation>
    </message>
    <message>
        <source>Nothing was heard, so there is nothing to keep</source>
        <translation>Er was niets te horen, dus er is niets te bewaren</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>Wordt opgeslagen ...</translation>
    </message>
    <message>
        <source>This recording is not kept yet. Keep it?</source>
        <translation>Deze opname is nog niet bewaard. Bewaren?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Bewaren</translation>
    </message>
    <message>
        <source>&amp;Throw away</source>
        <translation>&amp;Weggooien</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>Het kan niet worden afgespeeld: %1</translation>
    </message>
    <message>
        <source>Text %1 of %2, %3 missing</source>
        <translation>Tekst %1 van %2, %3 ontbreken</translation>
    </message>
    <message>
        <source>&amp;Stop (Space)</source>
        <translation>&amp;Stop (spatie)</translation>
    </message>
    <message>
        <source>&amp;Record (Space)</source>
        <translation>O&amp;pnemen (spatie)</translation>
    </message>
    <message>
        <source>Stop &amp;listening</source>
        <translation>Niet meer be&amp;luisteren</translation>
    </message>
    <message>
        <source>Keep, &amp;next (Enter)</source>
        <translation>Bewaren, &amp;verder (Enter)</translation>
    </message>
    <message>
        <source>&amp;Next (Enter)</source>
        <translation>&amp;Verder (Enter)</translation>
    </message>
</context>
<context>
    <name>WaveHandle</name>
    <message>
        <source>Beginning of what is kept, in milliseconds</source>
        <translation>Begin van wat blijft, in milliseconden</translation>
    </message>
    <message>
        <source>End of what is kept, in milliseconds</source>
        <translation>Einde van wat blijft, in milliseconden</translation>
    </message>
    <message>
        <source>Drag this to where the voice begins, or move it with the arrow keys</source>
        <translation>Sleep dit naar waar de stem begint, of verplaats het met de pijltjestoetsen</translation>
    </message>
    <message>
        <source>Drag this to where the voice ends, or move it with the arrow keys</source>
        <translation>Sleep dit naar waar de stem eindigt, of verplaats het met de pijltjestoetsen</translation>
    </message>
</context>
<context>
    <name>WaveView</name>
    <message>
        <source>Recording</source>
        <translation>Opname</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Er is nog niets opgenomen</translation>
    </message>
    <message>
        <source>%1 of %2 s are kept</source>
        <translation>%1 van %2 s blijven</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Begin with a book</source>
        <translation>Met een boek beginnen</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Nieuw boek...</translation>
    </message>
    <message>
        <source>Asks for name, number, folder and pictures, and makes the book</source>
        <translation>Vraagt naar naam, nummer, map en afbeeldingen en maakt het boek</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Openen...</translation>
    </message>
    <message>
        <source>Opens a project that is there</source>
        <translation>Opent een project dat er al is</translation>
    </message>
    <message>
        <source>Sample books, to try out and to change</source>
        <translation>Voorbeeldboeken om te proberen en te veranderen</translation>
    </message>
    <message>
        <source>Last books</source>
        <translation>Laatste boeken</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Van de lijst halen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Takes the book off this list; its files stay (Delete)</source>
        <translation>Haalt het boek van deze lijst; de bestanden blijven (Delete)</translation>
    </message>
    <message>
        <source>Copies this sample book to a folder of yours, and opens the copy</source>
        <translation>Kopieert dit voorbeeldboek naar een van uw mappen en opent de kopie</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 in %2 (not there any more)</source>
        <translation>%1 in %2 (niet meer aanwezig)</translation>
    </message>
    <message>
        <source>%1 is not there any more. It can be removed from the list.</source>
        <translation>%1 is er niet meer. Het boek kan van de lijst worden gehaald.</translation>
    </message>
    <message>
        <source>%1 is off the list.</source>
        <translation>%1 staat niet meer op de lijst.</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>What was said</source>
        <translation>Wat er gezegd is</translation>
    </message>
    <message>
        <source>Tapped</source>
        <translation>Aangeraakt</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stem</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Gezegd</translation>
    </message>
    <message>
        <source>Waited</source>
        <translation>Gewacht</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niets</translation>
    </message>
    <message>
        <source>Chosen by chance from:</source>
        <translation>Toevallig gekozen uit:</translation>
    </message>
    <message>
        <source>There is no script for this area</source>
        <translation>Er is geen script voor dit gebied</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Deling door nul</translation>
    </message>
    <message>
        <source>A value ran over 65535 and went on from 0</source>
        <translation>Een waarde kwam boven 65535 en ging verder vanaf 0</translation>
    </message>
    <message>
        <source>A value fell below 0 and went on from 65535</source>
        <translation>Een waarde kwam onder 0 en ging verder vanaf 65535</translation>
    </message>
    <message>
        <source>The condition was %1, neither 0 nor 1, so no branch was run</source>
        <translation>De voorwaarde was %1, niet 0 of 1, dus geen tak werd uitgevoerd</translation>
    </message>
    <message>
        <source>There was no end after %1 steps</source>
        <translation>Na %1 stappen was er geen einde</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Regel %1: %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, %2 steps</source>
        <translation>%1, %2 stappen</translation>
    </message>
    <message>
        <source>The reader waits long before the first sound: %1 steps</source>
        <translation>De lezer wacht lang op het eerste geluid: %1 stappen</translation>
    </message>
    <message>
        <source>Until the first sound: %1 steps</source>
        <translation>Tot het eerste geluid: %1 stappen</translation>
    </message>
    <message>
        <source>What was tapped and what was heard, the latest at the end</source>
        <translation>Wat is aangetikt en wat is gehoord, het nieuwste aan het eind</translation>
    </message>
</context>
<context>
    <name>PageWindow</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Pagina om aan te raken</translation>
    </message>
</context>
<context>
    <name>ReaderPage</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Pagina om aan te raken</translation>
    </message>
    <message>
        <source>The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages.</source>
        <translation>De pijltoetsen gaan van gebied naar gebied, Enter raakt aan, Page Up en Page Down slaan de bladzijden om.</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>A click sets a breakpoint, or takes it away (F9)</source>
        <translation>Een klik zet een onderbrekingspunt of haalt het weg (F9)</translation>
    </message>
    <message>
        <source>The script that runs</source>
        <translation>Het script dat loopt</translation>
    </message>
    <message>
        <source>The script that runs, with the line that is next; a double click goes to the line in the tab Script, to change it</source>
        <translation>Het script dat loopt, met de volgende regel; een dubbelklik gaat naar de regel op het tabblad Script, om die te wijzigen</translation>
    </message>
</context>
<context>
    <name>TriedBook</name>
    <message>
        <source>A text is too long for the speech program and is only shown.</source>
        <translation>Een tekst is te lang voor het spraakprogramma en wordt alleen getoond.</translation>
    </message>
    <message>
        <source>The speech program is not there: texts without an audio file are only shown.</source>
        <translation>Het spraakprogramma ontbreekt: teksten zonder audiobestand worden alleen getoond.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown.</source>
        <translation>Het spraakprogramma kon een tekst niet uitspreken; die wordt alleen getoond.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown: %1</source>
        <translation>Het spraakprogramma kon een tekst niet uitspreken; die wordt alleen getoond: %1</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now. Line %1: %2</source>
        <translation>Het boek kan zo niet worden geprobeerd. Regel %1: %2</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now: %1</source>
        <translation>Het boek kan zo niet worden geprobeerd: %1</translation>
    </message>
</context>
<context>
    <name>SpeechModel</name>
    <message>
        <source>missing</source>
        <translation>ontbreekt</translation>
    </message>
    <message>
        <source>spoken</source>
        <translation>gesproken</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>opgenomen</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>verouderd</translation>
    </message>
    <message>
        <source>impossible</source>
        <translation>onmogelijk</translation>
    </message>
    <message>
        <source>too long a name</source>
        <translation>te lange naam</translation>
    </message>
    <message>
        <source>too long a text</source>
        <translation>te lange tekst</translation>
    </message>
    <message>
        <source>name of line %1</source>
        <translation>naam van regel %1</translation>
    </message>
    <message>
        <source>welcome</source>
        <translation>welkom</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, line %2: %3, %4</source>
        <translation>%1, regel %2: %3, %4</translation>
    </message>
    <message>
        <source>%1, welcome: %2, %3</source>
        <translation>%1, welkom: %2, %3</translation>
    </message>
    <message>
        <source>Goes to the line in the script</source>
        <translation>Gaat naar de regel in het script</translation>
    </message>
    <message>
        <source>Goes to the name of the product</source>
        <translation>Gaat naar de naam van het product</translation>
    </message>
    <message>
        <source>Plays this text, or stops it</source>
        <translation>Speelt deze tekst af of stopt hem</translation>
    </message>
    <message>
        <source>There is no audio file yet; the next build speaks the text</source>
        <translation>Er is nog geen audiobestand; bij het volgende bouwen wordt de tekst gesproken</translation>
    </message>
    <message>
        <source>The audio file was spoken by the speech program</source>
        <translation>Het audiobestand is door het spraakprogramma gesproken</translation>
    </message>
    <message>
        <source>The audio file is your own; a build leaves it as it is</source>
        <translation>Het audiobestand is van uzelf; bouwen laat het zoals het is</translation>
    </message>
    <message>
        <source>The text or its voice has changed since it was spoken; the next build speaks it again</source>
        <translation>De tekst of zijn stem is veranderd sinds hij werd gesproken; bij het volgende bouwen wordt hij opnieuw gesproken</translation>
    </message>
    <message>
        <source>The text is too long for the name of an audio file; say it in several parts</source>
        <translation>De tekst is te lang voor de naam van een audiobestand; zeg hem in meerdere delen</translation>
    </message>
    <message>
        <source>The text is too long for the speech program; it can be recorded</source>
        <translation>De tekst is te lang voor het spraakprogramma; hij kan worden opgenomen</translation>
    </message>
    <message>
        <source>The pen says the text of line %1 here: both have one audio name, in which all but letters and digits is the same</source>
        <translation>De pen zegt hier de tekst van regel %1: beide hebben dezelfde audionaam, waarin alles behalve letters en cijfers gelijk is</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stem</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
</context>
<context>
    <name>SpeechTab</name>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Search in the texts</source>
        <translation>In de teksten zoeken</translation>
    </message>
    <message>
        <source>Shows only texts that hold these words, to find one among many; empty shows all</source>
        <translation>Toont alleen teksten met deze woorden, om er een onder vele te vinden; leeg toont alle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Shows only texts of this state, such as those that are missing still</source>
        <translation>Toont alleen teksten in deze toestand, zoals die nog ontbreken</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>Alle toestanden</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stem</translation>
    </message>
    <message>
        <source>Shows only texts of this voice, such as those that one person records</source>
        <translation>Toont alleen teksten van deze stem, zoals die één persoon opneemt</translation>
    </message>
    <message>
        <source>All voices</source>
        <translation>Alle stemmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Ends what is being made; what is done stays</source>
        <translation>Beëindigt wat nu wordt gemaakt; wat klaar is, blijft</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Afs&amp;pelen</translation>
    </message>
    <message>
        <source>Plays the selected texts, one after the other, or stops</source>
        <translation>Speelt de geselecteerde teksten na elkaar af, of stopt</translation>
    </message>
    <message>
        <source>&amp;Speak</source>
        <translation>&amp;Spreken</translation>
    </message>
    <message>
        <source>Has the selected texts spoken that are missing or out of date; without a selection all of them</source>
        <translation>Laat de geselecteerde teksten spreken die ontbreken of verouderd zijn; zonder selectie alle</translation>
    </message>
    <message>
        <source>Re&amp;cord...</source>
        <translation>&amp;Opnemen...</translation>
    </message>
    <message>
        <source>Records texts with the microphone, one after the other, beginning with the selected one</source>
        <translation>Neemt teksten op met de microfoon, de een na de ander, te beginnen bij de geselecteerde</translation>
    </message>
    <message>
        <source>&amp;Use file...</source>
        <translation>&amp;Bestand gebruiken...</translation>
    </message>
    <message>
        <source>Takes a sound file for the selected text; one can also be dropped on a row</source>
        <translation>Neemt een geluidsbestand voor de geselecteerde tekst; u kunt het ook op een rij slepen</translation>
    </message>
    <message>
        <source>Take &amp;back</source>
        <translation>&amp;Terugnemen</translation>
    </message>
    <message>
        <source>Puts the selected recordings into the trash, so that the texts are spoken again</source>
        <translation>Legt de geselecteerde opnamen in de prullenbak, zodat de teksten weer worden gesproken</translation>
    </message>
    <message>
        <source>&amp;Even out</source>
        <translation>&amp;Gelijk maken</translation>
    </message>
    <message>
        <source>Makes the selected texts equally loud; without a selection all</source>
        <translation>Maakt de geselecteerde teksten even luid; zonder selectie alle</translation>
    </message>
    <message>
        <source>Try &amp;voices...</source>
        <translation>Ste&amp;mmen proberen...</translation>
    </message>
    <message>
        <source>Lets you hear one sentence in many voices, and writes the one that you like into the script</source>
        <translation>Laat één zin in veel stemmen horen, en schrijft degene die bevalt in het script</translation>
    </message>
    <message>
        <source>Save the project first: its audio files lie in a folder beside it.</source>
        <translation>Sla eerst het project op: de audiobestanden staan in een map ernaast.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 tekst</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 teksten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;p</translation>
    </message>
    <message>
        <source>This text has no audio file yet.</source>
        <translation>Deze tekst heeft nog geen audiobestand.</translation>
    </message>
    <message>
        <source>Wait until what is being made is done.</source>
        <translation>Wacht tot klaar is wat nu wordt gemaakt.</translation>
    </message>
    <message>
        <source>Speaking...</source>
        <translation>Wordt gesproken...</translation>
    </message>
    <message>
        <source>Making the texts equally loud...</source>
        <translation>De teksten worden even luid gemaakt...</translation>
    </message>
    <message>
        <source>Use file</source>
        <translation>Bestand gebruiken</translation>
    </message>
    <message>
        <source>Sound files</source>
        <translation>Geluidsbestanden</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>This text can have no file: %1.</source>
        <translation>Deze tekst kan geen bestand hebben: %1.</translation>
    </message>
    <message>
        <source>Taking the file...</source>
        <translation>Het bestand wordt overgenomen...</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 blijft: het bestand kan niet naar de prullenbak.</translation>
    </message>
    <message>
        <source>1 recording is in the trash.</source>
        <translation>1 opname ligt in de prullenbak.</translation>
    </message>
    <message>
        <source>%1 recordings are in the trash.</source>
        <translation>%1 opnamen liggen in de prullenbak.</translation>
    </message>
    <message>
        <source>&amp;Import folder...</source>
        <translation>M&amp;ap gebruiken...</translation>
    </message>
    <message>
        <source>Takes recordings from a folder; one can also be dropped on the table</source>
        <translation>Neemt opnamen uit een map; die kan ook op de tabel worden gesleept</translation>
    </message>
    <message>
        <source>Prin&amp;t sheet...</source>
        <translation>&amp;Leeslijst afdrukken...</translation>
    </message>
    <message>
        <source>Makes a PDF to be printed, from which somebody reads the selected texts; without a selection all</source>
        <translation>Maakt een PDF om af te drukken, waaruit iemand de geselecteerde teksten leest; zonder selectie alle</translation>
    </message>
    <message>
        <source>Save s&amp;heet...</source>
        <translation>Leesl&amp;ijst opslaan...</translation>
    </message>
    <message>
        <source>Saves the sheet to read the selected texts from as a text; without a selection all</source>
        <translation>Slaat de leeslijst van de geselecteerde teksten op als tekstbestand; zonder selectie alle</translation>
    </message>
    <message>
        <source>Ti&amp;dy...</source>
        <translation>Op&amp;ruimen...</translation>
    </message>
    <message>
        <source>Lists the audio files that no text uses, and moves them to the trash</source>
        <translation>Toont de audiobestanden die geen tekst gebruikt, en legt ze in de prullenbak</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Map gebruiken</translation>
    </message>
    <message>
        <source>%1 is the audio folder of the book itself.</source>
        <translation>%1 is de audiomap van het boek zelf.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>De map %1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>There are no files in %1.</source>
        <translation>Er zijn geen bestanden in %1.</translation>
    </message>
    <message>
        <source>Print sheet</source>
        <translation>Leeslijst afdrukken</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-bestanden</translation>
    </message>
    <message>
        <source>Save sheet</source>
        <translation>Leeslijst opslaan</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Tekstbestanden</translation>
    </message>
    <message>
        <source>reading sheet</source>
        <translation>leeslijst</translation>
    </message>
    <message>
        <source>Writing the sheet...</source>
        <translation>De leeslijst wordt geschreven...</translation>
    </message>
    <message>
        <source>The script has mistakes, so it is not known which audio files it uses. Correct them first.</source>
        <translation>Het script heeft fouten, daarom is niet bekend welke audiobestanden het gebruikt. Verbeter ze eerst.</translation>
    </message>
    <message>
        <source>All audio files are used by texts.</source>
        <translation>Alle audiobestanden worden door teksten gebruikt.</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>De bestanden gaan naar de prullenbak...</translation>
    </message>
</context>
<context>
    <name>SpeechView</name>
    <message>
        <source>Texts of the book</source>
        <translation>Teksten van het boek</translation>
    </message>
    <message>
        <source>Space plays a text, Enter goes to its line in the script</source>
        <translation>De spatiebalk speelt een tekst af, Enter gaat naar zijn regel in het script</translation>
    </message>
    <message>
        <source>Every text of the book. A click on the sign plays it (Space), one on the line goes there (Enter)</source>
        <translation>Elke tekst van het boek. Een klik op het teken speelt hem (spatiebalk), een op de regel gaat erheen (Enter)</translation>
    </message>
</context>
<context>
    <name>SpeechJobs</name>
    <message>
        <source>The text was spoken.</source>
        <translation>De tekst is gesproken.</translation>
    </message>
    <message>
        <source>%1 texts were spoken.</source>
        <translation>%1 teksten zijn gesproken.</translation>
    </message>
    <message>
        <source>Speaking was cancelled. &quot;Speak&quot; goes on where it stopped.</source>
        <translation>Het spreken is afgebroken. &quot;Spreken&quot; gaat daar verder.</translation>
    </message>
    <message>
        <source>Not all texts could be spoken:</source>
        <translation>Niet alle teksten konden worden gesproken:</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Afgebroken.</translation>
    </message>
    <message>
        <source>1 recording was taken.</source>
        <translation>1 opname is overgenomen.</translation>
    </message>
    <message>
        <source>%1 recordings were taken.</source>
        <translation>%1 opnamen zijn overgenomen.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Het bestand %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>1 audio file was made as loud as all are to be.</source>
        <translation>1 audiobestand is zo luid gemaakt als alle horen te zijn.</translation>
    </message>
    <message>
        <source>%1 audio files were made as loud as all are to be.</source>
        <translation>%1 audiobestanden zijn zo luid gemaakt als alle horen te zijn.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Het bestand %1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>The sheet is in the file %1.</source>
        <translation>De leeslijst staat in het bestand %1.</translation>
    </message>
    <message>
        <source>The numbers begin anew; earlier sheets do not fit any more.</source>
        <translation>De nummers beginnen opnieuw; eerdere leeslijsten passen niet meer.</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 blijft: het bestand kan niet naar de prullenbak.</translation>
    </message>
    <message>
        <source>1 file is in the trash.</source>
        <translation>1 bestand ligt in de prullenbak.</translation>
    </message>
    <message>
        <source>%1 files are in the trash.</source>
        <translation>%1 bestanden liggen in de prullenbak.</translation>
    </message>
</context>
<context>
    <name>SheetPdf</name>
    <message>
        <source>Record each text as a file of its own whose name begins with the number: 7.wav</source>
        <translation>Neem elke tekst op als een eigen bestand waarvan de naam met het nummer begint: 7.wav</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Wat ervan wordt</translation>
    </message>
    <message>
        <source>&amp;All that fit</source>
        <translation>&amp;Alle die passen</translation>
    </message>
    <message>
        <source>Import recordings</source>
        <translation>Opnamen importeren</translation>
    </message>
    <message>
        <source>Files and the texts that they fit</source>
        <translation>Bestanden en de teksten waar ze bij passen</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>De spatiebalk zet het vinkje van de geselecteerde bestanden of haalt het weg</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick are taken</source>
        <translation>Zet of verwijdert alle vinkjes; alleen bestanden met een vinkje worden overgenomen</translation>
    </message>
    <message>
        <source>Taking the files...</source>
        <translation>De bestanden worden overgenomen...</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Overnemen</translation>
    </message>
    <message>
        <source>Takes the files with a tick as the recordings of their texts</source>
        <translation>Neemt de bestanden met een vinkje als opnamen van hun teksten</translation>
    </message>
    <message>
        <source>fits by its name</source>
        <translation>past door zijn naam</translation>
    </message>
    <message>
        <source>fits by its text</source>
        <translation>past door zijn tekst</translation>
    </message>
    <message>
        <source>fits by its number</source>
        <translation>past door zijn nummer</translation>
    </message>
    <message>
        <source>%1; takes the place of your recording, which is kept</source>
        <translation>%1; vervangt uw opname, die wordt bewaard</translation>
    </message>
    <message>
        <source>not taken: another file fits the text better</source>
        <translation>niet overgenomen: een ander bestand past beter bij de tekst</translation>
    </message>
    <message>
        <source>not taken: other files fit the text as well</source>
        <translation>niet overgenomen: andere bestanden passen net zo goed bij de tekst</translation>
    </message>
    <message>
        <source>not taken: it fits several texts</source>
        <translation>niet overgenomen: past bij meer dan één tekst</translation>
    </message>
    <message>
        <source>not taken: it fits no text</source>
        <translation>niet overgenomen: past bij geen tekst</translation>
    </message>
    <message>
        <source>%1 of %2 files become recordings. Take away the tick of what is to be left out.</source>
        <translation>%1 van %2 bestanden worden opnamen. Haal het vinkje weg van wat niet mee moet.</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelaten</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>niet overgenomen</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>overgenomen: %1</translation>
    </message>
</context>
<context>
    <name>TidyDialog</name>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Tidy</source>
        <translation>Opruimen</translation>
    </message>
    <message>
        <source>No text uses these audio files. Those with a tick go into the system&apos;s trash, from where you can take them back.</source>
        <translation>Geen tekst gebruikt deze audiobestanden. Die met een vinkje gaan naar de prullenbak van het systeem, waar u ze weer uit kunt halen.</translation>
    </message>
    <message>
        <source>Files that no text uses</source>
        <translation>Bestanden die geen tekst gebruikt</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>De spatiebalk zet het vinkje van de geselecteerde bestanden of haalt het weg</translation>
    </message>
    <message>
        <source>spoken by the speech program</source>
        <translation>gesproken door het spraakprogramma</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>van uzelf</translation>
    </message>
    <message>
        <source>&amp;All files</source>
        <translation>&amp;Alle bestanden</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick go to the trash</source>
        <translation>Zet of verwijdert alle vinkjes; alleen bestanden met een vinkje gaan naar de prullenbak</translation>
    </message>
    <message>
        <source>&amp;Move to the trash</source>
        <translation>Naar de &amp;prullenbak</translation>
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
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Switches the book on, as START on paper does: plays the welcome</source>
        <translation>Schakelt het boek in, zoals START op papier: speelt de begroeting</translation>
    </message>
    <message>
        <source>Plays once more what was played last, as REPLAY on paper does</source>
        <translation>Speelt nog eens wat het laatst werd gespeeld, zoals REPLAY op papier</translation>
    </message>
    <message>
        <source>Ends the sound that plays, as STOP on paper does</source>
        <translation>Beëindigt het geluid dat speelt, zoals STOP op papier</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>All as in the beginning: nothing was tapped, no variable changed</source>
        <translation>Alles als in het begin: niets aangeraakt, geen variabele veranderd</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Stap</translation>
    </message>
    <message>
        <source>Goes on by one line of the script; the next tap begins like that</source>
        <translation>Gaat één regel van het script verder; de volgende aanraking begint zo</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Verder</translation>
    </message>
    <message>
        <source>Goes on to the next breakpoint</source>
        <translation>Gaat verder tot het volgende onderbrekingspunt</translation>
    </message>
    <message>
        <source>Breakpoint</source>
        <translation>Onderbreking</translation>
    </message>
    <message>
        <source>Sets a breakpoint at the line of the caret, or takes it away</source>
        <translation>Zet een onderbrekingspunt op de regel van de cursor of haalt het weg</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message>
        <source>Shows the page in a window of its own, for a second screen</source>
        <translation>Toont de pagina in een eigen venster, voor een tweede scherm</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>The page that is shown; Page Up and Page Down turn the pages, too</source>
        <translation>De getoonde pagina; ook Page Up en Page Down slaan om</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Opnemen</translation>
    </message>
    <message>
        <source>Begins anew and writes down what is tapped, as a book test; a second click keeps it</source>
        <translation>Begint opnieuw en schrijft op wat wordt aangeraakt, als boektest; nog een klik bewaart die</translation>
    </message>
    <message>
        <source>What is tapped now becomes a book test. Another click on &quot;Record&quot; keeps it.</source>
        <translation>Wat nu wordt aangeraakt, wordt een boektest. Nog een klik op “Opnemen” bewaart die.</translation>
    </message>
    <message>
        <source>Nothing was tapped, so there is no book test.</source>
        <translation>Er is niets aangeraakt, dus er is geen boektest.</translation>
    </message>
    <message>
        <source>The book test was not saved; it goes on. &quot;Fresh&quot; begins it anew.</source>
        <translation>De boektest is niet opgeslagen; hij gaat verder. “Nieuw” begint hem opnieuw.</translation>
    </message>
    <message>
        <source>What is shown beside the page</source>
        <translation>Wat naast de pagina wordt getoond</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Gezegd</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variabelen</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>There is no area here.</source>
        <translation>Hier is geen gebied.</translation>
    </message>
    <message>
        <source>Line %1 comes next: F10 runs it, F5 goes on</source>
        <translation>Regel %1 komt nu: F10 voert die uit, F5 gaat verder</translation>
    </message>
    <message>
        <source>Something is heard</source>
        <translation>Er klinkt iets</translation>
    </message>
    <message>
        <source>The next tap goes line by line</source>
        <translation>De volgende aanraking gaat regel voor regel</translation>
    </message>
    <message>
        <source>Tap an area of the page</source>
        <translation>Raak een gebied van de pagina aan</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
    <message>
        <source>How loud the book is on this computer; the pen has keys of its own</source>
        <translation>Hoe luid het boek op deze computer is; de pen heeft eigen toetsen</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>The value that the script goes on with, from 0 to 65535</source>
        <translation>De waarde waarmee het script verdergaat, van 0 tot 65535</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variabelen</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabele</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Eerder</translation>
    </message>
    <message>
        <source>What the script remembers. A click on a value changes it, to try what would come then</source>
        <translation>Wat het script onthoudt. Een klik op een waarde verandert die, om te proberen wat er dan zou komen</translation>
    </message>
</context>
<context>
    <name>TryVoicesDialog</name>
    <message>
        <source>The sentence is too long for the speech program.</source>
        <translation>De zin is te lang voor het spraakprogramma.</translation>
    </message>
    <message>
        <source>The speech program is not there.</source>
        <translation>Het spraakprogramma ontbreekt.</translation>
    </message>
    <message>
        <source>The speech program could not speak the sentence.</source>
        <translation>Het spraakprogramma kon de zin niet uitspreken.</translation>
    </message>
    <message>
        <source>The sentence was not spoken: %1</source>
        <translation>De zin is niet uitgesproken: %1</translation>
    </message>
    <message>
        <source>Try voices</source>
        <translation>Stemmen uitproberen</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Stemmen</translation>
    </message>
    <message>
        <source>What all voices of this language say; write what your book will say</source>
        <translation>Wat alle stemmen van deze taal zeggen; schrijf wat uw boek zal zeggen</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Zin</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>The language of the voices below those of the script, by age and sex</source>
        <translation>De taal van de stemmen onder die van het script, naar leeftijd en geslacht</translation>
    </message>
    <message>
        <source>&amp;Sentence:</source>
        <translation>&amp;Zin:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Taal:</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Afspelen</translation>
    </message>
    <message>
        <source>Lets the chosen voice say the sentence</source>
        <translation>Laat de gekozen stem de zin zeggen</translation>
    </message>
    <message>
        <source>Play &amp;all</source>
        <translation>A&amp;lles afspelen</translation>
    </message>
    <message>
        <source>Lets one voice after the other say the sentence</source>
        <translation>Laat de ene stem na de andere de zin zeggen</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>Ends the sound, also while one voice after the other speaks</source>
        <translation>Beëindigt het geluid, ook terwijl de ene stem na de andere spreekt</translation>
    </message>
    <message>
        <source>The name of the voice in the script, which stands behind say</source>
        <translation>De naam van de stem in het script, die achter say staat</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>&amp;Insert into the script</source>
        <translation>In het script &amp;invoegen</translation>
    </message>
    <message>
        <source>Writes the statement below into the script, so that texts can be said by this voice</source>
        <translation>Schrijft de opdracht hieronder in het script, zodat teksten met deze stem gezegd kunnen worden</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Naam:</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages.</source>
        <translation>Het spraakprogramma noemt zijn talen niet.</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages: %1</source>
        <translation>Het spraakprogramma noemt zijn talen niet: %1</translation>
    </message>
    <message>
        <source>%1 speaks.</source>
        <translation>%1 spreekt.</translation>
    </message>
    <message>
        <source>The script has this voice.</source>
        <translation>Het script heeft deze stem.</translation>
    </message>
    <message>
        <source>A name has small letters from a to z, and digits behind them.</source>
        <translation>Een naam heeft kleine letters van a tot z, en cijfers erachter.</translation>
    </message>
    <message>
        <source>The script has a voice of this name.</source>
        <translation>Het script heeft een stem met deze naam.</translation>
    </message>
    <message>
        <source>%1 takes a breath ...</source>
        <translation>%1 haalt adem ...</translation>
    </message>
</context>
<context>
    <name>VoiceTable</name>
    <message>
        <source>girl</source>
        <translation>meisje</translation>
    </message>
    <message>
        <source>boy</source>
        <translation>jongen</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>zus</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>broer</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>moeder</translation>
    </message>
    <message>
        <source>father</source>
        <translation>vader</translation>
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
        <translation>Meisje</translation>
    </message>
    <message>
        <source>Boy</source>
        <translation>Jongen</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Vrouw</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Man</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stem</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Spreker</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Leeftijd</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Spraakprogramma</translation>
    </message>
    <message>
        <source>Voices of the script</source>
        <translation>Stemmen van het script</translation>
    </message>
    <message>
        <source>Other voices</source>
        <translation>Andere stemmen</translation>
    </message>
</context>
<context>
    <name>SubNameNote</name>
    <message>
        <source>No area is selected, so this names none. Click one, then type its name.</source>
        <translation>Er is geen gebied geselecteerd, dus dit benoemt er geen. Klik er een aan en typ dan de naam.</translation>
    </message>
    <message>
        <source>An area needs a name. Type one.</source>
        <translation>Een gebied heeft een naam nodig. Typ er een.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand in a name. Leave it out.</source>
        <translation>&quot;%1&quot; kan niet in een naam staan. Laat het weg.</translation>
    </message>
    <message>
        <source>A name cannot begin with &quot;%1&quot;. Begin with a letter.</source>
        <translation>Een naam kan niet met &quot;%1&quot; beginnen. Begin met een letter.</translation>
    </message>
    <message>
        <source>The name would be taken for a number of dots. Begin with a letter.</source>
        <translation>De naam zou voor een stippennummer worden gehouden. Begin met een letter.</translation>
    </message>
    <message>
        <source>&quot;asm&quot; with a number belongs to the compiler. Choose another name.</source>
        <translation>&quot;asm&quot; met een getal is van de compiler. Kies een andere naam.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name that begins with a digit. Begin with a letter.</source>
        <translation>Geen &quot;goto&quot; kan naar een naam leiden die met een cijfer begint. Begin met een letter.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name with &quot;%1&quot;. Take letters, digits and &quot;_&quot;.</source>
        <translation>Geen &quot;goto&quot; kan naar een naam met &quot;%1&quot; leiden. Neem letters, cijfers en &quot;_&quot;.</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename everywhere</source>
        <translation>Overal hernoemen</translation>
    </message>
    <message>
        <source>&amp;New name of &quot;%1&quot;:</source>
        <translation>&amp;Nieuwe naam van &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nieuwe naam</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
</context>
<context>
    <name>RenameEverywhere</name>
    <message>
        <source>Rename &amp;everywhere...</source>
        <translation>&amp;Overal hernoemen...</translation>
    </message>
    <message>
        <source>Changes the name on all pages and in the script</source>
        <translation>Verandert de naam op alle pagina&apos;s en in het script</translation>
    </message>
    <message>
        <source>The script keeps the name &quot;%1&quot;: both names stand there now.</source>
        <translation>Het script houdt de naam &quot;%1&quot;: daar staan nu beide namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>&quot;%1&quot; heet nu overal &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Plaatsen in het script: %1</translation>
    </message>
    <message>
        <source>Areas: %1 (pages: %2)</source>
        <translation>Gebieden: %1 (pagina&apos;s: %2)</translation>
    </message>
    <message>
        <source>The script has a sub of this name already, and can have only one. Choose another name.</source>
        <translation>Het script heeft al een sub met deze naam en kan er maar één hebben. Kies een andere naam.</translation>
    </message>
    <message>
        <source>This name is taken already.</source>
        <translation>Deze naam is al bezet.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is taken already. The areas would share one number and one sub. Rename?</source>
        <translation>De naam &quot;%1&quot; is al bezet. De gebieden zouden één nummer en één sub delen. Hernoemen?</translation>
    </message>
    <message>
        <source>Rename everywhere</source>
        <translation>Overal hernoemen</translation>
    </message>
</context>
<context>
    <name>ScriptHelp</name>
    <message>
        <source>There is no name of a sub, variable or voice here.</source>
        <translation>Hier staat geen naam van een sub, variabele of stem.</translation>
    </message>
    <message>
        <source>No area has the name &quot;%1&quot;.</source>
        <translation>Geen gebied heeft de naam &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no sub and no area &quot;%1&quot;.</source>
        <translation>Er is geen sub en geen gebied &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is never set.</source>
        <translation>&quot;%1&quot; krijgt nooit een waarde.</translation>
    </message>
    <message>
        <source>The voice &quot;%1&quot; is built in.</source>
        <translation>De stem &quot;%1&quot; is ingebouwd.</translation>
    </message>
    <message>
        <source>Uses of &quot;%1&quot;</source>
        <translation>Gebruik van &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Subs</source>
        <translation>Subs</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Plaatsen in het script: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>&quot;%1&quot; heet nu overal &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Variable %1, never set: always 0</source>
        <translation>Variabele %1, nooit gezet: altijd 0</translation>
    </message>
    <message>
        <source>Variable %1, set in lines %2</source>
        <translation>Variabele %1, gezet in de regels %2</translation>
    </message>
    <message>
        <source>Voice %1, line %2</source>
        <translation>Stem %1, regel %2</translation>
    </message>
    <message>
        <source>Voice %1, built in</source>
        <translation>Stem %1, ingebouwd</translation>
    </message>
</context>
<context>
    <name>KeywordToolTips</name>
    <message>
        <source>without it: %1</source>
        <translation>zonder: %1</translation>
    </message>
</context>
<context>
    <name>ScriptLanguage</name>
    <message>
        <source>what the pen does when the area NAME is touched</source>
        <translation>wat de pen doet als het gebied NAME wordt aangeraakt</translation>
    </message>
    <message>
        <source>goes on with the sub NAME and does not come back</source>
        <translation>gaat verder met de sub NAME en komt niet terug</translation>
    </message>
    <message>
        <source>gives a variable a value</source>
        <translation>geeft een variabele een waarde</translation>
    </message>
    <message>
        <source>does one or the other</source>
        <translation>doet het een of het ander</translation>
    </message>
    <message>
        <source>chooses by the value of a variable</source>
        <translation>kiest naar de waarde van een variabele</translation>
    </message>
    <message>
        <source>declares a voice</source>
        <translation>declareert een stem</translation>
    </message>
    <message>
        <source>speaks the text, or one of several</source>
        <translation>zegt de tekst, of een van meer teksten</translation>
    </message>
    <message>
        <source>the language: `en`, `de`, `es`, ...</source>
        <translation>de taal: `en`, `de`, `es`, ...</translation>
    </message>
    <message>
        <source>`m` or `f`</source>
        <translation>`m` of `f`</translation>
    </message>
    <message>
        <source>1 to 99</source>
        <translation>1 tot 99</translation>
    </message>
    <message>
        <source>a number; meant is 1 to 5, up to 99 is accepted</source>
        <translation>een getal; bedoeld is 1 tot 5, tot 99 wordt aanvaard</translation>
    </message>
</context>
<context>
    <name>JumpList</name>
    <message>
        <source>Type a part of it</source>
        <translation>Typ een deel ervan</translation>
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
        <translation>Suggesties</translation>
    </message>
</context>
<context>
    <name>VariableNames</name>
    <message>
        <source>Take letters, digits and &quot;_&quot;, and begin with a letter.</source>
        <translation>Neem letters, cijfers en &quot;_&quot;, en begin met een letter.</translation>
    </message>
    <message>
        <source>Take small letters: a name with capitals is not found when it is read.</source>
        <translation>Neem kleine letters: een naam met hoofdletters wordt bij het lezen niet gevonden.</translation>
    </message>
    <message>
        <source>Names that begin with &quot;_&quot; belong to the compiler.</source>
        <translation>Namen die met &quot;_&quot; beginnen, zijn van de compiler.</translation>
    </message>
    <message>
        <source>This is a word of the language. Choose another name.</source>
        <translation>Dit is een woord van de taal. Kies een andere naam.</translation>
    </message>
    <message>
        <source>This name is taken already. Choose another name.</source>
        <translation>Deze naam is al bezet. Kies een andere naam.</translation>
    </message>
</context>
<context>
    <name>CaretStatus</name>
    <message>
        <source>Help while writing</source>
        <translation>Hulp bij het schrijven</translation>
    </message>
    <message>
        <source>Switches on and off what comes by itself while you write the script: names, indentation, explanations, marks</source>
        <translation>Zet aan en uit wat tijdens het schrijven van het script vanzelf komt: namen, inspringen, uitleg, markeringen</translation>
    </message>
    <message>
        <source>&amp;Suggest names while typing</source>
        <translation>Namen &amp;voorstellen tijdens het typen</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>Nieuwe regels &amp;inspringen</translation>
    </message>
    <message>
        <source>&amp;Explain words under the mouse</source>
        <translation>Woorden onder de muis &amp;uitleggen</translation>
    </message>
    <message>
        <source>&amp;Mark problems in the text</source>
        <translation>Problemen in de tekst &amp;markeren</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Regel %1, kolom %2</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>OVR</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>INV</translation>
    </message>
    <message>
        <source>Typing replaces what stands there (Insert)</source>
        <translation>Typen vervangt wat er staat (Insert)</translation>
    </message>
    <message>
        <source>Typing inserts (Insert)</source>
        <translation>Typen voegt in (Insert)</translation>
    </message>
</context>
<context>
    <name>ScriptAreas</name>
    <message>
        <source>Area %1, number %2, page %3</source>
        <translation>Gebied %1, nummer %2, pagina %3</translation>
    </message>
</context>
<context>
    <name>ChangedFileBar</name>
    <message>
        <source>Open the other</source>
        <translation>Het andere openen</translation>
    </message>
    <message>
        <source>Shows what the file holds now; your unsaved work is kept and offered</source>
        <translation>Toont wat er nu in het bestand staat; uw niet-opgeslagen werk blijft bewaard en wordt aangeboden</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Een ander venster of programma heeft het projectbestand gewijzigd sinds dit venster het heeft geopend of opgeslagen.</translation>
    </message>
</context>
<context>
    <name>NumberBar</name>
    <message>
        <source>This book gets another number</source>
        <translation>Dit boek krijgt een ander nummer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Both books keep their number</source>
        <translation>Beide boeken behouden hun nummer</translation>
    </message>
    <message>
        <source>The number %1 is also that of %2 in this folder: the books would use the same pictures.</source>
        <translation>Het nummer %1 is in deze map ook dat van %2: de boeken zouden dezelfde afbeeldingen gebruiken.</translation>
    </message>
    <message>
        <source>Take number %1</source>
        <translation>Nummer %1 nemen</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Unsaved work cannot be kept in %1. Save it soon.</source>
        <translation>Niet opgeslagen werk kan niet worden bewaard in %1. Sla het gauw op.</translation>
    </message>
    <message>
        <source>That work is not there any more, or another window has it.</source>
        <translation>Dat werk is er niet meer, of een ander venster heeft het.</translation>
    </message>
</context>
<context>
    <name>RecoveryBar</name>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Brings the unsaved work into the window; the file stays as it is</source>
        <translation>Haalt het niet opgeslagen werk in het venster; het bestand blijft zoals het is</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergeten</translation>
    </message>
    <message>
        <source>Throws the unsaved work away</source>
        <translation>Gooit het niet opgeslagen werk weg</translation>
    </message>
    <message>
        <source>The copy of the unsaved work of %1 is damaged and cannot be restored. It stays here: %2</source>
        <translation>De kopie van het niet opgeslagen werk van %1 is beschadigd en kan niet worden hersteld. Ze blijft hier: %2</translation>
    </message>
    <message>
        <source>There is work since %1 that was never saved.</source>
        <translation>Er is werk sinds %1 dat nooit is opgeslagen.</translation>
    </message>
    <message>
        <source>There is unsaved work since %1 on a project that is not there any more: %2</source>
        <translation>Er is niet opgeslagen werk sinds %1 aan een project dat er niet meer is: %2</translation>
    </message>
    <message>
        <source>There is unsaved work on this project since %1.</source>
        <translation>Er is niet opgeslagen werk aan dit project sinds %1.</translation>
    </message>
</context>
<context>
    <name>SettingsBar</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Verbergt deze regel</translation>
    </message>
    <message>
        <source>How you like the window cannot be kept for the next start, since %1 cannot be written: the disk is full, or the folder is protected.</source>
        <translation>Hoe u het venster hebt ingericht, blijft niet bewaard tot de volgende start, want %1 kan niet worden geschreven: de schijf is vol of de map is beveiligd.</translation>
    </message>
</context>
<context>
    <name>PagePictures</name>
    <message>
        <source>The book has another number now. Save it before that.</source>
        <translation>Het boek heeft nu een ander nummer. Sla het eerst op.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>In de map kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and saved that. Open the book again.</source>
        <translation>Een ander venster heeft pagina&apos;s van dit boek verplaatst en dat opgeslagen. Open het boek opnieuw.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and not saved that yet.</source>
        <translation>Een ander venster heeft pagina&apos;s van dit boek verplaatst en dat nog niet opgeslagen.</translation>
    </message>
    <message>
        <source>It is a link to a file outside of the project&apos;s folder.</source>
        <translation>Het is een koppeling naar een bestand buiten de projectmap.</translation>
    </message>
    <message>
        <source>It is damaged. Put the pictures in order, then remove it.</source>
        <translation>Het is beschadigd. Zet de afbeeldingen op volgorde en verwijder het dan.</translation>
    </message>
</context>
<context>
    <name>AreaTools</name>
    <message>
        <source>Click an area to select it; drag it or its corners to change it</source>
        <translation>Klik op een gebied om het te selecteren, sleep het of zijn hoeken om het te veranderen</translation>
    </message>
    <message>
        <source>A new area: click its corners one after the other</source>
        <translation>Een nieuw gebied: klik de hoeken één voor één aan</translation>
    </message>
    <message>
        <source>%1. By keys: arrows, Space, Enter</source>
        <translation>%1. Met toetsen: pijlen, spatiebalk, Enter</translation>
    </message>
    <message>
        <source>Add rectangle</source>
        <translation>Rechthoek toevoegen</translation>
    </message>
    <message>
        <source>A new area: drag a rectangle, with Shift a square</source>
        <translation>Een nieuw gebied: sleep een rechthoek, met Shift een vierkant</translation>
    </message>
    <message>
        <source>Add ellipse</source>
        <translation>Ellips toevoegen</translation>
    </message>
    <message>
        <source>A new area: drag an ellipse, with Shift a circle</source>
        <translation>Een nieuw gebied: sleep een ellips, met Shift een cirkel</translation>
    </message>
    <message>
        <source>Area of one colour</source>
        <translation>Gebied van één kleur</translation>
    </message>
    <message>
        <source>A new area: click what has about the same colour</source>
        <translation>Een nieuw gebied: klik op wat ongeveer dezelfde kleur heeft</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; has fewer than three corners. The pen will not find it.</source>
        <translation>Het gebied &quot;%1&quot; heeft minder dan drie hoeken. De pen vindt het niet.</translation>
    </message>
    <message>
        <source>This page has no area to draw. &quot;+&quot; begins one.</source>
        <translation>Op deze pagina is geen gebied te tekenen. &quot;+&quot; begint er een.</translation>
    </message>
    <message>
        <source>Clicks now add corners to &quot;%1&quot;, the last area of this page.</source>
        <translation>Klikken voegen nu hoeken toe aan &quot;%1&quot;, het laatste gebied van deze pagina.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends drawing.</source>
        <translation>&quot;%1&quot; beëindigt het tekenen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, which was there before, has one more corner. Undo takes it back.</source>
        <translation>&quot;%1&quot;, dat er al was, heeft een hoek meer. Ongedaan maken neemt hem terug.</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; needs three corners.</source>
        <translation>Het gebied &quot;%1&quot; heeft drie hoeken nodig.</translation>
    </message>
    <message>
        <source>Enter takes the area, the wheel changes the tolerance: %1</source>
        <translation>Enter neemt het gebied over, het wiel verandert de tolerantie: %1</translation>
    </message>
    <message>
        <source>There is no picture here.</source>
        <translation>Hier is geen afbeelding.</translation>
    </message>
</context>
<context>
    <name>WhyButton</name>
    <message>
        <source>Why?</source>
        <translation>Waarom?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, where it tells what to do</source>
        <translation>Opent de handleiding in de browser, waar staat wat te doen is</translation>
    </message>
</context>
<context>
    <name>ZoomActions</name>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse</source>
        <translation>Toont de pagina groter, voor kleine gebieden; Ctrl en het wiel doen het rond de muis</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too</source>
        <translation>Toont de pagina kleiner, om er meer van te zien; Ctrl en het wiel doen het ook</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Shows the page as wide as the window, however it was zoomed</source>
        <translation>Toont de pagina zo breed als het venster, hoe er ook was gezoomd</translation>
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
        <translation>Minder dan drie hoeken</translation>
    </message>
    <message>
        <source>Not in the script</source>
        <translation>Niet in het script</translation>
    </message>
    <message>
        <source>Number above 15000: not known to the pen</source>
        <translation>Nummer boven 15000: kent de pen niet</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Waarschuwingen</translation>
    </message>
</context>
<context>
    <name>AreasDock</name>
    <message>
        <source>Areas</source>
        <translation>Gebieden</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the areas</source>
        <translation>Filter van de gebieden</translation>
    </message>
    <message>
        <source>Shows only areas whose name has this text, to find one among many; empty shows all</source>
        <translation>Toont alleen gebieden waarvan de naam deze tekst bevat, om er een onder vele te vinden; leeg toont alle</translation>
    </message>
    <message>
        <source>Areas of all pages</source>
        <translation>Gebieden van alle pagina&apos;s</translation>
    </message>
    <message>
        <source>A click selects an area, a double click goes to its code, F2 renames it</source>
        <translation>Een klik selecteert een gebied, een dubbelklik gaat naar de code, F2 hernoemt het</translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message>
        <source>Page %1</source>
        <translation>Pagina %1</translation>
    </message>
</context>
<context>
    <name>PagesDock</name>
    <message>
        <source>Pages</source>
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>Pages of the book</source>
        <translation>Pagina&apos;s van het boek</translation>
    </message>
    <message>
        <source>Move page up</source>
        <translation>Pagina omhoog</translation>
    </message>
    <message>
        <source>Move page down</source>
        <translation>Pagina omlaag</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Pagina verwijderen</translation>
    </message>
    <message>
        <source>Page %1 is page %2 now.</source>
        <translation>Pagina %1 is nu pagina %2.</translation>
    </message>
    <message>
        <source>Page %1 is removed with its areas. Undo brings it back.</source>
        <translation>Pagina %1 is met haar gebieden verwijderd. Ongedaan maken brengt haar terug.</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>Geen pagina</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete removes it, and Undo brings it back</source>
        <translation>Een klik gaat naar een pagina. Slepen verplaatst haar (Ctrl+Omhoog, Ctrl+Omlaag); Delete verwijdert haar, en Ongedaan maken brengt haar terug</translation>
    </message>
</context>
</TS>
