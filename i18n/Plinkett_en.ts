<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Plinkett</source>
        <translation>About Plinkett</translation>
    </message>
    <message>
        <source>Makes printed books and boards talk.</source>
        <translation>Makes printed books and boards talk.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence: %1</translation>
    </message>
    <message>
        <source>Libraries and their licences:</source>
        <translation>Libraries and their licences:</translation>
    </message>
    <message>
        <source>Tells the version, to be named when something goes wrong, and the licences</source>
        <translation>Tells the version, to be named when something goes wrong, and the licences</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>There is not enough memory to go on, so Plinkett ends here. What you had not saved is kept as it was some seconds ago: open the book again to get it back.</source>
        <translation>There is not enough memory to go on, so Plinkett ends here. What you had not saved is kept as it was some seconds ago: open the book again to get it back.</translation>
    </message>
</context>
<context>
    <name>AreaCommands</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>Takes the selected areas to the clipboard</source>
        <translation>Takes the selected areas to the clipboard</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>Copies the selected areas to the clipboard</source>
        <translation>Copies the selected areas to the clipboard</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Brings the areas on the clipboard onto this page: under their names, which are counted up on the page that they come from</source>
        <translation>Brings the areas on the clipboard onto this page: under their names, which are counted up on the page that they come from</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;uplicate</translation>
    </message>
    <message>
        <source>Copies the selected areas beside themselves</source>
        <translation>Copies the selected areas beside themselves</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Deletes the selected areas</source>
        <translation>Deletes the selected areas</translation>
    </message>
    <message>
        <source>Where areas overlap, the one that comes first speaks</source>
        <translation>Where areas overlap, the one that comes first speaks</translation>
    </message>
    <message>
        <source>Bring &amp;forward</source>
        <translation>Bring &amp;forward</translation>
    </message>
    <message>
        <source>Send &amp;backward</source>
        <translation>Send &amp;backward</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Select &amp;all</translation>
    </message>
    <message>
        <source>Selects all areas of the page</source>
        <translation>Selects all areas of the page</translation>
    </message>
    <message>
        <source>Areas copied: %1</source>
        <translation>Areas copied: %1</translation>
    </message>
    <message>
        <source>Areas cut: %1</source>
        <translation>Areas cut: %1</translation>
    </message>
    <message>
        <source>The clipboard holds no areas.</source>
        <translation>The clipboard holds no areas.</translation>
    </message>
    <message>
        <source>The areas on the clipboard cannot be read: line %1 is not as it should be.</source>
        <translation>The areas on the clipboard cannot be read: line %1 is not as it should be.</translation>
    </message>
    <message>
        <source>Areas pasted: %1</source>
        <translation>Areas pasted: %1</translation>
    </message>
    <message>
        <source>%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.</source>
        <translation>%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.</translation>
    </message>
</context>
<context>
    <name>BookPrinting</name>
    <message>
        <source>&amp;PDF of the book...</source>
        <translation>&amp;PDF of the book...</translation>
    </message>
    <message>
        <source>&amp;Symbols and legend...</source>
        <translation>&amp;Symbols and legend...</translation>
    </message>
    <message>
        <source>Printer&apos;s &amp;test page...</source>
        <translation>Printer&apos;s &amp;test page...</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>There is no picture yet</translation>
    </message>
    <message>
        <source>Creating the PDF...</source>
        <translation>Creating the PDF...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The PDF was created: %1</source>
        <translation>The PDF was created: %1</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Creating was cancelled</translation>
    </message>
    <message>
        <source>The PDF was not created: %1</source>
        <translation>The PDF was not created: %1</translation>
    </message>
    <message>
        <source>Making the printer&apos;s test page...</source>
        <translation>Making the printer&apos;s test page...</translation>
    </message>
    <message>
        <source>Print %1 at 100 %, and copy %2 onto the pen</source>
        <translation>Print %1 at 100 %, and copy %2 onto the pen</translation>
    </message>
    <message>
        <source>The test page was not created: %1</source>
        <translation>The test page was not created: %1</translation>
    </message>
</context>
<context>
    <name>DotPreview</name>
    <message>
        <source>Preview: a square centimetre of the page</source>
        <translation>Preview: a square centimetre of the page</translation>
    </message>
    <message>
        <source>A square centimetre of the page: a pixel of the screen is one of the printer</source>
        <translation>A square centimetre of the page: a pixel of the screen is one of the printer</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>The pen says only one of these texts, at random</source>
        <translation>The pen says only one of these texts, at random</translation>
    </message>
    <message>
        <source>Say one after the other</source>
        <translation>Say one after the other</translation>
    </message>
    <message>
        <source>The saved project has one percent sign less here</source>
        <translation>The saved project has one percent sign less here</translation>
    </message>
    <message>
        <source>Write one percent sign</source>
        <translation>Write one percent sign</translation>
    </message>
    <message>
        <source>This text shares its audio file with &quot;%1&quot; in line %2, and the pen says that one here, too</source>
        <translation>This text shares its audio file with &quot;%1&quot; in line %2, and the pen says that one here, too</translation>
    </message>
    <message>
        <source>This text is too long: the name of its audio file has %1 characters, and 251 are the most</source>
        <translation>This text is too long: the name of its audio file has %1 characters, and 251 are the most</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a language, so the texts of this voice are not spoken</source>
        <translation>&quot;%1&quot; cannot be a language, so the texts of this voice are not spoken</translation>
    </message>
    <message>
        <source>When this is neither 0 nor 1, the pen does neither what stands behind if nor what stands behind else</source>
        <translation>When this is neither 0 nor 1, the pen does neither what stands behind if nor what stands behind else</translation>
    </message>
    <message>
        <source>Compare with 0</source>
        <translation>Compare with 0</translation>
    </message>
    <message>
        <source>&amp; and | bind tighter than comparisons: each comparison needs parentheses of its own</source>
        <translation>&amp; and | bind tighter than comparisons: each comparison needs parentheses of its own</translation>
    </message>
    <message>
        <source>Put each comparison into parentheses</source>
        <translation>Put each comparison into parentheses</translation>
    </message>
    <message>
        <source>What falls below 0 here goes on down from 65535, so the comparison takes it for large</source>
        <translation>What falls below 0 here goes on down from 65535, so the comparison takes it for large</translation>
    </message>
    <message>
        <source>Add on the other side</source>
        <translation>Add on the other side</translation>
    </message>
    <message>
        <source>%1 is above 65535 and becomes %2</source>
        <translation>%1 is above 65535 and becomes %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is set here, but &apos;%2&apos; is read: names are read in small letters, and these are two variables</source>
        <translation>&apos;%1&apos; is set here, but &apos;%2&apos; is read: names are read in small letters, and these are two variables</translation>
    </message>
    <message>
        <source>Write it in small letters</source>
        <translation>Write it in small letters</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is set but never read</source>
        <translation>The variable &apos;%1&apos; is set but never read</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is read but never set, so it is always 0</source>
        <translation>The variable &apos;%1&apos; is read but never set, so it is always 0</translation>
    </message>
    <message>
        <source>No game can be built with a variable named &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>No game can be built with a variable named &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</translation>
    </message>
    <message>
        <source>The compiler uses the name &apos;%1&apos; itself; one of the two would be lost</source>
        <translation>The compiler uses the name &apos;%1&apos; itself; one of the two would be lost</translation>
    </message>
    <message>
        <source>No game can be built with a goto to &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>No game can be built with a goto to &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</translation>
    </message>
    <message>
        <source>This stands outside of every sub and is never carried out</source>
        <translation>This stands outside of every sub and is never carried out</translation>
    </message>
    <message>
        <source>The sub &apos;%1&apos; has no end, so no game can be built</source>
        <translation>The sub &apos;%1&apos; has no end, so no game can be built</translation>
    </message>
    <message>
        <source>End it behind its last line</source>
        <translation>End it behind its last line</translation>
    </message>
    <message>
        <source>Add an empty sub</source>
        <translation>Add an empty sub</translation>
    </message>
    <message>
        <source>The pen never comes to this: it stands behind a goto</source>
        <translation>The pen never comes to this: it stands behind a goto</translation>
    </message>
    <message>
        <source>This belongs to the select in line %1, which has ended, and not to the one in line %2</source>
        <translation>This belongs to the select in line %1, which has ended, and not to the one in line %2</translation>
    </message>
    <message>
        <source>The pen goes round for ever and says nothing: %1</source>
        <translation>The pen goes round for ever and says nothing: %1</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with this name</source>
        <translation>Area &apos;%1&apos; on page %2: no game can be built with this name</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the game reads this name as &apos;%3&apos;</source>
        <translation>Area &apos;%1&apos; on page %2: the game reads this name as &apos;%3&apos;</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with a sub whose name is a number</source>
        <translation>Area &apos;%1&apos; on page %2: no game can be built with a sub whose name is a number</translation>
    </message>
    <message>
        <source>Give it a free number</source>
        <translation>Give it a free number</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: there is no dot pattern for the number %3, so nothing is printed</source>
        <translation>Area &apos;%1&apos; on page %2: there is no dot pattern for the number %3, so nothing is printed</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is below 1000, where the pen looks for books and its own signs</source>
        <translation>Area &apos;%1&apos; on page %2: the number %3 is below 1000, where the pen looks for books and its own signs</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is above 14999 and the pen does not know it</source>
        <translation>Area &apos;%1&apos; on page %2: the number %3 is above 14999 and the pen does not know it</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the area &apos;%4&apos; has the number %3, too; the pen takes both for one</source>
        <translation>Area &apos;%1&apos; on page %2: the area &apos;%4&apos; has the number %3, too; the pen takes both for one</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: in the last build &apos;%4&apos; had the number %3; the next build gives it another one</source>
        <translation>Area &apos;%1&apos; on page %2: in the last build &apos;%4&apos; had the number %3; the next build gives it another one</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it are black in the picture, where the pen sees no dots; 30 % are the most</source>
        <translation>Area &apos;%1&apos; on page %2: %3 % of it are black in the picture, where the pen sees no dots; 30 % are the most</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 has fewer than three corners, so nothing is printed</source>
        <translation>Area &apos;%1&apos; on page %2 has fewer than three corners, so nothing is printed</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: its edges cross, and what is enclosed twice is left out</source>
        <translation>Area &apos;%1&apos; on page %2: its edges cross, and what is enclosed twice is left out</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it lie outside of the picture</source>
        <translation>Area &apos;%1&apos; on page %2: %3 % of it lie outside of the picture</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 lies wholly below areas that come before it, so the pen never finds it</source>
        <translation>Area &apos;%1&apos; on page %2 lies wholly below areas that come before it, so the pen never finds it</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 is %3 mm wide on paper where it is widest; the pen needs 8 mm</source>
        <translation>Area &apos;%1&apos; on page %2 is %3 mm wide on paper where it is widest; the pen needs 8 mm</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the picture is too dark there for black dots, its lightness is %3 %; 35 % are needed</source>
        <translation>Area &apos;%1&apos; on page %2: the picture is too dark there for black dots, its lightness is %3 %; 35 % are needed</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the script has no sub of this name, so a touch does nothing</source>
        <translation>Area &apos;%1&apos; on page %2: the script has no sub of this name, so a touch does nothing</translation>
    </message>
    <message>
        <source>No area and no goto leads to the sub &apos;%1&apos;, so it is never carried out</source>
        <translation>No area and no goto leads to the sub &apos;%1&apos;, so it is never carried out</translation>
    </message>
    <message>
        <source>The script has %1 steps; %2 are the most that a game can have</source>
        <translation>The script has %1 steps; %2 are the most that a game can have</translation>
    </message>
    <message>
        <source>The name of the product cannot have these characters: %1</source>
        <translation>The name of the product cannot have these characters: %1</translation>
    </message>
    <message>
        <source>The name of the product has %1 characters; no game can be built with more than 49</source>
        <translation>The name of the product has %1 characters; no game can be built with more than 49</translation>
    </message>
    <message>
        <source>The game file cannot hold these characters of the product&apos;s name: %1</source>
        <translation>The game file cannot hold these characters of the product&apos;s name: %1</translation>
    </message>
    <message>
        <source>Other books in this folder have the number %1, too, and the same picture files: %2</source>
        <translation>Other books in this folder have the number %1, too, and the same picture files: %2</translation>
    </message>
    <message>
        <source>The number of the product is %1; books made at home have 900 to 950, others may be those of a bought book</source>
        <translation>The number of the product is %1; books made at home have 900 to 950, others may be those of a bought book</translation>
    </message>
    <message>
        <source>No area has the product&apos;s number %1: nothing on the pages starts the book, so a page of symbols has to</source>
        <translation>No area has the product&apos;s number %1: nothing on the pages starts the book, so a page of symbols has to</translation>
    </message>
    <message>
        <source>The script has %1 steps of the %2 that a game can have</source>
        <translation>The script has %1 steps of the %2 that a game can have</translation>
    </message>
    <message>
        <source>Page %1 has no areas; other programs that save the project lose it</source>
        <translation>Page %1 has no areas; other programs that save the project lose it</translation>
    </message>
    <message>
        <source>Page %1: on its paper the picture has %2 dpi; below 150 its pixels can be seen</source>
        <translation>Page %1: on its paper the picture has %2 dpi; below 150 its pixels can be seen</translation>
    </message>
    <message>
        <source>Print it with 1200 dpi</source>
        <translation>Print it with 1200 dpi</translation>
    </message>
    <message>
        <source>Page %1: with %2 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right</source>
        <translation>Page %1: with %2 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right</translation>
    </message>
    <message>
        <source>Page %1: picture and paper have other proportions, so %2 mm of the paper stay blank</source>
        <translation>Page %1: picture and paper have other proportions, so %2 mm of the paper stay blank</translation>
    </message>
</context>
<context>
    <name>KVQtFindDialog</name>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>Goes to the next place that holds the text (Return); F3 does it in the script</source>
        <translation>Goes to the next place that holds the text (Return); F3 does it in the script</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>Replaces what is selected, or else the next place that holds the text</source>
        <translation>Replaces what is selected, or else the next place that holds the text</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>Replace &amp;All</translation>
    </message>
    <message>
        <source>Replaces the text wherever it stands in the script; Undo brings all of it back</source>
        <translation>Replaces the text wherever it stands in the script; Undo brings all of it back</translation>
    </message>
    <message>
        <source>Search &amp;backwards</source>
        <translation>Search &amp;backwards</translation>
    </message>
    <message>
        <source>Searches from the caret toward the beginning instead of the end</source>
        <translation>Searches from the caret toward the beginning instead of the end</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>The text that takes its place; empty deletes what is found</source>
        <translation>The text that takes its place; empty deletes what is found</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Find and replace</translation>
    </message>
    <message>
        <source>Find &amp;what:</source>
        <translation>Find &amp;what:</translation>
    </message>
    <message>
        <source>The text that is searched for; capital and small letters differ</source>
        <translation>The text that is searched for; capital and small letters differ</translation>
    </message>
</context>
<context>
    <name>KVQtHighlightEditCtrlInlay</name>
    <message>
        <source>Go to line</source>
        <translation>Go to line</translation>
    </message>
    <message>
        <source>&amp;Line (1 to %1):</source>
        <translation>&amp;Line (1 to %1):</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Context menu</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>Cu&amp;t	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copy	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Paste	Ctrl+V</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>Select &amp;All	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F3</source>
        <translation>&amp;Find...	Ctrl+F3</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt	F3</source>
        <translation>Find Ne&amp;xt	F3</translation>
    </message>
    <message>
        <source>&amp;Replace...	Ctrl+H</source>
        <translation>&amp;Replace...	Ctrl+H</translation>
    </message>
    <message>
        <source>Undo	Ctrl+Z</source>
        <translation>Undo	Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo	Ctrl+Y</source>
        <translation>Redo	Ctrl+Y</translation>
    </message>
    <message>
        <source>Toggle Bookmark	Ctrl+F2</source>
        <translation>Toggle Bookmark	Ctrl+F2</translation>
    </message>
    <message>
        <source>Next Bookmark	F2</source>
        <translation>Next Bookmark	F2</translation>
    </message>
    <message>
        <source>Previous Bookmark	Shift+F2</source>
        <translation>Previous Bookmark	Shift+F2</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Went on from the end.</translation>
    </message>
    <message>
        <source>Went on from the beginning.</source>
        <translation>Went on from the beginning.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nothing found.</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Replacing...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>The text would become too large. It stays as it was.</source>
        <translation>The text would become too large. It stays as it was.</translation>
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
        <translation>Project Name</translation>
    </message>
    <message>
        <source>The name of the book: the pen says it when the book is switched on, and game and PDF are named after it</source>
        <translation>The name of the book: the pen says it when the book is switched on, and game and PDF are named after it</translation>
    </message>
    <message>
        <source>Project ID</source>
        <translation>Project ID</translation>
    </message>
    <message>
        <source>The number by which the pen knows the book: each book on the pen needs its own, 900 to 950 for those made at home</source>
        <translation>The number by which the pen knows the book: each book on the pen needs its own, 900 to 950 for those made at home</translation>
    </message>
    <message>
        <source>Current Picture (Area)</source>
        <translation>Current Picture (Area)</translation>
    </message>
    <message>
        <source>Paper: [mm]</source>
        <translation>Paper: [mm]</translation>
    </message>
    <message>
        <source>Paper width in millimetres</source>
        <translation>Paper width in millimetres</translation>
    </message>
    <message>
        <source>How wide this page is printed, in millimetres: its picture fills the paper</source>
        <translation>How wide this page is printed, in millimetres: its picture fills the paper</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Paper height in millimetres</source>
        <translation>Paper height in millimetres</translation>
    </message>
    <message>
        <source>How high this page is printed, in millimetres: its picture fills the paper</source>
        <translation>How high this page is printed, in millimetres: its picture fills the paper</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, for this page: the pen needs 600 at least, better are 1200</source>
        <translation>The dots per inch of the printer, for this page: the pen needs 600 at least, better are 1200</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Makes a print image (TIFF) of each page, for a print shop; for a printer at home take PDF</source>
        <translation>Makes a print image (TIFF) of each page, for a print shop; for a printer at home take PDF</translation>
    </message>
    <message>
        <source>Create the output image now...</source>
        <translation>Create the output image now...</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Makes a PDF of the book for your own printer, each page in its true size; its menu (key Down) has symbols and the printer&apos;s test page</source>
        <translation>Makes a PDF of the book for your own printer, each page in its true size; its menu (key Down) has symbols and the printer&apos;s test page</translation>
    </message>
    <message>
        <source>Add START &amp;symbol</source>
        <translation>Add START &amp;symbol</translation>
    </message>
    <message>
        <source>An area with the number of the book, which the pen must touch before it knows it</source>
        <translation>An area with the number of the book, which the pen must touch before it knows it</translation>
    </message>
    <message>
        <source>This page has its START symbol already: %1</source>
        <translation>This page has its START symbol already: %1</translation>
    </message>
    <message>
        <source>The START symbol lies over other areas: nothing of the page is free. Move it.</source>
        <translation>The START symbol lies over other areas: nothing of the page is free. Move it.</translation>
    </message>
    <message>
        <source>The START symbol is on the page. Drag it where you like.</source>
        <translation>The START symbol is on the page. Drag it where you like.</translation>
    </message>
    <message>
        <source>For all pictures</source>
        <translation>For all pictures</translation>
    </message>
    <message>
        <source>Gives the paper and the DPI of this picture to all others, for a book that is printed on one kind of paper</source>
        <translation>Gives the paper and the DPI of this picture to all others, for a book that is printed on one kind of paper</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>There is no picture yet</translation>
    </message>
    <message>
        <source>Paper size and DPI must be greater than 0</source>
        <translation>Paper size and DPI must be greater than 0</translation>
    </message>
    <message>
        <source>All pictures have this paper and these DPI now</source>
        <translation>All pictures have this paper and these DPI now</translation>
    </message>
    <message>
        <source>picture %1: %2 DPI are too few for the dots</source>
        <translation>picture %1: %2 DPI are too few for the dots</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>Creating was cancelled</translation>
    </message>
    <message>
        <source>Picture %1 was not created: %2</source>
        <translation>Picture %1 was not created: %2</translation>
    </message>
    <message>
        <source>1 print image created</source>
        <translation>1 print image created</translation>
    </message>
    <message>
        <source>%1 print images created</source>
        <translation>%1 print images created</translation>
    </message>
    <message>
        <source>Building...</source>
        <translation>Building...</translation>
    </message>
    <message>
        <source>The game was built: %1</source>
        <translation>The game was built: %1</translation>
    </message>
    <message>
        <source>The game was not built. The console tells why.</source>
        <translation>The game was not built. The console tells why.</translation>
    </message>
    <message>
        <source>The game was copied to the pen, which can be unplugged</source>
        <translation>The game was copied to the pen, which can be unplugged</translation>
    </message>
    <message>
        <source>The game was copied to the pen. Eject it before you unplug it</source>
        <translation>The game was copied to the pen. Eject it before you unplug it</translation>
    </message>
    <message>
        <source>The game was not copied to the pen</source>
        <translation>The game was not copied to the pen</translation>
    </message>
    <message>
        <source>There is no game yet: build it first</source>
        <translation>There is no game yet: build it first</translation>
    </message>
    <message>
        <source>No pen was found: a pen is a drive that holds the file %1</source>
        <translation>No pen was found: a pen is a drive that holds the file %1</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Opened: %1</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Not opened: %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>The script declares the new voice in its first line now.</source>
        <translation>The script declares the new voice in its first line now.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Not saved: %1</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Areas</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Show the previous picture</source>
        <translation>Show the previous picture</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Previous picture</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Shows the next picture or appends a new one</source>
        <translation>Shows the next picture or appends a new one</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Next picture</translation>
    </message>
    <message>
        <source>load...</source>
        <translation>load...</translation>
    </message>
    <message>
        <source>Puts another picture file in the place of this one, such as a better scan; paper and areas stay</source>
        <translation>Puts another picture file in the place of this one, such as a better scan; paper and areas stay</translation>
    </message>
    <message>
        <source>✖</source>
        <translation>✖</translation>
    </message>
    <message>
        <source>Delete picture</source>
        <translation>Delete picture</translation>
    </message>
    <message>
        <source>Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete does it and Undo brings it back</source>
        <translation>Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete does it and Undo brings it back</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>↖</translation>
    </message>
    <message>
        <source>Pick area mode</source>
        <translation>Pick area mode</translation>
    </message>
    <message>
        <source>Pick area</source>
        <translation>Pick area</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Add a new polygon mode</source>
        <translation>Add a new polygon mode</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Add area</translation>
    </message>
    <message>
        <source>Delete selected polygon</source>
        <translation>Delete selected polygon</translation>
    </message>
    <message>
        <source>Delete area</source>
        <translation>Delete area</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>Area name</source>
        <translation>Area name</translation>
    </message>
    <message>
        <source>The name of the area: the sub of that name in the script says what is heard. Areas of one name do the same</source>
        <translation>The name of the area: the sub of that name in the script says what is heard. Areas of one name do the same</translation>
    </message>
    <message>
        <source>OID of the area</source>
        <translation>OID of the area</translation>
    </message>
    <message>
        <source>The number of the dots that the area is printed with: it comes by itself and stays, so that printed pages fit</source>
        <translation>The number of the dots that the area is printed with: it comes by itself and stays, so that printed pages fit</translation>
    </message>
    <message>
        <source>Goto code</source>
        <translation>Goto code</translation>
    </message>
    <message>
        <source>Goes to the sub of the area in the script, where what it says is written; begins one where there is none</source>
        <translation>Goes to the sub of the area in the script, where what it says is written; begins one where there is none</translation>
    </message>
    <message>
        <source>Picture with its areas</source>
        <translation>Picture with its areas</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Build</translation>
    </message>
    <message>
        <source>Book tests (*.booktest)</source>
        <translation>Book tests (*.booktest)</translation>
    </message>
    <message>
        <source>Save book test</source>
        <translation>Save book test</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Try</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Speech</translation>
    </message>
    <message>
        <source>👷 Build</source>
        <translation>👷 Build</translation>
    </message>
    <message>
        <source>Builds the project to a binary game</source>
        <translation>Builds the project to a binary game</translation>
    </message>
    <message>
        <source>⚠Debug Mode</source>
        <translation>⚠Debug Mode</translation>
    </message>
    <message>
        <source>Tells (says) the code line number, when running on the device</source>
        <translation>Tells (says) the code line number, when running on the device</translation>
    </message>
    <message>
        <source>Copy to Device</source>
        <translation>Copy to Device</translation>
    </message>
    <message>
        <source>Copies the binary to the attached USB device</source>
        <translation>Copies the binary to the attached USB device</translation>
    </message>
    <message>
        <source>&amp;Quick answers</source>
        <translation>&amp;Quick answers</translation>
    </message>
    <message>
        <source>Makes the same game in fewer steps, so that the pen answers at once, also where the script reckons much</source>
        <translation>Makes the same game in fewer steps, so that the pen answers at once, also where the script reckons much</translation>
    </message>
    <message>
        <source>The pen takes its time for every step of the script. With quick answers the game does the same in few of them. They are made by Plinkett&apos;s own assembler, also where tttool is installed.</source>
        <translation>The pen takes its time for every step of the script. With quick answers the game does the same in few of them. They are made by Plinkett&apos;s own assembler, also where tttool is installed.</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>toolBar</source>
        <translation>toolBar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Opens another book; of this one, what is not saved is kept and offered again</source>
        <translation>Opens another book; of this one, what is not saved is kept and offered again</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Writes the book into its project file; pictures and audio files lie beside it</source>
        <translation>Writes the book into its project file; pictures and audio files lie beside it</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Takes back the last step, on pages and areas, or in the script while that is shown</source>
        <translation>Takes back the last step, on pages and areas, or in the script while that is shown</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Does again what was taken back last, until something else is changed</source>
        <translation>Does again what was taken back last, until something else is changed</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Save As...</translation>
    </message>
    <message>
        <source>Saves the book under another name or in another folder, and takes pictures and audio files along</source>
        <translation>Saves the book under another name or in another folder, and takes pictures and audio files along</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>Project files (*.oidpro)</source>
        <translation>Project files (*.oidpro)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>Import Picture</source>
        <translation>Import Picture</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Pictures of the pages</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>New book...</translation>
    </message>
    <message>
        <source>Makes a book with the pictures of its pages</source>
        <translation>Makes a book with the pictures of its pages</translation>
    </message>
    <message>
        <source>Folder for your copy of the book</source>
        <translation>Folder for your copy of the book</translation>
    </message>
    <message>
        <source>The book could not be copied to %1.</source>
        <translation>The book could not be copied to %1.</translation>
    </message>
    <message>
        <source>Your copy of the book lies in %1.</source>
        <translation>Your copy of the book lies in %1.</translation>
    </message>
    <message>
        <source>Picture files (*.png; *.jpg; *.jpeg; *.bmp)</source>
        <translation>Picture files (*.png; *.jpg; *.jpeg; *.bmp)</translation>
    </message>
    <message>
        <source>The file could not be saved to the drive</source>
        <translation>The file could not be saved to the drive</translation>
    </message>
    <message>
        <source>This book has the number %1 now. Save it to keep that.</source>
        <translation>This book has the number %1 now. Save it to keep that.</translation>
    </message>
    <message>
        <source>No area is selected, so this numbers none. Click one, then type its number.</source>
        <translation>No area is selected, so this numbers none. Click one, then type its number.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Creating the print images...</source>
        <translation>Creating the print images...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Making the speech...</source>
        <translation>Making the speech...</translation>
    </message>
    <message>
        <source>Can&apos;t load that picture.</source>
        <translation>Can&apos;t load that picture.</translation>
    </message>
    <message>
        <source>Save the project first: its pictures are kept beside the project file.</source>
        <translation>Save the project first: its pictures are kept beside the project file.</translation>
    </message>
    <message>
        <source>Overwrite Picture</source>
        <translation>Overwrite Picture</translation>
    </message>
    <message>
        <source>Do you want to overwrite the picture in the cache?</source>
        <translation>Do you want to overwrite the picture in the cache?</translation>
    </message>
    <message>
        <source>The picture could not be kept beside the project file.</source>
        <translation>The picture could not be kept beside the project file.</translation>
    </message>
    <message>
        <source>The pictures could not be brought to their pages.</source>
        <translation>The pictures could not be brought to their pages.</translation>
    </message>
    <message>
        <source>Shows or hides the list of the pages, in which one goes to pages, moves and removes them</source>
        <translation>Shows or hides the list of the pages, in which one goes to pages, moves and removes them</translation>
    </message>
    <message>
        <source>Shows or hides the list of all areas of the book, with what is wrong with them</source>
        <translation>Shows or hides the list of all areas of the book, with what is wrong with them</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Another window or program has changed the project file since this window opened or saved it.</translation>
    </message>
    <message>
        <source>Overwriting loses what the file holds now. When you open that, your unsaved work is kept and offered.</source>
        <translation>Overwriting loses what the file holds now. When you open that, your unsaved work is kept and offered.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Save &amp;as...</translation>
    </message>
    <message>
        <source>Open the o&amp;ther</source>
        <translation>Open the o&amp;ther</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Overwrite</translation>
    </message>
    <message>
        <source>Your unsaved work cannot be kept. Save it under another name first.</source>
        <translation>Your unsaved work cannot be kept. Save it under another name first.</translation>
    </message>
    <message>
        <source>%1: another window has moved pages and saved that. Open the book again.</source>
        <translation>%1: another window has moved pages and saved that. Open the book again.</translation>
    </message>
    <message>
        <source>The pictures are in the order of the pages again. Pages had been moved, but not saved.</source>
        <translation>The pictures are in the order of the pages again. Pages had been moved, but not saved.</translation>
    </message>
    <message>
        <source>These files could not be copied along. The old ones are still where they were.</source>
        <translation>These files could not be copied along. The old ones are still where they were.</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Delete Picture</translation>
    </message>
    <message>
        <source>Do you really want to delete this picture?</source>
        <translation>Do you really want to delete this picture?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, at what the shown tab is for</source>
        <translation>Opens the manual in your browser, at what the shown tab is for</translation>
    </message>
    <message>
        <source>Pages are removed in the list of the pages, which opens now: Delete removes this one, and Undo brings it back.</source>
        <translation>Pages are removed in the list of the pages, which opens now: Delete removes this one, and Undo brings it back.</translation>
    </message>
    <message>
        <source>Delete removes page %1, and Undo brings it back.</source>
        <translation>Delete removes page %1, and Undo brings it back.</translation>
    </message>
</context>
<context>
    <name>NewBook</name>
    <message>
        <source>The book needs a name.</source>
        <translation>The book needs a name.</translation>
    </message>
    <message>
        <source>The number must be from %1 to %2.</source>
        <translation>The number must be from %1 to %2.</translation>
    </message>
    <message>
        <source>The book needs a folder.</source>
        <translation>The book needs a folder.</translation>
    </message>
    <message>
        <source>The folder needs its whole path.</source>
        <translation>The folder needs its whole path.</translation>
    </message>
    <message>
        <source>%1 is a file and no folder.</source>
        <translation>%1 is a file and no folder.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1.</source>
        <translation>Nothing can be written into the folder %1.</translation>
    </message>
    <message>
        <source>There is a book already: %1. Take another name or folder.</source>
        <translation>There is a book already: %1. Take another name or folder.</translation>
    </message>
    <message>
        <source>The book %1 in this folder has the number %2, too. Take another number or folder.</source>
        <translation>The book %1 in this folder has the number %2, too. Take another number or folder.</translation>
    </message>
    <message>
        <source>In this folder is %1, which belongs to a book of the number %2. Take another number or folder.</source>
        <translation>In this folder is %1, which belongs to a book of the number %2. Take another number or folder.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 cannot be written.</translation>
    </message>
    <message>
        <source>%1 is no picture, or cannot be read.</source>
        <translation>%1 is no picture, or cannot be read.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be kept in the folder of the book.</source>
        <translation>The picture %1 cannot be kept in the folder of the book.</translation>
    </message>
</context>
<context>
    <name>NewBookDialog</name>
    <message>
        <source>New book</source>
        <translation>New book</translation>
    </message>
    <message>
        <source>Make the book</source>
        <translation>Make the book</translation>
    </message>
    <message>
        <source>The name of the book, which the pen says when it is switched on</source>
        <translation>The name of the book, which the pen says when it is switched on</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>%1 to %2, another one for each book on the pen; 900 to 950 are for books of your own</source>
        <translation>%1 to %2, another one for each book on the pen; 900 to 950 are for books of your own</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Number:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Pictures of the pages, which can also come later:</source>
        <translation>Pictures of the pages, which can also come later:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Where all files of the book lie; it is made when it is not there</source>
        <translation>Where all files of the book lie; it is made when it is not there</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choose...</translation>
    </message>
    <message>
        <source>Chooses a folder that is there</source>
        <translation>Chooses a folder that is there</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Pictures of the pages</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Add...</translation>
    </message>
    <message>
        <source>Adds picture files, several at once</source>
        <translation>Adds picture files, several at once</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Moves the picture to the page before</source>
        <translation>Moves the picture to the page before</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Moves the picture to the next page</source>
        <translation>Moves the picture to the next page</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Takes the picture off this list; its file stays</source>
        <translation>Takes the picture off this list; its file stays</translation>
    </message>
    <message>
        <source>Folder of the book</source>
        <translation>Folder of the book</translation>
    </message>
    <message>
        <source>No picture, so it is not in the list: %1</source>
        <translation>No picture, so it is not in the list: %1</translation>
    </message>
    <message>
        <source>The book %1 has this number, too: they cannot both be on the pen.</source>
        <translation>The book %1 has this number, too: they cannot both be on the pen.</translation>
    </message>
    <message>
        <source>Making the book...</source>
        <translation>Making the book...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Cancelled: nothing was made.</source>
        <translation>Cancelled: nothing was made.</translation>
    </message>
</context>
<context>
    <name>OpenManual</name>
    <message>
        <source>The manual cannot be shown: it is not installed, or there is no browser.</source>
        <translation>The manual cannot be shown: it is not installed, or there is no browser.</translation>
    </message>
</context>
<context>
    <name>PageAccessible</name>
    <message>
        <source>number %1, area %2 of %3</source>
        <translation>number %1, area %2 of %3</translation>
    </message>
    <message>
        <source>%1 % from the left, %2 % from the top</source>
        <translation>%1 % from the left, %2 % from the top</translation>
    </message>
</context>
<context>
    <name>PageMenu</name>
    <message>
        <source>Areas here</source>
        <translation>Areas here</translation>
    </message>
    <message>
        <source>%1 (speaks here)</source>
        <translation>%1 (speaks here)</translation>
    </message>
</context>
<context>
    <name>PdfDialog</name>
    <message>
        <source>Lighten only inside of areas</source>
        <translation>Lighten only inside of areas</translation>
    </message>
    <message>
        <source>Outlines and names of the areas</source>
        <translation>Outlines and names of the areas</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Crop marks</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>everywhere</translation>
    </message>
    <message>
        <source>only in areas</source>
        <translation>only in areas</translation>
    </message>
    <message>
        <source>none: a proof</source>
        <translation>none: a proof</translation>
    </message>
    <message>
        <source>when no area starts the book</source>
        <translation>when no area starts the book</translation>
    </message>
    <message>
        <source>always</source>
        <translation>always</translation>
    </message>
    <message>
        <source>never</source>
        <translation>never</translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation>nothing else</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>1 cm of the page, dots 1:1</source>
        <translation>1 cm of the page, dots 1:1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>all</translation>
    </message>
    <message>
        <source>Only these pictures, counted from 0, such as 0,2-3, to print a changed page again; empty prints all</source>
        <translation>Only these pictures, counted from 0, such as 0,2-3, to print a changed page again; empty prints all</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages:</translation>
    </message>
    <message>
        <source>Whether the whole page gets dots, or only its areas, which leaves the rest as clear as it was</source>
        <translation>Whether the whole page gets dots, or only its areas, which leaves the rest as clear as it was</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Dots</translation>
    </message>
    <message>
        <source>Dots:</source>
        <translation>Dots:</translation>
    </message>
    <message>
        <source>Lightens the picture on areas only, where the pen reads; the rest of it stays as it is</source>
        <translation>Lightens the picture on areas only, where the pen reads; the rest of it stays as it is</translation>
    </message>
    <message>
        <source>Draws the areas with their names, to check them on paper, in a colour that the pen does not see</source>
        <translation>Draws the areas with their names, to check them on paper, in a colour that the pen does not see</translation>
    </message>
    <message>
        <source>as needed</source>
        <translation>as needed</translation>
    </message>
    <message>
        <source>White paper around each page, for a printer that does not print up to the edge</source>
        <translation>White paper around each page, for a printer that does not print up to the edge</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Margin:</source>
        <translation>Margin:</translation>
    </message>
    <message>
        <source>Marks in the margin where the page ends, to cut along them</source>
        <translation>Marks in the margin where the page ends, to cut along them</translation>
    </message>
    <message>
        <source>Prints pages that are larger than the paper on several sheets that overlap, to be glued together</source>
        <translation>Prints pages that are larger than the paper on several sheets that overlap, to be glued together</translation>
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
        <translation>Adds a page with START, REPLAY, STOP and a legend of all areas, to be cut out; a book needs START somewhere</translation>
    </message>
    <message>
        <source>Symbols and legend</source>
        <translation>Symbols and legend</translation>
    </message>
    <message>
        <source>Symbols and legend:</source>
        <translation>Symbols and legend:</translation>
    </message>
    <message>
        <source>The PDF file that is written; one of this name that is there is replaced</source>
        <translation>The PDF file that is written; one of this name that is there is replaced</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Chooses another file</source>
        <translation>Chooses another file</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF files (*.pdf)</translation>
    </message>
    <message>
        <source>Sheets of paper: %1</source>
        <translation>Sheets of paper: %1</translation>
    </message>
    <message>
        <source>Pages are numbers from 0 to %1, such as 0,2-3.</source>
        <translation>Pages are numbers from 0 to %1, such as 0,2-3.</translation>
    </message>
    <message>
        <source>The DPI are a number from %1 to %2.</source>
        <translation>The DPI are a number from %1 to %2.</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>The file has no name.</translation>
    </message>
</context>
<context>
    <name>PickTool</name>
    <message>
        <source>An area needs at least three corners.</source>
        <translation>An area needs at least three corners.</translation>
    </message>
    <message>
        <source>Corner %1 of %2: %3 % from the left, %4 % from the top</source>
        <translation>Corner %1 of %2: %3 % from the left, %4 % from the top</translation>
    </message>
</context>
<context>
    <name>PolyEditorWidget</name>
    <message>
        <source>Here speaks %1; behind it lies %2.</source>
        <translation>Here speaks %1; behind it lies %2.</translation>
    </message>
    <message>
        <source>Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the corners of the selected one; the arrow keys move them.</source>
        <translation>Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the corners of the selected one; the arrow keys move them.</translation>
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
        <translation>Keep...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Make profile...</source>
        <translation>Make profile...</translation>
    </message>
    <message>
        <source>No black in the picture</source>
        <translation>No black in the picture</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profile:</translation>
    </message>
    <message>
        <source>Best field:</source>
        <translation>Best field:</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Edge of a dot:</source>
        <translation>Edge of a dot:</translation>
    </message>
    <message>
        <source>Lighten the picture:</source>
        <translation>Lighten the picture:</translation>
    </message>
    <message>
        <source>Profile of a printer</source>
        <translation>Profile of a printer</translation>
    </message>
    <message>
        <source>The settings that were kept for a printer: choose the one that the book is printed on</source>
        <translation>The settings that were kept for a printer: choose the one that the book is printed on</translation>
    </message>
    <message>
        <source>Keeps the settings below under a name, so that this printer has them the next time, too</source>
        <translation>Keeps the settings below under a name, so that this printer has them the next time, too</translation>
    </message>
    <message>
        <source>Forgets the chosen profile</source>
        <translation>Forgets the chosen profile</translation>
    </message>
    <message>
        <source>Best field of the printer&apos;s test page</source>
        <translation>Best field of the printer&apos;s test page</translation>
    </message>
    <message>
        <source>The field of the printer&apos;s test page that the pen reads best, such as B3</source>
        <translation>The field of the printer&apos;s test page that the pen reads best, such as B3</translation>
    </message>
    <message>
        <source>Makes a profile of what that field says about the printer</source>
        <translation>Makes a profile of what that field says about the printer</translation>
    </message>
    <message>
        <source>Resolution of the printer</source>
        <translation>Resolution of the printer</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, when they are not those of the pictures</source>
        <translation>The dots per inch of the printer, when they are not those of the pictures</translation>
    </message>
    <message>
        <source>that of each picture</source>
        <translation>that of each picture</translation>
    </message>
    <message>
        <source>Edge of a dot in pixels of the printer</source>
        <translation>Edge of a dot in pixels of the printer</translation>
    </message>
    <message>
        <source>Smaller dots for a printer that prints them too fat</source>
        <translation>Smaller dots for a printer that prints them too fat</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Mixes the picture&apos;s black of cyan, magenta and yellow, which the pen does not see</source>
        <translation>Mixes the picture&apos;s black of cyan, magenta and yellow, which the pen does not see</translation>
    </message>
    <message>
        <source>How much lighter the picture is, in percent</source>
        <translation>How much lighter the picture is, in percent</translation>
    </message>
    <message>
        <source>Takes ink out of the picture, so that the pen finds the dots</source>
        <translation>Takes ink out of the picture, so that the pen finds the dots</translation>
    </message>
    <message>
        <source>not</source>
        <translation>not</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>The profile %1 is gone.</source>
        <translation>The profile %1 is gone.</translation>
    </message>
    <message>
        <source>The test page has no field %1.</source>
        <translation>The test page has no field %1.</translation>
    </message>
    <message>
        <source>Printer %1</source>
        <translation>Printer %1</translation>
    </message>
    <message>
        <source>Name of the printer:</source>
        <translation>Name of the printer:</translation>
    </message>
    <message>
        <source>The profile %1 is kept.</source>
        <translation>The profile %1 is kept.</translation>
    </message>
</context>
<context>
    <name>PrinterTestDialog</name>
    <message>
        <source>Printer&apos;s test page</source>
        <translation>Printer&apos;s test page</translation>
    </message>
    <message>
        <source>Makes a page and a game that find out how your printer prints dots. Print the page, copy the game onto the pen, touch the fields, and tell the best one&apos;s name where you make a PDF.</source>
        <translation>Makes a page and a game that find out how your printer prints dots. Print the page, copy the game onto the pen, touch the fields, and tell the best one&apos;s name where you make a PDF.</translation>
    </message>
    <message>
        <source>%1 DPI</source>
        <translation>%1 DPI</translation>
    </message>
    <message>
        <source>Tries this resolution: tick those that your printer has, and the pen tells which one is best</source>
        <translation>Tries this resolution: tick those that your printer has, and the pen tells which one is best</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>The folder in which the page to be printed and the game for the pen are written</source>
        <translation>The folder in which the page to be printed and the game for the pen are written</translation>
    </message>
    <message>
        <source>Chooses another folder</source>
        <translation>Chooses another folder</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Language of the pen:</source>
        <translation>Language of the pen:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Language of the pen</source>
        <translation>Language of the pen</translation>
    </message>
    <message>
        <source>The language in which the pen names the fields</source>
        <translation>The language in which the pen names the fields</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation: en, de, fr or nl.</extracomment>
        <translation>en</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hint</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, line %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No problems any more</source>
        <translation>No problems any more</translation>
    </message>
    <message>
        <source>New problem. %1</source>
        <translation>New problem. %1</translation>
    </message>
    <message>
        <source>%1 new problems. %2</source>
        <translation>%1 new problems. %2</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>page %1: %2</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Quick fix</source>
        <translation>Quick fix</translation>
    </message>
    <message>
        <source>Why?</source>
        <translation>Why?</translation>
    </message>
    <message>
        <source>Opens the manual at what is told about this (F1)</source>
        <translation>Opens the manual at what is told about this (F1)</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation>Problems</translation>
    </message>
    <message>
        <source>Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why</source>
        <translation>Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why</translation>
    </message>
    <message>
        <source>Shows or folds the list of problems. F8 goes to the next one in the script, Shift+F8 to the one before.</source>
        <translation>Shows or folds the list of problems. F8 goes to the next one in the script, Shift+F8 to the one before.</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>No problems</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 problem</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 problems</translation>
    </message>
    <message>
        <source>A click goes to the place (Enter); further clicks put right what can be put right (Alt+Enter) and tell why (F1)</source>
        <translation>A click goes to the place (Enter); further clicks put right what can be put right (Alt+Enter) and tell why (F1)</translation>
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
        <translation>There is no quick fix here</translation>
    </message>
    <message>
        <source>The book has changed meanwhile. Try again.</source>
        <translation>The book has changed meanwhile. Try again.</translation>
    </message>
</context>
<context>
    <name>ProductNameNote</name>
    <message>
        <source>Not possible in the name: %1</source>
        <translation>Not possible in the name: %1</translation>
    </message>
    <message>
        <source>%1 characters, at most %2</source>
        <translation>%1 characters, at most %2</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>Nothing is heard: no loudspeaker can be used (%1)</source>
        <translation>Nothing is heard: no loudspeaker can be used (%1)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>%1 cannot be played: it has more than two channels</source>
        <translation>%1 cannot be played: it has more than two channels</translation>
    </message>
    <message>
        <source>%1 is damaged and cannot be played to its end</source>
        <translation>%1 is damaged and cannot be played to its end</translation>
    </message>
    <message>
        <source>%1 cannot be played: it is damaged, or no sound in one of the formats WAV, Ogg, FLAC and MP3</source>
        <translation>%1 cannot be played: it is damaged, or no sound in one of the formats WAV, Ogg, FLAC and MP3</translation>
    </message>
</context>
<context>
    <name>Microphone</name>
    <message>
        <source>No microphone can be used (%1)</source>
        <translation>No microphone can be used (%1)</translation>
    </message>
    <message>
        <source>There is no microphone: plug one in, or allow programs to hear it</source>
        <translation>There is no microphone: plug one in, or allow programs to hear it</translation>
    </message>
    <message>
        <source>The microphone cannot be used (%1)</source>
        <translation>The microphone cannot be used (%1)</translation>
    </message>
    <message>
        <source>The microphone is gone: is it still plugged in?</source>
        <translation>The microphone is gone: is it still plugged in?</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone any more</source>
        <translation>Nothing comes from the microphone any more</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>it is a link to a file in another folder</source>
        <translation>it is a link to a file in another folder</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>%1 is longer than an hour</source>
        <translation>%1 is longer than an hour</translation>
    </message>
    <message>
        <source>There is no sound in %1</source>
        <translation>There is no sound in %1</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>the program ffmpeg, which would read it, is not there</source>
        <translation>the program ffmpeg, which would read it, is not there</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>the program ffmpeg was stopped</source>
        <translation>the program ffmpeg was stopped</translation>
    </message>
    <message>
        <source>the program ffmpeg ended with status %1</source>
        <translation>the program ffmpeg ended with status %1</translation>
    </message>
    <message>
        <source>The original of %1 cannot be kept: %2</source>
        <translation>The original of %1 cannot be kept: %2</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>silent</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation>%1: %2, before %3</translation>
    </message>
    <message>
        <source>%1: %2, not changed</source>
        <translation>%1: %2, not changed</translation>
    </message>
    <message>
        <source>Nothing is recorded for %1</source>
        <translation>Nothing is recorded for %1</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level of the microphone</source>
        <translation>Level of the microphone</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Quiet</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>Too loud</source>
        <translation>Too loud</translation>
    </message>
    <message>
        <source>Nothing is heard</source>
        <translation>Nothing is heard</translation>
    </message>
</context>
<context>
    <name>RecordCard</name>
    <message>
        <source>Text to read aloud</source>
        <translation>Text to read aloud</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>The microphone that is recorded from; the level below shows whether it hears you</source>
        <translation>The microphone that is recorded from; the level below shows whether it hears you</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Usual microphone</translation>
    </message>
    <message>
        <source>Count &amp;in</source>
        <translation>Count &amp;in</translation>
    </message>
    <message>
        <source>Counts 3, 2, 1 before a recording begins, so that you can take a breath</source>
        <translation>Counts 3, 2, 1 before a recording begins, so that you can take a breath</translation>
    </message>
    <message>
        <source>Begins and ends a recording (Space)</source>
        <translation>Begins and ends a recording (Space)</translation>
    </message>
    <message>
        <source>&amp;Listen</source>
        <translation>&amp;Listen</translation>
    </message>
    <message>
        <source>Plays it as the pen will (Ctrl+L)</source>
        <translation>Plays it as the pen will (Ctrl+L)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Takes back the last change (Ctrl+Z)</source>
        <translation>Takes back the last change (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;do</translation>
    </message>
    <message>
        <source>Makes it again (Ctrl+Shift+Z)</source>
        <translation>Makes it again (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>The text before this one (Page Up)</source>
        <translation>The text before this one (Page Up)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>S&amp;kip</translation>
    </message>
    <message>
        <source>The text after this one (Page Down)</source>
        <translation>The text after this one (Page Down)</translation>
    </message>
    <message>
        <source>Keep, &amp;next</source>
        <translation>Keep, &amp;next</translation>
    </message>
    <message>
        <source>Keeps the recording and goes to the next text that is missing (Enter)</source>
        <translation>Keeps the recording and goes to the next text that is missing (Enter)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Ends recording (Escape)</source>
        <translation>Ends recording (Escape)</translation>
    </message>
    <message>
        <source>&amp;Microphone:</source>
        <translation>&amp;Microphone:</translation>
    </message>
    <message>
        <source>Looking for the microphone ...</source>
        <translation>Looking for the microphone ...</translation>
    </message>
    <message>
        <source>The recording ended by itself: it cannot be longer than ten minutes</source>
        <translation>The recording ended by itself: it cannot be longer than ten minutes</translation>
    </message>
    <message>
        <source>Not recorded</source>
        <translation>Not recorded</translation>
    </message>
    <message>
        <source>Nothing was heard: is the microphone muted?</source>
        <translation>Nothing was heard: is the microphone muted?</translation>
    </message>
    <message>
        <source>It was too loud and is distorted: speak more softly, or from farther away</source>
        <translation>It was too loud and is distorted: speak more softly, or from farther away</translation>
    </message>
    <message>
        <source>Recorded: %1 s</source>
        <translation>Recorded: %1 s</translation>
    </message>
    <message>
        <source>All texts are recorded</source>
        <translation>All texts are recorded</translation>
    </message>
    <message>
        <source>Nothing was heard, so there is nothing to keep</source>
        <translation>Nothing was heard, so there is nothing to keep</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>Saving ...</translation>
    </message>
    <message>
        <source>This recording is not kept yet. Keep it?</source>
        <translation>This recording is not kept yet. Keep it?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Keep</translation>
    </message>
    <message>
        <source>&amp;Throw away</source>
        <translation>&amp;Throw away</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>It cannot be played: %1</translation>
    </message>
    <message>
        <source>Text %1 of %2, %3 missing</source>
        <translation>Text %1 of %2, %3 missing</translation>
    </message>
    <message>
        <source>&amp;Stop (Space)</source>
        <translation>&amp;Stop (Space)</translation>
    </message>
    <message>
        <source>&amp;Record (Space)</source>
        <translation>&amp;Record (Space)</translation>
    </message>
    <message>
        <source>Stop &amp;listening</source>
        <translation>Stop &amp;listening</translation>
    </message>
    <message>
        <source>Keep, &amp;next (Enter)</source>
        <translation>Keep, &amp;next (Enter)</translation>
    </message>
    <message>
        <source>&amp;Next (Enter)</source>
        <translation>&amp;Next (Enter)</translation>
    </message>
</context>
<context>
    <name>WaveHandle</name>
    <message>
        <source>Beginning of what is kept, in milliseconds</source>
        <translation>Beginning of what is kept, in milliseconds</translation>
    </message>
    <message>
        <source>End of what is kept, in milliseconds</source>
        <translation>End of what is kept, in milliseconds</translation>
    </message>
    <message>
        <source>Drag this to where the voice begins, or move it with the arrow keys</source>
        <translation>Drag this to where the voice begins, or move it with the arrow keys</translation>
    </message>
    <message>
        <source>Drag this to where the voice ends, or move it with the arrow keys</source>
        <translation>Drag this to where the voice ends, or move it with the arrow keys</translation>
    </message>
</context>
<context>
    <name>WaveView</name>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Nothing is recorded yet</translation>
    </message>
    <message>
        <source>%1 of %2 s are kept</source>
        <translation>%1 of %2 s are kept</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Begin with a book</source>
        <translation>Begin with a book</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>New book...</translation>
    </message>
    <message>
        <source>Asks for name, number, folder and pictures, and makes the book</source>
        <translation>Asks for name, number, folder and pictures, and makes the book</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Open...</translation>
    </message>
    <message>
        <source>Opens a project that is there</source>
        <translation>Opens a project that is there</translation>
    </message>
    <message>
        <source>Sample books, to try out and to change</source>
        <translation>Sample books, to try out and to change</translation>
    </message>
    <message>
        <source>Last books</source>
        <translation>Last books</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remove from the list</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Takes the book off this list; its files stay (Delete)</source>
        <translation>Takes the book off this list; its files stay (Delete)</translation>
    </message>
    <message>
        <source>Copies this sample book to a folder of yours, and opens the copy</source>
        <translation>Copies this sample book to a folder of yours, and opens the copy</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 in %2 (not there any more)</source>
        <translation>%1 in %2 (not there any more)</translation>
    </message>
    <message>
        <source>%1 is not there any more. It can be removed from the list.</source>
        <translation>%1 is not there any more. It can be removed from the list.</translation>
    </message>
    <message>
        <source>%1 is off the list.</source>
        <translation>%1 is off the list.</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>What was said</source>
        <translation>What was said</translation>
    </message>
    <message>
        <source>Tapped</source>
        <translation>Tapped</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Said</translation>
    </message>
    <message>
        <source>Waited</source>
        <translation>Waited</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>Chosen by chance from:</source>
        <translation>Chosen by chance from:</translation>
    </message>
    <message>
        <source>There is no script for this area</source>
        <translation>There is no script for this area</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division by zero</translation>
    </message>
    <message>
        <source>A value ran over 65535 and went on from 0</source>
        <translation>A value ran over 65535 and went on from 0</translation>
    </message>
    <message>
        <source>A value fell below 0 and went on from 65535</source>
        <translation>A value fell below 0 and went on from 65535</translation>
    </message>
    <message>
        <source>The condition was %1, neither 0 nor 1, so no branch was run</source>
        <translation>The condition was %1, neither 0 nor 1, so no branch was run</translation>
    </message>
    <message>
        <source>There was no end after %1 steps</source>
        <translation>There was no end after %1 steps</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, %2 steps</source>
        <translation>%1, %2 steps</translation>
    </message>
    <message>
        <source>The reader waits long before the first sound: %1 steps</source>
        <translation>The reader waits long before the first sound: %1 steps</translation>
    </message>
    <message>
        <source>Until the first sound: %1 steps</source>
        <translation>Until the first sound: %1 steps</translation>
    </message>
    <message>
        <source>What was tapped and what was heard, the latest at the end</source>
        <translation>What was tapped and what was heard, the latest at the end</translation>
    </message>
</context>
<context>
    <name>PageWindow</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Page to be tapped</translation>
    </message>
</context>
<context>
    <name>ReaderPage</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Page to be tapped</translation>
    </message>
    <message>
        <source>The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages.</source>
        <translation>The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages.</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>A click sets a breakpoint, or takes it away (F9)</source>
        <translation>A click sets a breakpoint, or takes it away (F9)</translation>
    </message>
    <message>
        <source>The script that runs</source>
        <translation>The script that runs</translation>
    </message>
    <message>
        <source>The script that runs, with the line that is next; a double click goes to the line in the tab Script, to change it</source>
        <translation>The script that runs, with the line that is next; a double click goes to the line in the tab Script, to change it</translation>
    </message>
</context>
<context>
    <name>TriedBook</name>
    <message>
        <source>A text is too long for the speech program and is only shown.</source>
        <translation>A text is too long for the speech program and is only shown.</translation>
    </message>
    <message>
        <source>The speech program is not there: texts without an audio file are only shown.</source>
        <translation>The speech program is not there: texts without an audio file are only shown.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown.</source>
        <translation>The speech program could not speak a text, which is only shown.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown: %1</source>
        <translation>The speech program could not speak a text, which is only shown: %1</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now. Line %1: %2</source>
        <translation>The book cannot be tried as it is now. Line %1: %2</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now: %1</source>
        <translation>The book cannot be tried as it is now: %1</translation>
    </message>
</context>
<context>
    <name>SpeechModel</name>
    <message>
        <source>missing</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>spoken</source>
        <translation>spoken</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>recorded</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>out of date</translation>
    </message>
    <message>
        <source>impossible</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>too long a name</source>
        <translation>too long a name</translation>
    </message>
    <message>
        <source>too long a text</source>
        <translation>too long a text</translation>
    </message>
    <message>
        <source>name of line %1</source>
        <translation>name of line %1</translation>
    </message>
    <message>
        <source>welcome</source>
        <translation>welcome</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, line %2: %3, %4</source>
        <translation>%1, line %2: %3, %4</translation>
    </message>
    <message>
        <source>%1, welcome: %2, %3</source>
        <translation>%1, welcome: %2, %3</translation>
    </message>
    <message>
        <source>Goes to the line in the script</source>
        <translation>Goes to the line in the script</translation>
    </message>
    <message>
        <source>Goes to the name of the product</source>
        <translation>Goes to the name of the product</translation>
    </message>
    <message>
        <source>Plays this text, or stops it</source>
        <translation>Plays this text, or stops it</translation>
    </message>
    <message>
        <source>There is no audio file yet; the next build speaks the text</source>
        <translation>There is no audio file yet; the next build speaks the text</translation>
    </message>
    <message>
        <source>The audio file was spoken by the speech program</source>
        <translation>The audio file was spoken by the speech program</translation>
    </message>
    <message>
        <source>The audio file is your own; a build leaves it as it is</source>
        <translation>The audio file is your own; a build leaves it as it is</translation>
    </message>
    <message>
        <source>The text or its voice has changed since it was spoken; the next build speaks it again</source>
        <translation>The text or its voice has changed since it was spoken; the next build speaks it again</translation>
    </message>
    <message>
        <source>The text is too long for the name of an audio file; say it in several parts</source>
        <translation>The text is too long for the name of an audio file; say it in several parts</translation>
    </message>
    <message>
        <source>The text is too long for the speech program; it can be recorded</source>
        <translation>The text is too long for the speech program; it can be recorded</translation>
    </message>
    <message>
        <source>The pen says the text of line %1 here: both have one audio name, in which all but letters and digits is the same</source>
        <translation>The pen says the text of line %1 here: both have one audio name, in which all but letters and digits is the same</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
</context>
<context>
    <name>SpeechTab</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Search in the texts</source>
        <translation>Search in the texts</translation>
    </message>
    <message>
        <source>Shows only texts that hold these words, to find one among many; empty shows all</source>
        <translation>Shows only texts that hold these words, to find one among many; empty shows all</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Shows only texts of this state, such as those that are missing still</source>
        <translation>Shows only texts of this state, such as those that are missing still</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>All states</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Shows only texts of this voice, such as those that one person records</source>
        <translation>Shows only texts of this voice, such as those that one person records</translation>
    </message>
    <message>
        <source>All voices</source>
        <translation>All voices</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ends what is being made; what is done stays</source>
        <translation>Ends what is being made; what is done stays</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Play</translation>
    </message>
    <message>
        <source>Plays the selected texts, one after the other, or stops</source>
        <translation>Plays the selected texts, one after the other, or stops</translation>
    </message>
    <message>
        <source>&amp;Speak</source>
        <translation>&amp;Speak</translation>
    </message>
    <message>
        <source>Has the selected texts spoken that are missing or out of date; without a selection all of them</source>
        <translation>Has the selected texts spoken that are missing or out of date; without a selection all of them</translation>
    </message>
    <message>
        <source>Re&amp;cord...</source>
        <translation>Re&amp;cord...</translation>
    </message>
    <message>
        <source>Records texts with the microphone, one after the other, beginning with the selected one</source>
        <translation>Records texts with the microphone, one after the other, beginning with the selected one</translation>
    </message>
    <message>
        <source>&amp;Use file...</source>
        <translation>&amp;Use file...</translation>
    </message>
    <message>
        <source>Takes a sound file for the selected text; one can also be dropped on a row</source>
        <translation>Takes a sound file for the selected text; one can also be dropped on a row</translation>
    </message>
    <message>
        <source>Take &amp;back</source>
        <translation>Take &amp;back</translation>
    </message>
    <message>
        <source>Puts the selected recordings into the trash, so that the texts are spoken again</source>
        <translation>Puts the selected recordings into the trash, so that the texts are spoken again</translation>
    </message>
    <message>
        <source>&amp;Even out</source>
        <translation>&amp;Even out</translation>
    </message>
    <message>
        <source>Makes the selected texts equally loud; without a selection all</source>
        <translation>Makes the selected texts equally loud; without a selection all</translation>
    </message>
    <message>
        <source>Try &amp;voices...</source>
        <translation>Try &amp;voices...</translation>
    </message>
    <message>
        <source>Lets you hear one sentence in many voices, and writes the one that you like into the script</source>
        <translation>Lets you hear one sentence in many voices, and writes the one that you like into the script</translation>
    </message>
    <message>
        <source>Save the project first: its audio files lie in a folder beside it.</source>
        <translation>Save the project first: its audio files lie in a folder beside it.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 text</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 texts</translation>
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
        <translation>This text has no audio file yet.</translation>
    </message>
    <message>
        <source>Wait until what is being made is done.</source>
        <translation>Wait until what is being made is done.</translation>
    </message>
    <message>
        <source>Speaking...</source>
        <translation>Speaking...</translation>
    </message>
    <message>
        <source>Making the texts equally loud...</source>
        <translation>Making the texts equally loud...</translation>
    </message>
    <message>
        <source>Use file</source>
        <translation>Use file</translation>
    </message>
    <message>
        <source>Sound files</source>
        <translation>Sound files</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>This text can have no file: %1.</source>
        <translation>This text can have no file: %1.</translation>
    </message>
    <message>
        <source>Taking the file...</source>
        <translation>Taking the file...</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 stays: it cannot be moved to the trash.</translation>
    </message>
    <message>
        <source>1 recording is in the trash.</source>
        <translation>1 recording is in the trash.</translation>
    </message>
    <message>
        <source>%1 recordings are in the trash.</source>
        <translation>%1 recordings are in the trash.</translation>
    </message>
    <message>
        <source>&amp;Import folder...</source>
        <translation>&amp;Import folder...</translation>
    </message>
    <message>
        <source>Takes recordings from a folder; one can also be dropped on the table</source>
        <translation>Takes recordings from a folder; one can also be dropped on the table</translation>
    </message>
    <message>
        <source>Prin&amp;t sheet...</source>
        <translation>Prin&amp;t sheet...</translation>
    </message>
    <message>
        <source>Makes a PDF to be printed, from which somebody reads the selected texts; without a selection all</source>
        <translation>Makes a PDF to be printed, from which somebody reads the selected texts; without a selection all</translation>
    </message>
    <message>
        <source>Save s&amp;heet...</source>
        <translation>Save s&amp;heet...</translation>
    </message>
    <message>
        <source>Saves the sheet to read the selected texts from as a text; without a selection all</source>
        <translation>Saves the sheet to read the selected texts from as a text; without a selection all</translation>
    </message>
    <message>
        <source>Ti&amp;dy...</source>
        <translation>Ti&amp;dy...</translation>
    </message>
    <message>
        <source>Lists the audio files that no text uses, and moves them to the trash</source>
        <translation>Lists the audio files that no text uses, and moves them to the trash</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Import folder</translation>
    </message>
    <message>
        <source>%1 is the audio folder of the book itself.</source>
        <translation>%1 is the audio folder of the book itself.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>The folder %1 cannot be read.</translation>
    </message>
    <message>
        <source>There are no files in %1.</source>
        <translation>There are no files in %1.</translation>
    </message>
    <message>
        <source>Print sheet</source>
        <translation>Print sheet</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF files</translation>
    </message>
    <message>
        <source>Save sheet</source>
        <translation>Save sheet</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Text files</translation>
    </message>
    <message>
        <source>reading sheet</source>
        <translation>reading sheet</translation>
    </message>
    <message>
        <source>Writing the sheet...</source>
        <translation>Writing the sheet...</translation>
    </message>
    <message>
        <source>The script has mistakes, so it is not known which audio files it uses. Correct them first.</source>
        <translation>The script has mistakes, so it is not known which audio files it uses. Correct them first.</translation>
    </message>
    <message>
        <source>All audio files are used by texts.</source>
        <translation>All audio files are used by texts.</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>Moving files to the trash...</translation>
    </message>
</context>
<context>
    <name>SpeechView</name>
    <message>
        <source>Texts of the book</source>
        <translation>Texts of the book</translation>
    </message>
    <message>
        <source>Space plays a text, Enter goes to its line in the script</source>
        <translation>Space plays a text, Enter goes to its line in the script</translation>
    </message>
    <message>
        <source>Every text of the book. A click on the sign plays it (Space), one on the line goes there (Enter)</source>
        <translation>Every text of the book. A click on the sign plays it (Space), one on the line goes there (Enter)</translation>
    </message>
</context>
<context>
    <name>SpeechJobs</name>
    <message>
        <source>The text was spoken.</source>
        <translation>The text was spoken.</translation>
    </message>
    <message>
        <source>%1 texts were spoken.</source>
        <translation>%1 texts were spoken.</translation>
    </message>
    <message>
        <source>Speaking was cancelled. &quot;Speak&quot; goes on where it stopped.</source>
        <translation>Speaking was cancelled. &quot;Speak&quot; goes on where it stopped.</translation>
    </message>
    <message>
        <source>Not all texts could be spoken:</source>
        <translation>Not all texts could be spoken:</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>1 recording was taken.</source>
        <translation>1 recording was taken.</translation>
    </message>
    <message>
        <source>%1 recordings were taken.</source>
        <translation>%1 recordings were taken.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
    <message>
        <source>1 audio file was made as loud as all are to be.</source>
        <translation>1 audio file was made as loud as all are to be.</translation>
    </message>
    <message>
        <source>%1 audio files were made as loud as all are to be.</source>
        <translation>%1 audio files were made as loud as all are to be.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>The file %1 cannot be written: %2</translation>
    </message>
    <message>
        <source>The sheet is in the file %1.</source>
        <translation>The sheet is in the file %1.</translation>
    </message>
    <message>
        <source>The numbers begin anew; earlier sheets do not fit any more.</source>
        <translation>The numbers begin anew; earlier sheets do not fit any more.</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 stays: it cannot be moved to the trash.</translation>
    </message>
    <message>
        <source>1 file is in the trash.</source>
        <translation>1 file is in the trash.</translation>
    </message>
    <message>
        <source>%1 files are in the trash.</source>
        <translation>%1 files are in the trash.</translation>
    </message>
</context>
<context>
    <name>SheetPdf</name>
    <message>
        <source>Record each text as a file of its own whose name begins with the number: 7.wav</source>
        <translation>Record each text as a file of its own whose name begins with the number: 7.wav</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>What becomes of it</translation>
    </message>
    <message>
        <source>&amp;All that fit</source>
        <translation>&amp;All that fit</translation>
    </message>
    <message>
        <source>Import recordings</source>
        <translation>Import recordings</translation>
    </message>
    <message>
        <source>Files and the texts that they fit</source>
        <translation>Files and the texts that they fit</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>Space sets or takes away the tick of the selected files</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick are taken</source>
        <translation>Sets or takes away all ticks; only files with a tick are taken</translation>
    </message>
    <message>
        <source>Taking the files...</source>
        <translation>Taking the files...</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Take over</translation>
    </message>
    <message>
        <source>Takes the files with a tick as the recordings of their texts</source>
        <translation>Takes the files with a tick as the recordings of their texts</translation>
    </message>
    <message>
        <source>fits by its name</source>
        <translation>fits by its name</translation>
    </message>
    <message>
        <source>fits by its text</source>
        <translation>fits by its text</translation>
    </message>
    <message>
        <source>fits by its number</source>
        <translation>fits by its number</translation>
    </message>
    <message>
        <source>%1; takes the place of your recording, which is kept</source>
        <translation>%1; takes the place of your recording, which is kept</translation>
    </message>
    <message>
        <source>not taken: another file fits the text better</source>
        <translation>not taken: another file fits the text better</translation>
    </message>
    <message>
        <source>not taken: other files fit the text as well</source>
        <translation>not taken: other files fit the text as well</translation>
    </message>
    <message>
        <source>not taken: it fits several texts</source>
        <translation>not taken: it fits several texts</translation>
    </message>
    <message>
        <source>not taken: it fits no text</source>
        <translation>not taken: it fits no text</translation>
    </message>
    <message>
        <source>%1 of %2 files become recordings. Take away the tick of what is to be left out.</source>
        <translation>%1 of %2 files become recordings. Take away the tick of what is to be left out.</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>left out</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>not taken</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>taken: %1</translation>
    </message>
</context>
<context>
    <name>TidyDialog</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Tidy</source>
        <translation>Tidy</translation>
    </message>
    <message>
        <source>No text uses these audio files. Those with a tick go into the system&apos;s trash, from where you can take them back.</source>
        <translation>No text uses these audio files. Those with a tick go into the system&apos;s trash, from where you can take them back.</translation>
    </message>
    <message>
        <source>Files that no text uses</source>
        <translation>Files that no text uses</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>Space sets or takes away the tick of the selected files</translation>
    </message>
    <message>
        <source>spoken by the speech program</source>
        <translation>spoken by the speech program</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>your own</translation>
    </message>
    <message>
        <source>&amp;All files</source>
        <translation>&amp;All files</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick go to the trash</source>
        <translation>Sets or takes away all ticks; only files with a tick go to the trash</translation>
    </message>
    <message>
        <source>&amp;Move to the trash</source>
        <translation>&amp;Move to the trash</translation>
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
        <translation>Again</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Switches the book on, as START on paper does: plays the welcome</source>
        <translation>Switches the book on, as START on paper does: plays the welcome</translation>
    </message>
    <message>
        <source>Plays once more what was played last, as REPLAY on paper does</source>
        <translation>Plays once more what was played last, as REPLAY on paper does</translation>
    </message>
    <message>
        <source>Ends the sound that plays, as STOP on paper does</source>
        <translation>Ends the sound that plays, as STOP on paper does</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>Fresh</translation>
    </message>
    <message>
        <source>All as in the beginning: nothing was tapped, no variable changed</source>
        <translation>All as in the beginning: nothing was tapped, no variable changed</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>Goes on by one line of the script; the next tap begins like that</source>
        <translation>Goes on by one line of the script; the next tap begins like that</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Go on</translation>
    </message>
    <message>
        <source>Goes on to the next breakpoint</source>
        <translation>Goes on to the next breakpoint</translation>
    </message>
    <message>
        <source>Breakpoint</source>
        <translation>Breakpoint</translation>
    </message>
    <message>
        <source>Sets a breakpoint at the line of the caret, or takes it away</source>
        <translation>Sets a breakpoint at the line of the caret, or takes it away</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Shows the page in a window of its own, for a second screen</source>
        <translation>Shows the page in a window of its own, for a second screen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>The page that is shown; Page Up and Page Down turn the pages, too</source>
        <translation>The page that is shown; Page Up and Page Down turn the pages, too</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Begins anew and writes down what is tapped, as a book test; a second click keeps it</source>
        <translation>Begins anew and writes down what is tapped, as a book test; a second click keeps it</translation>
    </message>
    <message>
        <source>What is tapped now becomes a book test. Another click on &quot;Record&quot; keeps it.</source>
        <translation>What is tapped now becomes a book test. Another click on &quot;Record&quot; keeps it.</translation>
    </message>
    <message>
        <source>Nothing was tapped, so there is no book test.</source>
        <translation>Nothing was tapped, so there is no book test.</translation>
    </message>
    <message>
        <source>The book test was not saved; it goes on. &quot;Fresh&quot; begins it anew.</source>
        <translation>The book test was not saved; it goes on. &quot;Fresh&quot; begins it anew.</translation>
    </message>
    <message>
        <source>What is shown beside the page</source>
        <translation>What is shown beside the page</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Said</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
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
        <translation>There is no area here.</translation>
    </message>
    <message>
        <source>Line %1 comes next: F10 runs it, F5 goes on</source>
        <translation>Line %1 comes next: F10 runs it, F5 goes on</translation>
    </message>
    <message>
        <source>Something is heard</source>
        <translation>Something is heard</translation>
    </message>
    <message>
        <source>The next tap goes line by line</source>
        <translation>The next tap goes line by line</translation>
    </message>
    <message>
        <source>Tap an area of the page</source>
        <translation>Tap an area of the page</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>How loud the book is on this computer; the pen has keys of its own</source>
        <translation>How loud the book is on this computer; the pen has keys of its own</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>The value that the script goes on with, from 0 to 65535</source>
        <translation>The value that the script goes on with, from 0 to 65535</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>What the script remembers. A click on a value changes it, to try what would come then</source>
        <translation>What the script remembers. A click on a value changes it, to try what would come then</translation>
    </message>
</context>
<context>
    <name>TryVoicesDialog</name>
    <message>
        <source>The sentence is too long for the speech program.</source>
        <translation>The sentence is too long for the speech program.</translation>
    </message>
    <message>
        <source>The speech program is not there.</source>
        <translation>The speech program is not there.</translation>
    </message>
    <message>
        <source>The speech program could not speak the sentence.</source>
        <translation>The speech program could not speak the sentence.</translation>
    </message>
    <message>
        <source>The sentence was not spoken: %1</source>
        <translation>The sentence was not spoken: %1</translation>
    </message>
    <message>
        <source>Try voices</source>
        <translation>Try voices</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Voices</translation>
    </message>
    <message>
        <source>What all voices of this language say; write what your book will say</source>
        <translation>What all voices of this language say; write what your book will say</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Sentence</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>The language of the voices below those of the script, by age and sex</source>
        <translation>The language of the voices below those of the script, by age and sex</translation>
    </message>
    <message>
        <source>&amp;Sentence:</source>
        <translation>&amp;Sentence:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Play</translation>
    </message>
    <message>
        <source>Lets the chosen voice say the sentence</source>
        <translation>Lets the chosen voice say the sentence</translation>
    </message>
    <message>
        <source>Play &amp;all</source>
        <translation>Play &amp;all</translation>
    </message>
    <message>
        <source>Lets one voice after the other say the sentence</source>
        <translation>Lets one voice after the other say the sentence</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>Ends the sound, also while one voice after the other speaks</source>
        <translation>Ends the sound, also while one voice after the other speaks</translation>
    </message>
    <message>
        <source>The name of the voice in the script, which stands behind say</source>
        <translation>The name of the voice in the script, which stands behind say</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;Insert into the script</source>
        <translation>&amp;Insert into the script</translation>
    </message>
    <message>
        <source>Writes the statement below into the script, so that texts can be said by this voice</source>
        <translation>Writes the statement below into the script, so that texts can be said by this voice</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages.</source>
        <translation>The speech program does not tell its languages.</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages: %1</source>
        <translation>The speech program does not tell its languages: %1</translation>
    </message>
    <message>
        <source>%1 speaks.</source>
        <translation>%1 speaks.</translation>
    </message>
    <message>
        <source>The script has this voice.</source>
        <translation>The script has this voice.</translation>
    </message>
    <message>
        <source>A name has small letters from a to z, and digits behind them.</source>
        <translation>A name has small letters from a to z, and digits behind them.</translation>
    </message>
    <message>
        <source>The script has a voice of this name.</source>
        <translation>The script has a voice of this name.</translation>
    </message>
    <message>
        <source>%1 takes a breath ...</source>
        <translation>%1 takes a breath ...</translation>
    </message>
</context>
<context>
    <name>VoiceTable</name>
    <message>
        <source>girl</source>
        <translation>girl</translation>
    </message>
    <message>
        <source>boy</source>
        <translation>boy</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>sister</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>brother</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>mother</translation>
    </message>
    <message>
        <source>father</source>
        <translation>father</translation>
    </message>
    <message>
        <source>grandma</source>
        <translation>grandma</translation>
    </message>
    <message>
        <source>grandpa</source>
        <translation>grandpa</translation>
    </message>
    <message>
        <source>Girl</source>
        <translation>Girl</translation>
    </message>
    <message>
        <source>Boy</source>
        <translation>Boy</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Woman</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Man</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Speaker</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Age</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>Voices of the script</source>
        <translation>Voices of the script</translation>
    </message>
    <message>
        <source>Other voices</source>
        <translation>Other voices</translation>
    </message>
</context>
<context>
    <name>SubNameNote</name>
    <message>
        <source>No area is selected, so this names none. Click one, then type its name.</source>
        <translation>No area is selected, so this names none. Click one, then type its name.</translation>
    </message>
    <message>
        <source>An area needs a name. Type one.</source>
        <translation>An area needs a name. Type one.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand in a name. Leave it out.</source>
        <translation>&quot;%1&quot; cannot stand in a name. Leave it out.</translation>
    </message>
    <message>
        <source>A name cannot begin with &quot;%1&quot;. Begin with a letter.</source>
        <translation>A name cannot begin with &quot;%1&quot;. Begin with a letter.</translation>
    </message>
    <message>
        <source>The name would be taken for a number of dots. Begin with a letter.</source>
        <translation>The name would be taken for a number of dots. Begin with a letter.</translation>
    </message>
    <message>
        <source>&quot;asm&quot; with a number belongs to the compiler. Choose another name.</source>
        <translation>&quot;asm&quot; with a number belongs to the compiler. Choose another name.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name that begins with a digit. Begin with a letter.</source>
        <translation>No &quot;goto&quot; can lead to a name that begins with a digit. Begin with a letter.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name with &quot;%1&quot;. Take letters, digits and &quot;_&quot;.</source>
        <translation>No &quot;goto&quot; can lead to a name with &quot;%1&quot;. Take letters, digits and &quot;_&quot;.</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename everywhere</source>
        <translation>Rename everywhere</translation>
    </message>
    <message>
        <source>&amp;New name of &quot;%1&quot;:</source>
        <translation>&amp;New name of &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>New name</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
</context>
<context>
    <name>RenameEverywhere</name>
    <message>
        <source>Rename &amp;everywhere...</source>
        <translation>Rename &amp;everywhere...</translation>
    </message>
    <message>
        <source>Changes the name on all pages and in the script</source>
        <translation>Changes the name on all pages and in the script</translation>
    </message>
    <message>
        <source>The script keeps the name &quot;%1&quot;: both names stand there now.</source>
        <translation>The script keeps the name &quot;%1&quot;: both names stand there now.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>&quot;%1&quot; is &quot;%2&quot; everywhere now.</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Places in the script: %1</translation>
    </message>
    <message>
        <source>Areas: %1 (pages: %2)</source>
        <translation>Areas: %1 (pages: %2)</translation>
    </message>
    <message>
        <source>The script has a sub of this name already, and can have only one. Choose another name.</source>
        <translation>The script has a sub of this name already, and can have only one. Choose another name.</translation>
    </message>
    <message>
        <source>This name is taken already.</source>
        <translation>This name is taken already.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is taken already. The areas would share one number and one sub. Rename?</source>
        <translation>The name &quot;%1&quot; is taken already. The areas would share one number and one sub. Rename?</translation>
    </message>
    <message>
        <source>Rename everywhere</source>
        <translation>Rename everywhere</translation>
    </message>
</context>
<context>
    <name>ScriptHelp</name>
    <message>
        <source>There is no name of a sub, variable or voice here.</source>
        <translation>There is no name of a sub, variable or voice here.</translation>
    </message>
    <message>
        <source>No area has the name &quot;%1&quot;.</source>
        <translation>No area has the name &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no sub and no area &quot;%1&quot;.</source>
        <translation>There is no sub and no area &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is never set.</source>
        <translation>&quot;%1&quot; is never set.</translation>
    </message>
    <message>
        <source>The voice &quot;%1&quot; is built in.</source>
        <translation>The voice &quot;%1&quot; is built in.</translation>
    </message>
    <message>
        <source>Uses of &quot;%1&quot;</source>
        <translation>Uses of &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Subs</source>
        <translation>Subs</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Places in the script: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>&quot;%1&quot; is &quot;%2&quot; everywhere now.</translation>
    </message>
    <message>
        <source>Variable %1, never set: always 0</source>
        <translation>Variable %1, never set: always 0</translation>
    </message>
    <message>
        <source>Variable %1, set in lines %2</source>
        <translation>Variable %1, set in lines %2</translation>
    </message>
    <message>
        <source>Voice %1, line %2</source>
        <translation>Voice %1, line %2</translation>
    </message>
    <message>
        <source>Voice %1, built in</source>
        <translation>Voice %1, built in</translation>
    </message>
</context>
<context>
    <name>KeywordToolTips</name>
    <message>
        <source>without it: %1</source>
        <translation>without it: %1</translation>
    </message>
</context>
<context>
    <name>ScriptLanguage</name>
    <message>
        <source>what the pen does when the area NAME is touched</source>
        <translation>what the pen does when the area NAME is touched</translation>
    </message>
    <message>
        <source>goes on with the sub NAME and does not come back</source>
        <translation>goes on with the sub NAME and does not come back</translation>
    </message>
    <message>
        <source>gives a variable a value</source>
        <translation>gives a variable a value</translation>
    </message>
    <message>
        <source>does one or the other</source>
        <translation>does one or the other</translation>
    </message>
    <message>
        <source>chooses by the value of a variable</source>
        <translation>chooses by the value of a variable</translation>
    </message>
    <message>
        <source>declares a voice</source>
        <translation>declares a voice</translation>
    </message>
    <message>
        <source>speaks the text, or one of several</source>
        <translation>speaks the text, or one of several</translation>
    </message>
    <message>
        <source>the language: `en`, `de`, `es`, ...</source>
        <translation>the language: `en`, `de`, `es`, ...</translation>
    </message>
    <message>
        <source>`m` or `f`</source>
        <translation>`m` or `f`</translation>
    </message>
    <message>
        <source>1 to 99</source>
        <translation>1 to 99</translation>
    </message>
    <message>
        <source>a number; meant is 1 to 5, up to 99 is accepted</source>
        <translation>a number; meant is 1 to 5, up to 99 is accepted</translation>
    </message>
</context>
<context>
    <name>JumpList</name>
    <message>
        <source>Type a part of it</source>
        <translation>Type a part of it</translation>
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
        <translation>Suggestions</translation>
    </message>
</context>
<context>
    <name>VariableNames</name>
    <message>
        <source>Take letters, digits and &quot;_&quot;, and begin with a letter.</source>
        <translation>Take letters, digits and &quot;_&quot;, and begin with a letter.</translation>
    </message>
    <message>
        <source>Take small letters: a name with capitals is not found when it is read.</source>
        <translation>Take small letters: a name with capitals is not found when it is read.</translation>
    </message>
    <message>
        <source>Names that begin with &quot;_&quot; belong to the compiler.</source>
        <translation>Names that begin with &quot;_&quot; belong to the compiler.</translation>
    </message>
    <message>
        <source>This is a word of the language. Choose another name.</source>
        <translation>This is a word of the language. Choose another name.</translation>
    </message>
    <message>
        <source>This name is taken already. Choose another name.</source>
        <translation>This name is taken already. Choose another name.</translation>
    </message>
</context>
<context>
    <name>CaretStatus</name>
    <message>
        <source>Help while writing</source>
        <translation>Help while writing</translation>
    </message>
    <message>
        <source>Switches on and off what comes by itself while you write the script: names, indentation, explanations, marks</source>
        <translation>Switches on and off what comes by itself while you write the script: names, indentation, explanations, marks</translation>
    </message>
    <message>
        <source>&amp;Suggest names while typing</source>
        <translation>&amp;Suggest names while typing</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>&amp;Indent new lines</translation>
    </message>
    <message>
        <source>&amp;Explain words under the mouse</source>
        <translation>&amp;Explain words under the mouse</translation>
    </message>
    <message>
        <source>&amp;Mark problems in the text</source>
        <translation>&amp;Mark problems in the text</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Line %1, column %2</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>OVR</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>INS</translation>
    </message>
    <message>
        <source>Typing replaces what stands there (Insert)</source>
        <translation>Typing replaces what stands there (Insert)</translation>
    </message>
    <message>
        <source>Typing inserts (Insert)</source>
        <translation>Typing inserts (Insert)</translation>
    </message>
</context>
<context>
    <name>ScriptAreas</name>
    <message>
        <source>Area %1, number %2, page %3</source>
        <translation>Area %1, number %2, page %3</translation>
    </message>
</context>
<context>
    <name>ChangedFileBar</name>
    <message>
        <source>Open the other</source>
        <translation>Open the other</translation>
    </message>
    <message>
        <source>Shows what the file holds now; your unsaved work is kept and offered</source>
        <translation>Shows what the file holds now; your unsaved work is kept and offered</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Another window or program has changed the project file since this window opened or saved it.</translation>
    </message>
</context>
<context>
    <name>NumberBar</name>
    <message>
        <source>This book gets another number</source>
        <translation>This book gets another number</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Keep</translation>
    </message>
    <message>
        <source>Both books keep their number</source>
        <translation>Both books keep their number</translation>
    </message>
    <message>
        <source>The number %1 is also that of %2 in this folder: the books would use the same pictures.</source>
        <translation>The number %1 is also that of %2 in this folder: the books would use the same pictures.</translation>
    </message>
    <message>
        <source>Take number %1</source>
        <translation>Take number %1</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Unsaved work cannot be kept in %1. Save it soon.</source>
        <translation>Unsaved work cannot be kept in %1. Save it soon.</translation>
    </message>
    <message>
        <source>That work is not there any more, or another window has it.</source>
        <translation>That work is not there any more, or another window has it.</translation>
    </message>
</context>
<context>
    <name>RecoveryBar</name>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Brings the unsaved work into the window; the file stays as it is</source>
        <translation>Brings the unsaved work into the window; the file stays as it is</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Forget</translation>
    </message>
    <message>
        <source>Throws the unsaved work away</source>
        <translation>Throws the unsaved work away</translation>
    </message>
    <message>
        <source>The copy of the unsaved work of %1 is damaged and cannot be restored. It stays here: %2</source>
        <translation>The copy of the unsaved work of %1 is damaged and cannot be restored. It stays here: %2</translation>
    </message>
    <message>
        <source>There is work since %1 that was never saved.</source>
        <translation>There is work since %1 that was never saved.</translation>
    </message>
    <message>
        <source>There is unsaved work since %1 on a project that is not there any more: %2</source>
        <translation>There is unsaved work since %1 on a project that is not there any more: %2</translation>
    </message>
    <message>
        <source>There is unsaved work on this project since %1.</source>
        <translation>There is unsaved work on this project since %1.</translation>
    </message>
</context>
<context>
    <name>SettingsBar</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Hides this line</translation>
    </message>
    <message>
        <source>How you like the window cannot be kept for the next start, since %1 cannot be written: the disk is full, or the folder is protected.</source>
        <translation>How you like the window cannot be kept for the next start, since %1 cannot be written: the disk is full, or the folder is protected.</translation>
    </message>
</context>
<context>
    <name>PagePictures</name>
    <message>
        <source>The book has another number now. Save it before that.</source>
        <translation>The book has another number now. Save it before that.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>The folder cannot be written.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and saved that. Open the book again.</source>
        <translation>Another window has moved pages of this book and saved that. Open the book again.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and not saved that yet.</source>
        <translation>Another window has moved pages of this book and not saved that yet.</translation>
    </message>
    <message>
        <source>It is a link to a file outside of the project&apos;s folder.</source>
        <translation>It is a link to a file outside of the project&apos;s folder.</translation>
    </message>
    <message>
        <source>It is damaged. Put the pictures in order, then remove it.</source>
        <translation>It is damaged. Put the pictures in order, then remove it.</translation>
    </message>
</context>
<context>
    <name>AreaTools</name>
    <message>
        <source>Click an area to select it; drag it or its corners to change it</source>
        <translation>Click an area to select it; drag it or its corners to change it</translation>
    </message>
    <message>
        <source>A new area: click its corners one after the other</source>
        <translation>A new area: click its corners one after the other</translation>
    </message>
    <message>
        <source>%1. By keys: arrows, Space, Enter</source>
        <translation>%1. By keys: arrows, Space, Enter</translation>
    </message>
    <message>
        <source>Add rectangle</source>
        <translation>Add rectangle</translation>
    </message>
    <message>
        <source>A new area: drag a rectangle, with Shift a square</source>
        <translation>A new area: drag a rectangle, with Shift a square</translation>
    </message>
    <message>
        <source>Add ellipse</source>
        <translation>Add ellipse</translation>
    </message>
    <message>
        <source>A new area: drag an ellipse, with Shift a circle</source>
        <translation>A new area: drag an ellipse, with Shift a circle</translation>
    </message>
    <message>
        <source>Area of one colour</source>
        <translation>Area of one colour</translation>
    </message>
    <message>
        <source>A new area: click what has about the same colour</source>
        <translation>A new area: click what has about the same colour</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; has fewer than three corners. The pen will not find it.</source>
        <translation>The area &quot;%1&quot; has fewer than three corners. The pen will not find it.</translation>
    </message>
    <message>
        <source>This page has no area to draw. &quot;+&quot; begins one.</source>
        <translation>This page has no area to draw. &quot;+&quot; begins one.</translation>
    </message>
    <message>
        <source>Clicks now add corners to &quot;%1&quot;, the last area of this page.</source>
        <translation>Clicks now add corners to &quot;%1&quot;, the last area of this page.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends drawing.</source>
        <translation>&quot;%1&quot; ends drawing.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, which was there before, has one more corner. Undo takes it back.</source>
        <translation>&quot;%1&quot;, which was there before, has one more corner. Undo takes it back.</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; needs three corners.</source>
        <translation>The area &quot;%1&quot; needs three corners.</translation>
    </message>
    <message>
        <source>Enter takes the area, the wheel changes the tolerance: %1</source>
        <translation>Enter takes the area, the wheel changes the tolerance: %1</translation>
    </message>
    <message>
        <source>There is no picture here.</source>
        <translation>There is no picture here.</translation>
    </message>
</context>
<context>
    <name>WhyButton</name>
    <message>
        <source>Why?</source>
        <translation>Why?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, where it tells what to do</source>
        <translation>Opens the manual in your browser, where it tells what to do</translation>
    </message>
</context>
<context>
    <name>ZoomActions</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse</source>
        <translation>Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too</source>
        <translation>Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>Shows the page as wide as the window, however it was zoomed</source>
        <translation>Shows the page as wide as the window, however it was zoomed</translation>
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
        <translation>Fewer than three corners</translation>
    </message>
    <message>
        <source>Not in the script</source>
        <translation>Not in the script</translation>
    </message>
    <message>
        <source>Number above 15000: not known to the pen</source>
        <translation>Number above 15000: not known to the pen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnings</translation>
    </message>
</context>
<context>
    <name>AreasDock</name>
    <message>
        <source>Areas</source>
        <translation>Areas</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the areas</source>
        <translation>Filter of the areas</translation>
    </message>
    <message>
        <source>Shows only areas whose name has this text, to find one among many; empty shows all</source>
        <translation>Shows only areas whose name has this text, to find one among many; empty shows all</translation>
    </message>
    <message>
        <source>Areas of all pages</source>
        <translation>Areas of all pages</translation>
    </message>
    <message>
        <source>A click selects an area, a double click goes to its code, F2 renames it</source>
        <translation>A click selects an area, a double click goes to its code, F2 renames it</translation>
    </message>
</context>
<context>
    <name>PageListModel</name>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>PagesDock</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages of the book</source>
        <translation>Pages of the book</translation>
    </message>
    <message>
        <source>Move page up</source>
        <translation>Move page up</translation>
    </message>
    <message>
        <source>Move page down</source>
        <translation>Move page down</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Remove page</translation>
    </message>
    <message>
        <source>Page %1 is page %2 now.</source>
        <translation>Page %1 is page %2 now.</translation>
    </message>
    <message>
        <source>Page %1 is removed with its areas. Undo brings it back.</source>
        <translation>Page %1 is removed with its areas. Undo brings it back.</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>No page</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete removes it, and Undo brings it back</source>
        <translation>A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete removes it, and Undo brings it back</translation>
    </message>
</context>
</TS>
