<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Plinkett</source>
        <translation>À propos de Plinkett</translation>
    </message>
    <message>
        <source>Makes printed books and boards talk.</source>
        <translation>Fait parler des livres et des plateaux imprimés.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence : %1</translation>
    </message>
    <message>
        <source>Libraries and their licences:</source>
        <translation>Bibliothèques et leurs licences :</translation>
    </message>
    <message>
        <source>Tells the version, to be named when something goes wrong, and the licences</source>
        <translation>Dit la version, à nommer quand quelque chose ne va pas, et les licences</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>There is not enough memory to go on, so Plinkett ends here. What you had not saved is kept as it was some seconds ago: open the book again to get it back.</source>
        <translation>Il n’y a plus assez de mémoire pour continuer, Plinkett s’arrête donc ici. Ce qui n’était pas enregistré est conservé tel qu’il était il y a quelques secondes : rouvrez le livre pour le retrouver.</translation>
    </message>
</context>
<context>
    <name>AreaCommands</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cou&amp;per</translation>
    </message>
    <message>
        <source>Takes the selected areas to the clipboard</source>
        <translation>Met les zones choisies dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copies the selected areas to the clipboard</source>
        <translation>Copie les zones choisies dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Brings the areas on the clipboard onto this page: under their names, which are counted up on the page that they come from</source>
        <translation>Met les zones du presse-papiers sur cette page : sous leurs noms, qui reçoivent un autre numéro sur la page d’où elles viennent</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Copies the selected areas beside themselves</source>
        <translation>Copie les zones choisies à côté d’elles-mêmes</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Deletes the selected areas</source>
        <translation>Supprime les zones choisies</translation>
    </message>
    <message>
        <source>Where areas overlap, the one that comes first speaks</source>
        <translation>Là où des zones se recouvrent, la première parle</translation>
    </message>
    <message>
        <source>Bring &amp;forward</source>
        <translation>Vers l’&amp;avant</translation>
    </message>
    <message>
        <source>Send &amp;backward</source>
        <translation>Vers l’a&amp;rrière</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout choisir</translation>
    </message>
    <message>
        <source>Selects all areas of the page</source>
        <translation>Choisit toutes les zones de la page</translation>
    </message>
    <message>
        <source>Areas copied: %1</source>
        <translation>Zones copiées : %1</translation>
    </message>
    <message>
        <source>Areas cut: %1</source>
        <translation>Zones coupées : %1</translation>
    </message>
    <message>
        <source>The clipboard holds no areas.</source>
        <translation>Le presse-papiers ne contient pas de zones.</translation>
    </message>
    <message>
        <source>The areas on the clipboard cannot be read: line %1 is not as it should be.</source>
        <translation>Les zones du presse-papiers sont illisibles : la ligne %1 n’est pas comme elle devrait être.</translation>
    </message>
    <message>
        <source>Areas pasted: %1</source>
        <translation>Zones collées : %1</translation>
    </message>
    <message>
        <source>%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.</source>
        <translation>%1 est la zone %2 sur %3. Là où des zones se recouvrent, la première parle.</translation>
    </message>
</context>
<context>
    <name>BookPrinting</name>
    <message>
        <source>&amp;PDF of the book...</source>
        <translation>&amp;PDF du livre...</translation>
    </message>
    <message>
        <source>&amp;Symbols and legend...</source>
        <translation>&amp;Symboles et légende...</translation>
    </message>
    <message>
        <source>Printer&apos;s &amp;test page...</source>
        <translation>Page de &amp;test de l&apos;imprimante...</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Il n&apos;y a pas encore d&apos;image</translation>
    </message>
    <message>
        <source>Creating the PDF...</source>
        <translation>Création du PDF...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The PDF was created: %1</source>
        <translation>Le PDF a été créé : %1</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>La création a été annulée</translation>
    </message>
    <message>
        <source>The PDF was not created: %1</source>
        <translation>Le PDF n&apos;a pas été créé : %1</translation>
    </message>
    <message>
        <source>Making the printer&apos;s test page...</source>
        <translation>Création de la page de test de l&apos;imprimante...</translation>
    </message>
    <message>
        <source>Print %1 at 100 %, and copy %2 onto the pen</source>
        <translation>Imprimez %1 à 100 % et copiez %2 sur le stylo</translation>
    </message>
    <message>
        <source>The test page was not created: %1</source>
        <translation>La page de test n&apos;a pas été créée : %1</translation>
    </message>
</context>
<context>
    <name>DotPreview</name>
    <message>
        <source>Preview: a square centimetre of the page</source>
        <translation>Aperçu : un centimètre carré de la page</translation>
    </message>
    <message>
        <source>A square centimetre of the page: a pixel of the screen is one of the printer</source>
        <translation>Un centimètre carré de la page : un pixel de l&apos;écran est un pixel de l&apos;imprimante</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>The pen says only one of these texts, at random</source>
        <translation>Le stylo ne dit qu&apos;un de ces textes, au hasard</translation>
    </message>
    <message>
        <source>Say one after the other</source>
        <translation>Les dire l&apos;un après l&apos;autre</translation>
    </message>
    <message>
        <source>The saved project has one percent sign less here</source>
        <translation>Le projet enregistré a ici un signe pour cent de moins</translation>
    </message>
    <message>
        <source>Write one percent sign</source>
        <translation>Écrire un seul signe pour cent</translation>
    </message>
    <message>
        <source>This text shares its audio file with &quot;%1&quot; in line %2, and the pen says that one here, too</source>
        <translation>Ce texte partage son fichier audio avec « %1 » de la ligne %2, et le stylo dit ici aussi celui-là</translation>
    </message>
    <message>
        <source>This text is too long: the name of its audio file has %1 characters, and 251 are the most</source>
        <translation>Ce texte est trop long : le nom de son fichier audio a %1 caractères, 251 au plus sont possibles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a language, so the texts of this voice are not spoken</source>
        <translation>« %1 » ne peut pas être une langue, les textes de cette voix ne sont donc pas dits</translation>
    </message>
    <message>
        <source>When this is neither 0 nor 1, the pen does neither what stands behind if nor what stands behind else</source>
        <translation>Si ce n&apos;est ni 0 ni 1, le stylo ne fait ni ce qui suit if ni ce qui suit else</translation>
    </message>
    <message>
        <source>Compare with 0</source>
        <translation>Comparer à 0</translation>
    </message>
    <message>
        <source>&amp; and | bind tighter than comparisons: each comparison needs parentheses of its own</source>
        <translation>&amp; et | lient plus fort que les comparaisons : chaque comparaison a besoin de ses parenthèses</translation>
    </message>
    <message>
        <source>Put each comparison into parentheses</source>
        <translation>Mettre chaque comparaison entre parenthèses</translation>
    </message>
    <message>
        <source>What falls below 0 here goes on down from 65535, so the comparison takes it for large</source>
        <translation>Ce qui tombe ici au-dessous de 0 continue à partir de 65535 ; la comparaison le croit grand</translation>
    </message>
    <message>
        <source>Add on the other side</source>
        <translation>Ajouter de l&apos;autre côté</translation>
    </message>
    <message>
        <source>%1 is above 65535 and becomes %2</source>
        <translation>%1 dépasse 65535 et devient %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is set here, but &apos;%2&apos; is read: names are read in small letters, and these are two variables</source>
        <translation>« %1 » est affecté ici, mais « %2 » est lu : les noms sont lus en minuscules, et ce sont deux variables</translation>
    </message>
    <message>
        <source>Write it in small letters</source>
        <translation>L&apos;écrire en minuscules</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is set but never read</source>
        <translation>La variable « %1 » est affectée mais jamais lue</translation>
    </message>
    <message>
        <source>The variable &apos;%1&apos; is read but never set, so it is always 0</source>
        <translation>La variable « %1 » est lue mais jamais affectée, elle vaut donc toujours 0</translation>
    </message>
    <message>
        <source>No game can be built with a variable named &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Aucun jeu ne peut être construit avec une variable nommée « %1 » : lettres, chiffres et traits de soulignement sont possibles, mais pas de chiffre au début</translation>
    </message>
    <message>
        <source>The compiler uses the name &apos;%1&apos; itself; one of the two would be lost</source>
        <translation>Le compilateur utilise lui-même le nom « %1 » ; l&apos;un des deux serait perdu</translation>
    </message>
    <message>
        <source>No game can be built with a goto to &apos;%1&apos;: letters, digits and underscores are possible, but no digit first</source>
        <translation>Aucun jeu ne peut être construit avec un goto vers « %1 » : lettres, chiffres et traits de soulignement sont possibles, mais pas de chiffre au début</translation>
    </message>
    <message>
        <source>This stands outside of every sub and is never carried out</source>
        <translation>Ceci est en dehors de tout sub et n&apos;est jamais exécuté</translation>
    </message>
    <message>
        <source>The sub &apos;%1&apos; has no end, so no game can be built</source>
        <translation>Le sub « %1 » n&apos;a pas de fin, aucun jeu ne peut donc être construit</translation>
    </message>
    <message>
        <source>End it behind its last line</source>
        <translation>Le terminer après sa dernière ligne</translation>
    </message>
    <message>
        <source>Add an empty sub</source>
        <translation>Ajouter un sub vide</translation>
    </message>
    <message>
        <source>The pen never comes to this: it stands behind a goto</source>
        <translation>Le stylo n&apos;arrive jamais ici : c&apos;est derrière un goto</translation>
    </message>
    <message>
        <source>This belongs to the select in line %1, which has ended, and not to the one in line %2</source>
        <translation>Ceci appartient au select de la ligne %1, déjà terminé, et non à celui de la ligne %2</translation>
    </message>
    <message>
        <source>The pen goes round for ever and says nothing: %1</source>
        <translation>Le stylo tourne en rond sans fin et ne dit rien : %1</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with this name</source>
        <translation>Zone « %1 » de la page %2 : aucun jeu ne peut être construit avec ce nom</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the game reads this name as &apos;%3&apos;</source>
        <translation>Zone « %1 » de la page %2 : le jeu lit ce nom comme « %3 »</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: no game can be built with a sub whose name is a number</source>
        <translation>Zone « %1 » de la page %2 : aucun jeu ne peut être construit avec un sub dont le nom est un nombre</translation>
    </message>
    <message>
        <source>Give it a free number</source>
        <translation>Lui donner un numéro libre</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: there is no dot pattern for the number %3, so nothing is printed</source>
        <translation>Zone « %1 » de la page %2 : il n&apos;y a pas de trame de points pour le numéro %3, rien n&apos;est donc imprimé</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is below 1000, where the pen looks for books and its own signs</source>
        <translation>Zone « %1 » de la page %2 : le numéro %3 est inférieur à 1000, où le stylo cherche des livres et ses propres signes</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the number %3 is above 14999 and the pen does not know it</source>
        <translation>Zone « %1 » de la page %2 : le numéro %3 dépasse 14999 et le stylo ne le connaît pas</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the area &apos;%4&apos; has the number %3, too; the pen takes both for one</source>
        <translation>Zone « %1 » de la page %2 : la zone « %4 » a aussi le numéro %3 ; le stylo les prend pour une seule</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: in the last build &apos;%4&apos; had the number %3; the next build gives it another one</source>
        <translation>Zone « %1 » de la page %2 : à la dernière construction, « %4 » avait le numéro %3 ; la prochaine lui en donne un autre</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it are black in the picture, where the pen sees no dots; 30 % are the most</source>
        <translation>Zone « %1 » de la page %2 : %3 % sont noirs dans l&apos;image, où le stylo ne voit pas de points ; 30 % sont le maximum</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 has fewer than three corners, so nothing is printed</source>
        <translation>Zone « %1 » de la page %2 a moins de trois sommets, rien n&apos;est donc imprimé</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: its edges cross, and what is enclosed twice is left out</source>
        <translation>Zone « %1 » de la page %2 : ses bords se croisent, et ce qui est entouré deux fois reste vide</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: %3 % of it lie outside of the picture</source>
        <translation>Zone « %1 » de la page %2 : %3 % se trouvent en dehors de l&apos;image</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 lies wholly below areas that come before it, so the pen never finds it</source>
        <translation>Zone « %1 » de la page %2 est entièrement sous des zones qui la précèdent, le stylo ne la trouve donc jamais</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2 is %3 mm wide on paper where it is widest; the pen needs 8 mm</source>
        <translation>Zone « %1 » de la page %2 a %3 mm de large sur papier à son endroit le plus large ; le stylo a besoin de 8 mm</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the picture is too dark there for black dots, its lightness is %3 %; 35 % are needed</source>
        <translation>Zone « %1 » de la page %2 : l&apos;image y est trop sombre pour des points noirs, sa clarté est de %3 % ; il en faut 35 %</translation>
    </message>
    <message>
        <source>Area &apos;%1&apos; on page %2: the script has no sub of this name, so a touch does nothing</source>
        <translation>Zone « %1 » de la page %2 : le script n&apos;a pas de sub de ce nom, un toucher ne fait donc rien</translation>
    </message>
    <message>
        <source>No area and no goto leads to the sub &apos;%1&apos;, so it is never carried out</source>
        <translation>Aucune zone et aucun goto ne mène au sub « %1 », il n&apos;est donc jamais exécuté</translation>
    </message>
    <message>
        <source>The script has %1 steps; %2 are the most that a game can have</source>
        <translation>Le script a %1 pas ; un jeu peut en avoir %2 au plus</translation>
    </message>
    <message>
        <source>The name of the product cannot have these characters: %1</source>
        <translation>Le nom du produit ne peut pas avoir ces caractères : %1</translation>
    </message>
    <message>
        <source>The name of the product has %1 characters; no game can be built with more than 49</source>
        <translation>Le nom du produit a %1 caractères ; avec plus de 49, aucun jeu ne peut être construit</translation>
    </message>
    <message>
        <source>The game file cannot hold these characters of the product&apos;s name: %1</source>
        <translation>Le fichier de jeu ne peut pas contenir ces caractères du nom du produit : %1</translation>
    </message>
    <message>
        <source>Other books in this folder have the number %1, too, and the same picture files: %2</source>
        <translation>D&apos;autres livres de ce dossier ont aussi le numéro %1 et les mêmes fichiers d&apos;images : %2</translation>
    </message>
    <message>
        <source>The number of the product is %1; books made at home have 900 to 950, others may be those of a bought book</source>
        <translation>Le numéro du produit est %1 ; les livres faits maison ont 900 à 950, les autres peuvent être ceux d&apos;un livre acheté</translation>
    </message>
    <message>
        <source>No area has the product&apos;s number %1: nothing on the pages starts the book, so a page of symbols has to</source>
        <translation>Aucune zone n&apos;a le numéro du produit, %1 : rien sur les pages ne démarre le livre, une page de symboles doit le faire</translation>
    </message>
    <message>
        <source>The script has %1 steps of the %2 that a game can have</source>
        <translation>Le script a %1 des %2 pas qu&apos;un jeu peut avoir</translation>
    </message>
    <message>
        <source>Page %1 has no areas; other programs that save the project lose it</source>
        <translation>Page %1 n&apos;a pas de zones ; d&apos;autres programmes qui enregistrent le projet la perdent</translation>
    </message>
    <message>
        <source>Page %1: on its paper the picture has %2 dpi; below 150 its pixels can be seen</source>
        <translation>Page %1 : sur son papier, l&apos;image a %2 dpi ; au-dessous de 150, on voit ses pixels</translation>
    </message>
    <message>
        <source>Print it with 1200 dpi</source>
        <translation>L&apos;imprimer à 1200 dpi</translation>
    </message>
    <message>
        <source>Page %1: with %2 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right</source>
        <translation>Page %1 : à %2 dpi, les points ne sont pas imprimés régulièrement ; 600 dpi ou le double, le quadruple conviennent</translation>
    </message>
    <message>
        <source>Page %1: picture and paper have other proportions, so %2 mm of the paper stay blank</source>
        <translation>Page %1 : l&apos;image et le papier n&apos;ont pas les mêmes proportions, %2 mm du papier restent donc blancs</translation>
    </message>
</context>
<context>
    <name>KVQtFindDialog</name>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Goes to the next place that holds the text (Return); F3 does it in the script</source>
        <translation>Va au prochain endroit qui contient le texte (Entrée) ; F3 le fait dans le script</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Replaces what is selected, or else the next place that holds the text</source>
        <translation>Remplace la sélection ou, à défaut, la prochaine occurrence</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message>
        <source>Replaces the text wherever it stands in the script; Undo brings all of it back</source>
        <translation>Remplace le texte partout dans le script ; Annuler rétablit tout</translation>
    </message>
    <message>
        <source>Search &amp;backwards</source>
        <translation>Rechercher en &amp;arrière</translation>
    </message>
    <message>
        <source>Searches from the caret toward the beginning instead of the end</source>
        <translation>Cherche du curseur vers le début au lieu de la fin</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Remplacer par :</translation>
    </message>
    <message>
        <source>The text that takes its place; empty deletes what is found</source>
        <translation>Le texte qui le remplace ; vide, il efface ce qui est trouvé</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find &amp;what:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>The text that is searched for; capital and small letters differ</source>
        <translation>Le texte recherché ; majuscules et minuscules sont distinguées</translation>
    </message>
</context>
<context>
    <name>KVQtHighlightEditCtrlInlay</name>
    <message>
        <source>Go to line</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>&amp;Line (1 to %1):</source>
        <translation>&amp;Ligne (1 à %1) :</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Context menu</source>
        <translation>Menu contextuel</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>&amp;Couper	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>C&amp;opier	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>Co&amp;ller	Ctrl+V</translation>
    </message>
    <message>
        <source>Select &amp;All	Ctrl+A</source>
        <translation>&amp;Tout sélectionner	Ctrl+A</translation>
    </message>
    <message>
        <source>&amp;Find...	Ctrl+F3</source>
        <translation>&amp;Rechercher...	Ctrl+F3</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt	F3</source>
        <translation>Occurrence &amp;suivante	F3</translation>
    </message>
    <message>
        <source>&amp;Replace...	Ctrl+H</source>
        <translation>Re&amp;mplacer...	Ctrl+H</translation>
    </message>
    <message>
        <source>Undo	Ctrl+Z</source>
        <translation>Annuler	Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo	Ctrl+Y</source>
        <translation>Rétablir	Ctrl+Y</translation>
    </message>
    <message>
        <source>Toggle Bookmark	Ctrl+F2</source>
        <translation>Poser ou ôter un signet	Ctrl+F2</translation>
    </message>
    <message>
        <source>Next Bookmark	F2</source>
        <translation>Signet suivant	F2</translation>
    </message>
    <message>
        <source>Previous Bookmark	Shift+F2</source>
        <translation>Signet précédent	Maj+F2</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Recherche reprise depuis la fin.</translation>
    </message>
    <message>
        <source>Went on from the beginning.</source>
        <translation>Recherche reprise depuis le début.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>Remplacement...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The text would become too large. It stays as it was.</source>
        <translation>Le texte deviendrait trop grand. Il reste tel qu&apos;il était.</translation>
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
        <translation>Projet</translation>
    </message>
    <message>
        <source>Project Name</source>
        <translation>Nom du projet</translation>
    </message>
    <message>
        <source>The name of the book: the pen says it when the book is switched on, and game and PDF are named after it</source>
        <translation>Le nom du livre : le stylo le dit quand le livre est mis en marche, et le jeu et le PDF portent ce nom</translation>
    </message>
    <message>
        <source>Project ID</source>
        <translation>ID du projet</translation>
    </message>
    <message>
        <source>The number by which the pen knows the book: each book on the pen needs its own, 900 to 950 for those made at home</source>
        <translation>Le numéro auquel le stylo reconnaît le livre : chaque livre sur le stylo a le sien, de 900 à 950 pour ceux faits à la maison</translation>
    </message>
    <message>
        <source>Current Picture (Area)</source>
        <translation>Image actuelle (zone)</translation>
    </message>
    <message>
        <source>Paper: [mm]</source>
        <translation>Papier : [mm]</translation>
    </message>
    <message>
        <source>Paper width in millimetres</source>
        <translation>Largeur du papier en millimètres</translation>
    </message>
    <message>
        <source>How wide this page is printed, in millimetres: its picture fills the paper</source>
        <translation>La largeur à laquelle cette page est imprimée, en millimètres : son image remplit le papier</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Paper height in millimetres</source>
        <translation>Hauteur du papier en millimètres</translation>
    </message>
    <message>
        <source>How high this page is printed, in millimetres: its picture fills the paper</source>
        <translation>La hauteur à laquelle cette page est imprimée, en millimètres : son image remplit le papier</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>PPP :</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, for this page: the pen needs 600 at least, better are 1200</source>
        <translation>Les points par pouce de l’imprimante, pour cette page : il en faut au moins 600 au stylo, mieux vaut 1200</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Makes a print image (TIFF) of each page, for a print shop; for a printer at home take PDF</source>
        <translation>Crée une image d’impression (TIFF) de chaque page, pour une imprimerie ; chez soi, on prend PDF</translation>
    </message>
    <message>
        <source>Create the output image now...</source>
        <translation>Créer l&apos;image à imprimer maintenant...</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Makes a PDF of the book for your own printer, each page in its true size; its menu (key Down) has symbols and the printer&apos;s test page</source>
        <translation>Crée un PDF du livre pour votre imprimante, chaque page à sa vraie taille ; dans son menu (touche Bas) : symboles et page d’essai</translation>
    </message>
    <message>
        <source>Add START &amp;symbol</source>
        <translation>Ajouter le &amp;symbole START</translation>
    </message>
    <message>
        <source>An area with the number of the book, which the pen must touch before it knows it</source>
        <translation>Une zone avec le numéro du livre, que le stylo doit toucher avant de le connaître</translation>
    </message>
    <message>
        <source>This page has its START symbol already: %1</source>
        <translation>Cette page a déjà son symbole START : %1</translation>
    </message>
    <message>
        <source>The START symbol lies over other areas: nothing of the page is free. Move it.</source>
        <translation>Le symbole START recouvre d&apos;autres zones : rien n&apos;est libre sur la page. Déplacez-le.</translation>
    </message>
    <message>
        <source>The START symbol is on the page. Drag it where you like.</source>
        <translation>Le symbole START est sur la page. Faites-le glisser où vous voulez.</translation>
    </message>
    <message>
        <source>For all pictures</source>
        <translation>Pour toutes les images</translation>
    </message>
    <message>
        <source>Gives the paper and the DPI of this picture to all others, for a book that is printed on one kind of paper</source>
        <translation>Donne le papier et les DPI de cette image à toutes les autres, pour un livre imprimé sur un seul format</translation>
    </message>
    <message>
        <source>There is no picture yet</source>
        <translation>Il n'y a pas encore d'image</translation>
    </message>
    <message>
        <source>Paper size and DPI must be greater than 0</source>
        <translation>Le format du papier et les DPI doivent être supérieurs à 0</translation>
    </message>
    <message>
        <source>All pictures have this paper and these DPI now</source>
        <translation>Toutes les images ont maintenant ce papier et ces DPI</translation>
    </message>
    <message>
        <source>picture %1: %2 DPI are too few for the dots</source>
        <translation>image %1 : %2 DPI sont trop peu pour les points</translation>
    </message>
    <message>
        <source>Creating was cancelled</source>
        <translation>La création a été annulée</translation>
    </message>
    <message>
        <source>Picture %1 was not created: %2</source>
        <translation>L'image %1 n'a pas été créée : %2</translation>
    </message>
    <message>
        <source>1 print image created</source>
        <translation>1 image à imprimer créée</translation>
    </message>
    <message>
        <source>%1 print images created</source>
        <translation>%1 images à imprimer créées</translation>
    </message>
    <message>
        <source>Building...</source>
        <translation>Génération du jeu...</translation>
    </message>
    <message>
        <source>The game was built: %1</source>
        <translation>Le jeu a été généré : %1</translation>
    </message>
    <message>
        <source>The game was not built. The console tells why.</source>
        <translation>Le jeu n'a pas été généré. La console dit pourquoi.</translation>
    </message>
    <message>
        <source>The game was copied to the pen, which can be unplugged</source>
        <translation>Le jeu a été copié sur le stylo, qui peut être débranché</translation>
    </message>
    <message>
        <source>The game was copied to the pen. Eject it before you unplug it</source>
        <translation>Le jeu a été copié sur le stylo. Éjectez-le avant de le débrancher</translation>
    </message>
    <message>
        <source>The game was not copied to the pen</source>
        <translation>Le jeu n'a pas été copié sur le stylo</translation>
    </message>
    <message>
        <source>There is no game yet: build it first</source>
        <translation>Il n'y a pas encore de jeu : générez-le d'abord</translation>
    </message>
    <message>
        <source>No pen was found: a pen is a drive that holds the file %1</source>
        <translation>Aucun stylo n'a été trouvé : un stylo est un lecteur qui contient le fichier %1</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Ouvert : %1</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Non ouvert : %1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>The script declares the new voice in its first line now.</source>
        <translation>Le script déclare maintenant la nouvelle voix à sa première ligne.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré : %1</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Zones</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Show the previous picture</source>
        <translation>Affiche l&apos;image précédente</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Shows the next picture or appends a new one</source>
        <translation>Affiche l&apos;image suivante ou en ajoute une nouvelle</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>load...</source>
        <translation>charger...</translation>
    </message>
    <message>
        <source>Puts another picture file in the place of this one, such as a better scan; paper and areas stay</source>
        <translation>Met un autre fichier d’image à la place de celui-ci, un meilleur scan par exemple ; le papier et les zones restent</translation>
    </message>
    <message>
        <source>✖</source>
        <translation>✖</translation>
    </message>
    <message>
        <source>Delete picture</source>
        <translation>Supprimer l&apos;image</translation>
    </message>
    <message>
        <source>Shows how this page is removed: in the list of the pages (Ctrl+Shift+P), where Delete does it and Undo brings it back</source>
        <translation>Montre comment supprimer cette page : dans la liste des pages (Ctrl+Maj+P), Suppr le fait et Annuler la rétablit</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>↖</translation>
    </message>
    <message>
        <source>Pick area mode</source>
        <translation>Mode de sélection des zones</translation>
    </message>
    <message>
        <source>Pick area</source>
        <translation>Sélectionner une zone</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Add a new polygon mode</source>
        <translation>Mode d&apos;ajout d&apos;un polygone</translation>
    </message>
    <message>
        <source>Add area</source>
        <translation>Ajouter une zone</translation>
    </message>
    <message>
        <source>Delete selected polygon</source>
        <translation>Supprimer le polygone sélectionné</translation>
    </message>
    <message>
        <source>Delete area</source>
        <translation>Supprimer la zone</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID :</translation>
    </message>
    <message>
        <source>Area name</source>
        <translation>Nom de la zone</translation>
    </message>
    <message>
        <source>The name of the area: the sub of that name in the script says what is heard. Areas of one name do the same</source>
        <translation>Le nom de la zone : le sub de ce nom dans le script dit ce qu’on entend. Les zones de même nom font la même chose</translation>
    </message>
    <message>
        <source>OID of the area</source>
        <translation>OID de la zone</translation>
    </message>
    <message>
        <source>The number of the dots that the area is printed with: it comes by itself and stays, so that printed pages fit</source>
        <translation>Le numéro des points imprimés sur la zone : il vient tout seul et reste, pour que les pages imprimées conviennent</translation>
    </message>
    <message>
        <source>Goto code</source>
        <translation>Aller au code</translation>
    </message>
    <message>
        <source>Goes to the sub of the area in the script, where what it says is written; begins one where there is none</source>
        <translation>Va au sub de la zone dans le script, où l’on écrit ce qu’elle dit ; en commence un s’il n’y en a pas</translation>
    </message>
    <message>
        <source>Picture with its areas</source>
        <translation>Image avec ses zones</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Génération</translation>
    </message>
    <message>
        <source>Book tests (*.booktest)</source>
        <translation>Tests de livre (*.booktest)</translation>
    </message>
    <message>
        <source>Save book test</source>
        <translation>Enregistrer le test du livre</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>👷 Build</source>
        <translation>👷 Générer</translation>
    </message>
    <message>
        <source>Builds the project to a binary game</source>
        <translation>Génère le jeu binaire à partir du projet</translation>
    </message>
    <message>
        <source>⚠Debug Mode</source>
        <translation>⚠Mode débogage</translation>
    </message>
    <message>
        <source>Tells (says) the code line number, when running on the device</source>
        <translation>Annonce le numéro de la ligne de code lors de l&apos;exécution sur l&apos;appareil</translation>
    </message>
    <message>
        <source>Copy to Device</source>
        <translation>Copier sur l&apos;appareil</translation>
    </message>
    <message>
        <source>Copies the binary to the attached USB device</source>
        <translation>Copie le jeu sur l&apos;appareil USB connecté</translation>
    </message>
    <message>
        <source>&amp;Quick answers</source>
        <translation>Réponses rapi&amp;des</translation>
    </message>
    <message>
        <source>Makes the same game in fewer steps, so that the pen answers at once, also where the script reckons much</source>
        <translation>Fait le même jeu en moins d’étapes, pour que le stylo réponde tout de suite, même si le script calcule beaucoup</translation>
    </message>
    <message>
        <source>The pen takes its time for every step of the script. With quick answers the game does the same in few of them. They are made by Plinkett&apos;s own assembler, also where tttool is installed.</source>
        <translation>Le stylo met du temps pour chaque étape du script. Avec les réponses rapides, le jeu fait la même chose en peu d&apos;étapes. C&apos;est l&apos;assembleur de Plinkett lui-même qui les produit, même si tttool est installé.</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>toolBar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Opens another book; of this one, what is not saved is kept and offered again</source>
        <translation>Ouvre un autre livre ; de celui-ci, ce qui n’est pas enregistré est gardé et proposé de nouveau</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Writes the book into its project file; pictures and audio files lie beside it</source>
        <translation>Écrit le livre dans son fichier de projet ; les images et les fichiers audio sont à côté</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Takes back the last step, on pages and areas, or in the script while that is shown</source>
        <translation>Annule la dernière étape, sur les pages et les zones, ou dans le script tant qu’on le voit</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Does again what was taken back last, until something else is changed</source>
        <translation>Refait ce qui vient d’être annulé, tant que rien d’autre n’est changé</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Saves the book under another name or in another folder, and takes pictures and audio files along</source>
        <translation>Enregistre le livre sous un autre nom ou dans un autre dossier, et emporte images et fichiers audio</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Project files (*.oidpro)</source>
        <translation>Fichiers de projet (*.oidpro)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Import Picture</source>
        <translation>Importer une image</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Images des pages</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Nouveau livre...</translation>
    </message>
    <message>
        <source>Makes a book with the pictures of its pages</source>
        <translation>Crée un livre avec les images de ses pages</translation>
    </message>
    <message>
        <source>Folder for your copy of the book</source>
        <translation>Dossier pour votre copie du livre</translation>
    </message>
    <message>
        <source>The book could not be copied to %1.</source>
        <translation>Le livre n&apos;a pas pu être copié dans %1.</translation>
    </message>
    <message>
        <source>Your copy of the book lies in %1.</source>
        <translation>Votre copie du livre se trouve dans %1.</translation>
    </message>
    <message>
        <source>Picture files (*.png; *.jpg; *.jpeg; *.bmp)</source>
        <translation>Fichiers d&apos;image (*.png; *.jpg; *.jpeg; *.bmp)</translation>
    </message>
    <message>
        <source>The file could not be saved to the drive</source>
        <translation>Le fichier n&apos;a pas pu être enregistré sur le disque</translation>
    </message>
    <message>
        <source>This book has the number %1 now. Save it to keep that.</source>
        <translation>Ce livre a maintenant le numéro %1. Enregistrez-le pour que cela reste.</translation>
    </message>
    <message>
        <source>No area is selected, so this numbers none. Click one, then type its number.</source>
        <translation>Aucune zone n’est sélectionnée, ce numéro n’est donc donné à aucune. Cliquez-en une, puis saisissez son numéro.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Creating the print images...</source>
        <translation>Création des images à imprimer...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Making the speech...</source>
        <translation>Création des paroles...</translation>
    </message>
    <message>
        <source>Can&apos;t load that picture.</source>
        <translation>Impossible de charger cette image.</translation>
    </message>
    <message>
        <source>Save the project first: its pictures are kept beside the project file.</source>
        <translation>Enregistrez d&apos;abord le projet : ses images sont gardées à côté du fichier de projet.</translation>
    </message>
    <message>
        <source>Overwrite Picture</source>
        <translation>Remplacer l&apos;image</translation>
    </message>
    <message>
        <source>Do you want to overwrite the picture in the cache?</source>
        <translation>Voulez-vous remplacer l&apos;image déjà enregistrée ?</translation>
    </message>
    <message>
        <source>The picture could not be kept beside the project file.</source>
        <translation>L&apos;image n&apos;a pas pu être gardée à côté du fichier de projet.</translation>
    </message>
    <message>
        <source>The pictures could not be brought to their pages.</source>
        <translation>Les images n&apos;ont pas pu être placées avec leurs pages.</translation>
    </message>
    <message>
        <source>Shows or hides the list of the pages, in which one goes to pages, moves and removes them</source>
        <translation>Montre ou cache la liste des pages, où l’on va d’une page à l’autre, les déplace et les supprime</translation>
    </message>
    <message>
        <source>Shows or hides the list of all areas of the book, with what is wrong with them</source>
        <translation>Montre ou cache la liste de toutes les zones du livre, avec ce qui ne va pas</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Une autre fenêtre ou un autre programme a modifié le fichier du projet depuis que cette fenêtre l’a ouvert ou enregistré.</translation>
    </message>
    <message>
        <source>Overwriting loses what the file holds now. When you open that, your unsaved work is kept and offered.</source>
        <translation>Écraser le fichier perd ce qu’il contient maintenant. Si vous l’ouvrez, votre travail non enregistré est conservé et proposé.</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Open the o&amp;ther</source>
        <translation>Ouvrir l’&amp;autre</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Écraser</translation>
    </message>
    <message>
        <source>Your unsaved work cannot be kept. Save it under another name first.</source>
        <translation>Votre travail non enregistré ne peut pas être conservé. Enregistrez-le d’abord sous un autre nom.</translation>
    </message>
    <message>
        <source>%1: another window has moved pages and saved that. Open the book again.</source>
        <translation>%1 : une autre fenêtre a déplacé des pages et les a enregistrées. Rouvrez le livre.</translation>
    </message>
    <message>
        <source>The pictures are in the order of the pages again. Pages had been moved, but not saved.</source>
        <translation>Les images sont de nouveau dans l&apos;ordre des pages. Des pages avaient été déplacées, mais pas enregistrées.</translation>
    </message>
    <message>
        <source>These files could not be copied along. The old ones are still where they were.</source>
        <translation>Ces fichiers n&apos;ont pas pu être copiés avec le projet. Les anciens sont toujours à leur place.</translation>
    </message>
    <message>
        <source>Delete Picture</source>
        <translation>Supprimer l&apos;image</translation>
    </message>
    <message>
        <source>Do you really want to delete this picture?</source>
        <translation>Voulez-vous vraiment supprimer cette image ?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, at what the shown tab is for</source>
        <translation>Ouvre le manuel dans le navigateur, à ce qui concerne l’onglet affiché</translation>
    </message>
    <message>
        <source>Pages are removed in the list of the pages, which opens now: Delete removes this one, and Undo brings it back.</source>
        <translation>Les pages se suppriment dans la liste des pages, qui s’ouvre maintenant : Suppr supprime celle-ci, et Annuler la rétablit.</translation>
    </message>
    <message>
        <source>Delete removes page %1, and Undo brings it back.</source>
        <translation>Suppr supprime la page %1, et Annuler la rétablit.</translation>
    </message>
</context>
<context>
    <name>NewBook</name>
    <message>
        <source>The book needs a name.</source>
        <translation>Le livre a besoin d’un nom.</translation>
    </message>
    <message>
        <source>The number must be from %1 to %2.</source>
        <translation>Le numéro doit être compris entre %1 et %2.</translation>
    </message>
    <message>
        <source>The book needs a folder.</source>
        <translation>Le livre a besoin d’un dossier.</translation>
    </message>
    <message>
        <source>The folder needs its whole path.</source>
        <translation>Le dossier doit être indiqué avec son chemin complet.</translation>
    </message>
    <message>
        <source>%1 is a file and no folder.</source>
        <translation>%1 est un fichier et non un dossier.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1.</source>
        <translation>Rien ne peut être écrit dans le dossier %1.</translation>
    </message>
    <message>
        <source>There is a book already: %1. Take another name or folder.</source>
        <translation>Il y a déjà un livre : %1. Prenez un autre nom ou un autre dossier.</translation>
    </message>
    <message>
        <source>The book %1 in this folder has the number %2, too. Take another number or folder.</source>
        <translation>Le livre %1 de ce dossier a aussi le numéro %2. Prenez un autre numéro ou un autre dossier.</translation>
    </message>
    <message>
        <source>In this folder is %1, which belongs to a book of the number %2. Take another number or folder.</source>
        <translation>Ce dossier contient %1, qui appartient à un livre portant le numéro %2. Prenez un autre numéro ou un autre dossier.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>%1 is no picture, or cannot be read.</source>
        <translation>%1 n&apos;est pas une image ou ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be kept in the folder of the book.</source>
        <translation>L&apos;image %1 ne peut pas être conservée dans le dossier du livre.</translation>
    </message>
</context>
<context>
    <name>NewBookDialog</name>
    <message>
        <source>New book</source>
        <translation>Nouveau livre</translation>
    </message>
    <message>
        <source>Make the book</source>
        <translation>Créer le livre</translation>
    </message>
    <message>
        <source>The name of the book, which the pen says when it is switched on</source>
        <translation>Le nom du livre, que le stylo dit à la mise en marche</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>%1 to %2, another one for each book on the pen; 900 to 950 are for books of your own</source>
        <translation>De %1 à %2, un autre pour chaque livre du stylo ; 900 à 950 sont pour vos propres livres</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Numéro :</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Pictures of the pages, which can also come later:</source>
        <translation>Images des pages, qui peuvent aussi venir plus tard :</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Where all files of the book lie; it is made when it is not there</source>
        <translation>Où se trouvent tous les fichiers du livre ; il est créé s&apos;il n&apos;existe pas</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Chooses a folder that is there</source>
        <translation>Choisit un dossier qui existe</translation>
    </message>
    <message>
        <source>Pictures of the pages</source>
        <translation>Images des pages</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message>
        <source>Adds picture files, several at once</source>
        <translation>Ajoute des fichiers d&apos;images, plusieurs à la fois</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Moves the picture to the page before</source>
        <translation>Déplace l&apos;image à la page précédente</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>Moves the picture to the next page</source>
        <translation>Déplace l&apos;image à la page suivante</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Takes the picture off this list; its file stays</source>
        <translation>Retire l&apos;image de cette liste ; son fichier reste</translation>
    </message>
    <message>
        <source>Folder of the book</source>
        <translation>Dossier du livre</translation>
    </message>
    <message>
        <source>No picture, so it is not in the list: %1</source>
        <translation>Pas une image, donc absent de la liste : %1</translation>
    </message>
    <message>
        <source>The book %1 has this number, too: they cannot both be on the pen.</source>
        <translation>Le livre %1 a aussi ce numéro : les deux ne peuvent pas être ensemble sur le stylo.</translation>
    </message>
    <message>
        <source>Making the book...</source>
        <translation>Création du livre...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancelled: nothing was made.</source>
        <translation>Annulé : rien n&apos;a été créé.</translation>
    </message>
</context>
<context>
    <name>OpenManual</name>
    <message>
        <source>The manual cannot be shown: it is not installed, or there is no browser.</source>
        <translation>Le manuel ne peut pas être affiché : il n’est pas installé, ou il n’y a pas de navigateur.</translation>
    </message>
</context>
<context>
    <name>PageAccessible</name>
    <message>
        <source>number %1, area %2 of %3</source>
        <translation>numéro %1, zone %2 sur %3</translation>
    </message>
    <message>
        <source>%1 % from the left, %2 % from the top</source>
        <translation>%1 % depuis la gauche, %2 % depuis le haut</translation>
    </message>
</context>
<context>
    <name>PageMenu</name>
    <message>
        <source>Areas here</source>
        <translation>Zones ici</translation>
    </message>
    <message>
        <source>%1 (speaks here)</source>
        <translation>%1 (parle ici)</translation>
    </message>
</context>
<context>
    <name>PdfDialog</name>
    <message>
        <source>Lighten only inside of areas</source>
        <translation>N&apos;éclaircir que dans les zones</translation>
    </message>
    <message>
        <source>Outlines and names of the areas</source>
        <translation>Contours et noms des zones</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Traits de coupe</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>partout</translation>
    </message>
    <message>
        <source>only in areas</source>
        <translation>seulement dans les zones</translation>
    </message>
    <message>
        <source>none: a proof</source>
        <translation>aucun : une épreuve</translation>
    </message>
    <message>
        <source>when no area starts the book</source>
        <translation>si aucune zone ne démarre le livre</translation>
    </message>
    <message>
        <source>always</source>
        <translation>toujours</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation>rien d&apos;autre</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>1 cm of the page, dots 1:1</source>
        <translation>1 cm de la page, points 1:1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Only these pictures, counted from 0, such as 0,2-3, to print a changed page again; empty prints all</source>
        <translation>Seulement ces images, comptées à partir de 0, comme 0,2-3, pour réimprimer une page changée ; vide, toutes</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages :</translation>
    </message>
    <message>
        <source>Whether the whole page gets dots, or only its areas, which leaves the rest as clear as it was</source>
        <translation>Si toute la page reçoit des points, ou seulement ses zones, ce qui laisse le reste aussi net qu’avant</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Dots:</source>
        <translation>Points :</translation>
    </message>
    <message>
        <source>Lightens the picture on areas only, where the pen reads; the rest of it stays as it is</source>
        <translation>N’éclaircit l’image que sur les zones, là où lit le stylo ; le reste ne change pas</translation>
    </message>
    <message>
        <source>Draws the areas with their names, to check them on paper, in a colour that the pen does not see</source>
        <translation>Dessine les zones avec leurs noms, pour les vérifier sur le papier, dans une couleur que le stylo ne voit pas</translation>
    </message>
    <message>
        <source>as needed</source>
        <translation>selon le besoin</translation>
    </message>
    <message>
        <source>White paper around each page, for a printer that does not print up to the edge</source>
        <translation>Du papier blanc autour de chaque page, pour une imprimante qui n’imprime pas jusqu’au bord</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin:</source>
        <translation>Marge :</translation>
    </message>
    <message>
        <source>Marks in the margin where the page ends, to cut along them</source>
        <translation>Des repères dans la marge là où finit la page, pour couper le long</translation>
    </message>
    <message>
        <source>Prints pages that are larger than the paper on several sheets that overlap, to be glued together</source>
        <translation>Imprime les pages plus grandes que le papier sur plusieurs feuilles qui se chevauchent, à coller ensemble</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>Poster:</source>
        <translation>Affiche :</translation>
    </message>
    <message>
        <source>Adds a page with START, REPLAY, STOP and a legend of all areas, to be cut out; a book needs START somewhere</source>
        <translation>Ajoute une page avec START, REPLAY, STOP et une légende de toutes les zones, à découper ; un livre a besoin de START quelque part</translation>
    </message>
    <message>
        <source>Symbols and legend</source>
        <translation>Symboles et légende</translation>
    </message>
    <message>
        <source>Symbols and legend:</source>
        <translation>Symboles et légende :</translation>
    </message>
    <message>
        <source>The PDF file that is written; one of this name that is there is replaced</source>
        <translation>Le fichier PDF qui est écrit ; s’il y en a un de ce nom, il est remplacé</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Chooses another file</source>
        <translation>Choisit un autre fichier</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier :</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Sheets of paper: %1</source>
        <translation>Feuilles de papier : %1</translation>
    </message>
    <message>
        <source>Pages are numbers from 0 to %1, such as 0,2-3.</source>
        <translation>Les pages sont des nombres de 0 à %1, par exemple 0,2-3.</translation>
    </message>
    <message>
        <source>The DPI are a number from %1 to %2.</source>
        <translation>Les DPI sont un nombre de %1 à %2.</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>Le fichier n&apos;a pas de nom.</translation>
    </message>
</context>
<context>
    <name>PickTool</name>
    <message>
        <source>An area needs at least three corners.</source>
        <translation>Une zone a besoin d’au moins trois coins.</translation>
    </message>
    <message>
        <source>Corner %1 of %2: %3 % from the left, %4 % from the top</source>
        <translation>Coin %1 sur %2 : %3 % depuis la gauche, %4 % depuis le haut</translation>
    </message>
</context>
<context>
    <name>PolyEditorWidget</name>
    <message>
        <source>Here speaks %1; behind it lies %2.</source>
        <translation>Ici parle %1 ; derrière se trouve %2.</translation>
    </message>
    <message>
        <source>Ctrl+Down and Ctrl+Up go through the areas, Ctrl+Right and Ctrl+Left through the corners of the selected one; the arrow keys move them.</source>
        <translation>Ctrl+Bas et Ctrl+Haut parcourent les zones, Ctrl+Droite et Ctrl+Gauche les coins de la zone choisie ; les flèches les déplacent.</translation>
    </message>
</context>
<context>
    <name>PrinterBox</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Garder...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Make profile...</source>
        <translation>Créer un profil...</translation>
    </message>
    <message>
        <source>No black in the picture</source>
        <translation>Pas de noir dans l&apos;image</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profil :</translation>
    </message>
    <message>
        <source>Best field:</source>
        <translation>Meilleur champ :</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI :</translation>
    </message>
    <message>
        <source>Edge of a dot:</source>
        <translation>Côté d&apos;un point :</translation>
    </message>
    <message>
        <source>Lighten the picture:</source>
        <translation>Éclaircir l&apos;image :</translation>
    </message>
    <message>
        <source>Profile of a printer</source>
        <translation>Profil d&apos;une imprimante</translation>
    </message>
    <message>
        <source>The settings that were kept for a printer: choose the one that the book is printed on</source>
        <translation>Les réglages gardés pour une imprimante : choisissez celle qui imprime le livre</translation>
    </message>
    <message>
        <source>Keeps the settings below under a name, so that this printer has them the next time, too</source>
        <translation>Garde les réglages ci-dessous sous un nom, pour que cette imprimante les ait aussi la prochaine fois</translation>
    </message>
    <message>
        <source>Forgets the chosen profile</source>
        <translation>Oublie le profil choisi</translation>
    </message>
    <message>
        <source>Best field of the printer&apos;s test page</source>
        <translation>Meilleur champ de la page de test de l&apos;imprimante</translation>
    </message>
    <message>
        <source>The field of the printer&apos;s test page that the pen reads best, such as B3</source>
        <translation>Le champ de la page de test de l&apos;imprimante que le stylo lit le mieux, par exemple B3</translation>
    </message>
    <message>
        <source>Makes a profile of what that field says about the printer</source>
        <translation>Fait un profil de ce que ce champ dit de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Resolution of the printer</source>
        <translation>Résolution de l&apos;imprimante</translation>
    </message>
    <message>
        <source>The dots per inch of the printer, when they are not those of the pictures</source>
        <translation>Les points par pouce de l&apos;imprimante, s&apos;ils ne sont pas ceux des images</translation>
    </message>
    <message>
        <source>that of each picture</source>
        <translation>celle de chaque image</translation>
    </message>
    <message>
        <source>Edge of a dot in pixels of the printer</source>
        <translation>Côté d&apos;un point en pixels de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Smaller dots for a printer that prints them too fat</source>
        <translation>Des points plus petits pour une imprimante qui les grossit</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>normal</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Mixes the picture&apos;s black of cyan, magenta and yellow, which the pen does not see</source>
        <translation>Mélange le noir de l&apos;image de cyan, magenta et jaune, que le stylo ne voit pas</translation>
    </message>
    <message>
        <source>How much lighter the picture is, in percent</source>
        <translation>De combien l&apos;image est plus claire, en pour cent</translation>
    </message>
    <message>
        <source>Takes ink out of the picture, so that the pen finds the dots</source>
        <translation>Retire de l&apos;encre de l&apos;image pour que le stylo trouve les points</translation>
    </message>
    <message>
        <source>not</source>
        <translation>pas du tout</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>The profile %1 is gone.</source>
        <translation>Le profil %1 est supprimé.</translation>
    </message>
    <message>
        <source>The test page has no field %1.</source>
        <translation>La page de test n&apos;a pas de champ %1.</translation>
    </message>
    <message>
        <source>Printer %1</source>
        <translation>Imprimante %1</translation>
    </message>
    <message>
        <source>Name of the printer:</source>
        <translation>Nom de l&apos;imprimante :</translation>
    </message>
    <message>
        <source>The profile %1 is kept.</source>
        <translation>Le profil %1 est gardé.</translation>
    </message>
</context>
<context>
    <name>PrinterTestDialog</name>
    <message>
        <source>Printer&apos;s test page</source>
        <translation>Page de test de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Makes a page and a game that find out how your printer prints dots. Print the page, copy the game onto the pen, touch the fields, and tell the best one&apos;s name where you make a PDF.</source>
        <translation>Crée une page et un jeu qui trouvent comment votre imprimante imprime les points. Imprimez la page, copiez le jeu sur le stylo, touchez les champs et donnez le nom du meilleur là où vous créez un PDF.</translation>
    </message>
    <message>
        <source>%1 DPI</source>
        <translation>%1 DPI</translation>
    </message>
    <message>
        <source>Tries this resolution: tick those that your printer has, and the pen tells which one is best</source>
        <translation>Essaie cette résolution : cochez celles de votre imprimante, et le stylo dit laquelle est la meilleure</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The folder in which the page to be printed and the game for the pen are written</source>
        <translation>Le dossier où sont écrits la page à imprimer et le jeu pour le stylo</translation>
    </message>
    <message>
        <source>Chooses another folder</source>
        <translation>Choisit un autre dossier</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI :</translation>
    </message>
    <message>
        <source>Language of the pen:</source>
        <translation>Langue du stylo :</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Language of the pen</source>
        <translation>Langue du stylo</translation>
    </message>
    <message>
        <source>The language in which the pen names the fields</source>
        <translation>La langue dans laquelle le stylo nomme les champs</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language of this translation: en, de, fr or nl.</extracomment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Conseil</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>No problems any more</source>
        <translation>Plus aucun problème</translation>
    </message>
    <message>
        <source>New problem. %1</source>
        <translation>Nouveau problème. %1</translation>
    </message>
    <message>
        <source>%1 new problems. %2</source>
        <translation>%1 nouveaux problèmes. %2</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>page %1 : %2</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Quick fix</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Why?</source>
        <translation>Pourquoi ?</translation>
    </message>
    <message>
        <source>Opens the manual at what is told about this (F1)</source>
        <translation>Ouvre le manuel à ce qui est dit à ce sujet (F1)</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why</source>
        <translation>Entrée mène à l&apos;endroit, Alt+Entrée corrige ce qui peut l&apos;être, F1 dit pourquoi</translation>
    </message>
    <message>
        <source>Shows or folds the list of problems. F8 goes to the next one in the script, Shift+F8 to the one before.</source>
        <translation>Affiche ou replie la liste des problèmes. F8 va au suivant dans le script, Maj+F8 au précédent.</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Aucun problème</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 problème</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 problèmes</translation>
    </message>
    <message>
        <source>A click goes to the place (Enter); further clicks put right what can be put right (Alt+Enter) and tell why (F1)</source>
        <translation>Un clic va à l’endroit (Entrée) ; d’autres corrigent ce qui peut l’être (Alt+Entrée) et disent pourquoi (F1)</translation>
    </message>
</context>
<context>
    <name>ProblemsGuide</name>
    <message>
        <source>Alt+Enter: %1</source>
        <translation>Alt+Entrée : %1</translation>
    </message>
    <message>
        <source>There is no quick fix here</source>
        <translation>Il n&apos;y a pas de correction ici</translation>
    </message>
    <message>
        <source>The book has changed meanwhile. Try again.</source>
        <translation>Le livre a changé entre-temps. Essayez encore une fois.</translation>
    </message>
</context>
<context>
    <name>ProductNameNote</name>
    <message>
        <source>Not possible in the name: %1</source>
        <translation>Impossible dans le nom : %1</translation>
    </message>
    <message>
        <source>%1 characters, at most %2</source>
        <translation>%1 caractères, %2 au plus</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <source>Nothing is heard: no loudspeaker can be used (%1)</source>
        <translation>On n’entend rien : aucun haut-parleur n’est utilisable (%1)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 ne peut pas être ouvert : %2</translation>
    </message>
    <message>
        <source>%1 cannot be played: it has more than two channels</source>
        <translation>%1 ne peut pas être lu : il a plus de deux canaux</translation>
    </message>
    <message>
        <source>%1 is damaged and cannot be played to its end</source>
        <translation>%1 est endommagé et ne peut pas être lu jusqu’à la fin</translation>
    </message>
    <message>
        <source>%1 cannot be played: it is damaged, or no sound in one of the formats WAV, Ogg, FLAC and MP3</source>
        <translation>%1 ne peut pas être lu : il est endommagé, ou n’est pas un son dans un des formats WAV, Ogg, FLAC et MP3</translation>
    </message>
</context>
<context>
    <name>Microphone</name>
    <message>
        <source>No microphone can be used (%1)</source>
        <translation>Aucun microphone n&apos;est utilisable (%1)</translation>
    </message>
    <message>
        <source>There is no microphone: plug one in, or allow programs to hear it</source>
        <translation>Il n&apos;y a pas de microphone : branchez-en un, ou autorisez les programmes à l&apos;écouter</translation>
    </message>
    <message>
        <source>The microphone cannot be used (%1)</source>
        <translation>Le microphone n&apos;est pas utilisable (%1)</translation>
    </message>
    <message>
        <source>The microphone is gone: is it still plugged in?</source>
        <translation>Le microphone a disparu : est-il encore branché ?</translation>
    </message>
    <message>
        <source>Nothing comes from the microphone any more</source>
        <translation>Plus rien ne vient du microphone</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>it is a link to a file in another folder</source>
        <translation>c’est un lien vers un fichier d’un autre dossier</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 ne peut pas être ouvert : %2</translation>
    </message>
    <message>
        <source>%1 is longer than an hour</source>
        <translation>%1 dure plus d&apos;une heure</translation>
    </message>
    <message>
        <source>There is no sound in %1</source>
        <translation>Il n&apos;y a pas de son dans %1</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>the program ffmpeg, which would read it, is not there</source>
        <translation>le programme ffmpeg, qui le lirait, n&apos;est pas là</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>the program ffmpeg was stopped</source>
        <translation>le programme ffmpeg a été arrêté</translation>
    </message>
    <message>
        <source>the program ffmpeg ended with status %1</source>
        <translation>le programme ffmpeg s&apos;est terminé avec le statut %1</translation>
    </message>
    <message>
        <source>The original of %1 cannot be kept: %2</source>
        <translation>L&apos;original de %1 ne peut pas être conservé : %2</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>silencieux</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>%1: %2, before %3</source>
        <translation>%1 : %2, avant %3</translation>
    </message>
    <message>
        <source>%1: %2, not changed</source>
        <translation>%1 : %2, inchangé</translation>
    </message>
    <message>
        <source>Nothing is recorded for %1</source>
        <translation>Rien n&apos;est enregistré pour %1</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level of the microphone</source>
        <translation>Niveau du microphone</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Too loud</source>
        <translation>Trop fort</translation>
    </message>
    <message>
        <source>Nothing is heard</source>
        <translation>Rien n&apos;est entendu</translation>
    </message>
</context>
<context>
    <name>RecordCard</name>
    <message>
        <source>Text to read aloud</source>
        <translation>Texte à lire à voix haute</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>The microphone that is recorded from; the level below shows whether it hears you</source>
        <translation>Le micro qui enregistre ; le niveau au-dessous montre s’il vous entend</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Microphone habituel</translation>
    </message>
    <message>
        <source>Count &amp;in</source>
        <translation>&amp;Décompte</translation>
    </message>
    <message>
        <source>Counts 3, 2, 1 before a recording begins, so that you can take a breath</source>
        <translation>Compte 3, 2, 1 avant un enregistrement, le temps de respirer</translation>
    </message>
    <message>
        <source>Begins and ends a recording (Space)</source>
        <translation>Commence et termine un enregistrement (Espace)</translation>
    </message>
    <message>
        <source>&amp;Listen</source>
        <translation>É&amp;couter</translation>
    </message>
    <message>
        <source>Plays it as the pen will (Ctrl+L)</source>
        <translation>Le joue comme le fera le stylo (Ctrl+L)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>Takes back the last change (Ctrl+Z)</source>
        <translation>Annule la dernière modification (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Makes it again (Ctrl+Shift+Z)</source>
        <translation>La refait (Ctrl+Maj+Z)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>The text before this one (Page Up)</source>
        <translation>Le texte précédent (Page préc.)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>&amp;Passer</translation>
    </message>
    <message>
        <source>The text after this one (Page Down)</source>
        <translation>Le texte suivant (Page suiv.)</translation>
    </message>
    <message>
        <source>Keep, &amp;next</source>
        <translation>Garder, &amp;suivant</translation>
    </message>
    <message>
        <source>Keeps the recording and goes to the next text that is missing (Enter)</source>
        <translation>Garde l&apos;enregistrement et passe au prochain texte manquant (Entrée)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Ends recording (Escape)</source>
        <translation>Termine l&apos;enregistrement (Échap)</translation>
    </message>
    <message>
        <source>&amp;Microphone:</source>
        <translation>&amp;Microphone :</translation>
    </message>
    <message>
        <source>Looking for the microphone ...</source>
        <translation>Recherche du microphone ...</translation>
    </message>
    <message>
        <source>The recording ended by itself: it cannot be longer than ten minutes</source>
        <translation>L&apos;enregistrement s&apos;est terminé de lui-même : il ne peut pas dépasser dix minutes</translation>
    </message>
    <message>
        <source>Not recorded</source>
        <translation>Pas enregistré</translation>
    </message>
    <message>
        <source>Nothing was heard: is the microphone muted?</source>
        <translation>Rien n&apos;a été entendu : le microphone est-il coupé ?</translation>
    </message>
    <message>
        <source>It was too loud and is distorted: speak more softly, or from farther away</source>
        <translation>C&apos;était trop fort et le son est saturé : parlez moins fort, ou de plus loin</translation>
    </message>
    <message>
        <source>Recorded: %1 s</source>
        <translation>Enregistré : %1 s</translation>
    </message>
    <message>
        <source>All texts are recorded</source>
        <translation>Tous les textes sont enregistrés</translation>
    </message>
    <message>
        <source>Nothing was heard, so there is nothing to keep</source>
        <translation>Rien n&apos;a été entendu, il n&apos;y a donc rien à garder</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>Enregistrement du fichier ...</translation>
    </message>
    <message>
        <source>This recording is not kept yet. Keep it?</source>
        <translation>Cet enregistrement n&apos;est pas encore gardé. Le garder ?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>&amp;Throw away</source>
        <translation>&amp;Jeter</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>Il ne peut pas être joué : %1</translation>
    </message>
    <message>
        <source>Text %1 of %2, %3 missing</source>
        <translation>Texte %1 sur %2, %3 manquent</translation>
    </message>
    <message>
        <source>&amp;Stop (Space)</source>
        <translation>&amp;Arrêter (Espace)</translation>
    </message>
    <message>
        <source>&amp;Record (Space)</source>
        <translation>&amp;Enregistrer (Espace)</translation>
    </message>
    <message>
        <source>Stop &amp;listening</source>
        <translation>Ne plus é&amp;couter</translation>
    </message>
    <message>
        <source>Keep, &amp;next (Enter)</source>
        <translation>Garder, &amp;suivant (Entrée)</translation>
    </message>
    <message>
        <source>&amp;Next (Enter)</source>
        <translation>&amp;Suivant (Entrée)</translation>
    </message>
</context>
<context>
    <name>WaveHandle</name>
    <message>
        <source>Beginning of what is kept, in milliseconds</source>
        <translation>Début de ce qui est gardé, en millisecondes</translation>
    </message>
    <message>
        <source>End of what is kept, in milliseconds</source>
        <translation>Fin de ce qui est gardé, en millisecondes</translation>
    </message>
    <message>
        <source>Drag this to where the voice begins, or move it with the arrow keys</source>
        <translation>Faites glisser ceci là où la voix commence, ou déplacez-le avec les flèches</translation>
    </message>
    <message>
        <source>Drag this to where the voice ends, or move it with the arrow keys</source>
        <translation>Faites glisser ceci là où la voix se termine, ou déplacez-le avec les flèches</translation>
    </message>
</context>
<context>
    <name>WaveView</name>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Nothing is recorded yet</source>
        <translation>Rien n&apos;est encore enregistré</translation>
    </message>
    <message>
        <source>%1 of %2 s are kept</source>
        <translation>%1 s sur %2 sont gardées</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Begin with a book</source>
        <translation>Commencer un livre</translation>
    </message>
    <message>
        <source>New book...</source>
        <translation>Nouveau livre...</translation>
    </message>
    <message>
        <source>Asks for name, number, folder and pictures, and makes the book</source>
        <translation>Demande le nom, le numéro, le dossier et les images, puis crée le livre</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Opens a project that is there</source>
        <translation>Ouvre un projet qui existe</translation>
    </message>
    <message>
        <source>Sample books, to try out and to change</source>
        <translation>Livres d&apos;exemple, à essayer et à modifier</translation>
    </message>
    <message>
        <source>Last books</source>
        <translation>Derniers livres</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Takes the book off this list; its files stay (Delete)</source>
        <translation>Retire le livre de cette liste ; ses fichiers restent (Suppr)</translation>
    </message>
    <message>
        <source>Copies this sample book to a folder of yours, and opens the copy</source>
        <translation>Copie ce livre d&apos;exemple dans un de vos dossiers et ouvre la copie</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>%1 in %2 (not there any more)</source>
        <translation>%1 dans %2 (n&apos;est plus là)</translation>
    </message>
    <message>
        <source>%1 is not there any more. It can be removed from the list.</source>
        <translation>%1 n&apos;est plus là. Le livre peut être retiré de la liste.</translation>
    </message>
    <message>
        <source>%1 is off the list.</source>
        <translation>%1 n&apos;est plus dans la liste.</translation>
    </message>
</context>
<context>
    <name>Conversation</name>
    <message>
        <source>What was said</source>
        <translation>Ce qui a été dit</translation>
    </message>
    <message>
        <source>Tapped</source>
        <translation>Touché</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Dit</translation>
    </message>
    <message>
        <source>Waited</source>
        <translation>Attente</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Chosen by chance from:</source>
        <translation>Choisi au hasard parmi :</translation>
    </message>
    <message>
        <source>There is no script for this area</source>
        <translation>Il n’y a pas de script pour cette zone</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>A value ran over 65535 and went on from 0</source>
        <translation>Une valeur a dépassé 65535 et a repris à 0</translation>
    </message>
    <message>
        <source>A value fell below 0 and went on from 65535</source>
        <translation>Une valeur est passée sous 0 et a repris à 65535</translation>
    </message>
    <message>
        <source>The condition was %1, neither 0 nor 1, so no branch was run</source>
        <translation>La condition valait %1, ni 0 ni 1 : aucune branche n’a été exécutée</translation>
    </message>
    <message>
        <source>There was no end after %1 steps</source>
        <translation>Pas de fin après %1 pas</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, %2 steps</source>
        <translation>%1, %2 pas</translation>
    </message>
    <message>
        <source>The reader waits long before the first sound: %1 steps</source>
        <translation>Le lecteur attend longtemps avant le premier son : %1 pas</translation>
    </message>
    <message>
        <source>Until the first sound: %1 steps</source>
        <translation>Avant le premier son : %1 pas</translation>
    </message>
    <message>
        <source>What was tapped and what was heard, the latest at the end</source>
        <translation>Ce qui a été touché et ce qui a été entendu, le plus récent à la fin</translation>
    </message>
</context>
<context>
    <name>PageWindow</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Page à toucher</translation>
    </message>
</context>
<context>
    <name>ReaderPage</name>
    <message>
        <source>Page to be tapped</source>
        <translation>Page à toucher</translation>
    </message>
    <message>
        <source>The arrow keys go from area to area, Enter taps, Page Up and Page Down turn the pages.</source>
        <translation>Les flèches vont de zone en zone, Entrée touche, Page précédente et Page suivante tournent les pages.</translation>
    </message>
</context>
<context>
    <name>ScriptView</name>
    <message>
        <source>A click sets a breakpoint, or takes it away (F9)</source>
        <translation>Un clic pose un point d’arrêt ou l’enlève (F9)</translation>
    </message>
    <message>
        <source>The script that runs</source>
        <translation>Le script en cours</translation>
    </message>
    <message>
        <source>The script that runs, with the line that is next; a double click goes to the line in the tab Script, to change it</source>
        <translation>Le script qui tourne, avec la ligne suivante ; un double clic va à la ligne dans l’onglet Script, pour la changer</translation>
    </message>
</context>
<context>
    <name>TriedBook</name>
    <message>
        <source>A text is too long for the speech program and is only shown.</source>
        <translation>Un texte est trop long pour le programme de parole et n’est qu’affiché.</translation>
    </message>
    <message>
        <source>The speech program is not there: texts without an audio file are only shown.</source>
        <translation>Le programme de parole manque : les textes sans fichier audio ne sont qu’affichés.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown.</source>
        <translation>Le programme de parole n’a pas pu dire un texte, qui n’est qu’affiché.</translation>
    </message>
    <message>
        <source>The speech program could not speak a text, which is only shown: %1</source>
        <translation>Le programme de parole n’a pas pu dire un texte, qui n’est qu’affiché : %1</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now. Line %1: %2</source>
        <translation>Le livre ne peut pas être essayé ainsi. Ligne %1 : %2</translation>
    </message>
    <message>
        <source>The book cannot be tried as it is now: %1</source>
        <translation>Le livre ne peut pas être essayé ainsi : %1</translation>
    </message>
</context>
<context>
    <name>SpeechModel</name>
    <message>
        <source>missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>spoken</source>
        <translation>lu</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>périmé</translation>
    </message>
    <message>
        <source>impossible</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>too long a name</source>
        <translation>nom trop long</translation>
    </message>
    <message>
        <source>too long a text</source>
        <translation>texte trop long</translation>
    </message>
    <message>
        <source>name of line %1</source>
        <translation>nom de la ligne %1</translation>
    </message>
    <message>
        <source>welcome</source>
        <translation>accueil</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1, line %2: %3, %4</source>
        <translation>%1, ligne %2 : %3, %4</translation>
    </message>
    <message>
        <source>%1, welcome: %2, %3</source>
        <translation>%1, accueil : %2, %3</translation>
    </message>
    <message>
        <source>Goes to the line in the script</source>
        <translation>Va à la ligne du script</translation>
    </message>
    <message>
        <source>Goes to the name of the product</source>
        <translation>Va au nom du produit</translation>
    </message>
    <message>
        <source>Plays this text, or stops it</source>
        <translation>Lit ce texte ou l&apos;arrête</translation>
    </message>
    <message>
        <source>There is no audio file yet; the next build speaks the text</source>
        <translation>Il n&apos;y a pas encore de fichier audio ; la prochaine génération lit le texte</translation>
    </message>
    <message>
        <source>The audio file was spoken by the speech program</source>
        <translation>Le fichier audio a été lu par le programme de synthèse vocale</translation>
    </message>
    <message>
        <source>The audio file is your own; a build leaves it as it is</source>
        <translation>Le fichier audio est le vôtre ; la génération le laisse tel quel</translation>
    </message>
    <message>
        <source>The text or its voice has changed since it was spoken; the next build speaks it again</source>
        <translation>Le texte ou sa voix a changé depuis qu&apos;il a été lu ; la prochaine génération le relit</translation>
    </message>
    <message>
        <source>The text is too long for the name of an audio file; say it in several parts</source>
        <translation>Le texte est trop long pour le nom d&apos;un fichier audio ; dites-le en plusieurs parties</translation>
    </message>
    <message>
        <source>The text is too long for the speech program; it can be recorded</source>
        <translation>Le texte est trop long pour le programme de synthèse vocale ; il peut être enregistré</translation>
    </message>
    <message>
        <source>The pen says the text of line %1 here: both have one audio name, in which all but letters and digits is the same</source>
        <translation>Le stylo dit ici le texte de la ligne %1 : tous deux ont le même nom audio, dans lequel tout se confond sauf lettres et chiffres</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>SpeechTab</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search in the texts</source>
        <translation>Rechercher dans les textes</translation>
    </message>
    <message>
        <source>Shows only texts that hold these words, to find one among many; empty shows all</source>
        <translation>Ne montre que les textes qui contiennent ces mots, pour en trouver un parmi beaucoup ; vide, tous</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Shows only texts of this state, such as those that are missing still</source>
        <translation>Ne montre que les textes dans cet état, par exemple ceux qui manquent encore</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>Tous les états</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Shows only texts of this voice, such as those that one person records</source>
        <translation>Ne montre que les textes de cette voix, par exemple ceux qu’une personne enregistre</translation>
    </message>
    <message>
        <source>All voices</source>
        <translation>Toutes les voix</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ends what is being made; what is done stays</source>
        <translation>Arrête le travail en cours ; ce qui est fait reste</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>Plays the selected texts, one after the other, or stops</source>
        <translation>Lit les textes sélectionnés l&apos;un après l&apos;autre, ou arrête</translation>
    </message>
    <message>
        <source>&amp;Speak</source>
        <translation>&amp;Synthétiser</translation>
    </message>
    <message>
        <source>Has the selected texts spoken that are missing or out of date; without a selection all of them</source>
        <translation>Fait lire les textes sélectionnés qui manquent ou sont périmés ; sans sélection, tous</translation>
    </message>
    <message>
        <source>Re&amp;cord...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>Records texts with the microphone, one after the other, beginning with the selected one</source>
        <translation>Enregistre des textes au micro, l’un après l’autre, en commençant par celui qui est choisi</translation>
    </message>
    <message>
        <source>&amp;Use file...</source>
        <translation>&amp;Utiliser un fichier...</translation>
    </message>
    <message>
        <source>Takes a sound file for the selected text; one can also be dropped on a row</source>
        <translation>Prend un fichier son pour le texte sélectionné ; on peut aussi le déposer sur une ligne</translation>
    </message>
    <message>
        <source>Take &amp;back</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>Puts the selected recordings into the trash, so that the texts are spoken again</source>
        <translation>Met les enregistrements sélectionnés à la corbeille, pour que les textes soient de nouveau lus</translation>
    </message>
    <message>
        <source>&amp;Even out</source>
        <translation>&amp;Harmoniser</translation>
    </message>
    <message>
        <source>Makes the selected texts equally loud; without a selection all</source>
        <translation>Met les textes sélectionnés au même volume ; sans sélection, tous</translation>
    </message>
    <message>
        <source>Try &amp;voices...</source>
        <translation>Essayer les &amp;voix...</translation>
    </message>
    <message>
        <source>Lets you hear one sentence in many voices, and writes the one that you like into the script</source>
        <translation>Fait entendre une phrase dans beaucoup de voix, et écrit celle qui plaît dans le script</translation>
    </message>
    <message>
        <source>Save the project first: its audio files lie in a folder beside it.</source>
        <translation>Enregistrez d&apos;abord le projet : ses fichiers audio sont dans un dossier à côté de lui.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 texte</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 textes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>This text has no audio file yet.</source>
        <translation>Ce texte n&apos;a pas encore de fichier audio.</translation>
    </message>
    <message>
        <source>Wait until what is being made is done.</source>
        <translation>Attendez que le travail en cours soit terminé.</translation>
    </message>
    <message>
        <source>Speaking...</source>
        <translation>Lecture...</translation>
    </message>
    <message>
        <source>Making the texts equally loud...</source>
        <translation>Mise au même volume...</translation>
    </message>
    <message>
        <source>Use file</source>
        <translation>Utiliser un fichier</translation>
    </message>
    <message>
        <source>Sound files</source>
        <translation>Fichiers son</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>This text can have no file: %1.</source>
        <translation>Ce texte ne peut pas avoir de fichier : %1.</translation>
    </message>
    <message>
        <source>Taking the file...</source>
        <translation>Reprise du fichier...</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 reste : le fichier ne peut pas être mis à la corbeille.</translation>
    </message>
    <message>
        <source>1 recording is in the trash.</source>
        <translation>1 enregistrement est dans la corbeille.</translation>
    </message>
    <message>
        <source>%1 recordings are in the trash.</source>
        <translation>%1 enregistrements sont dans la corbeille.</translation>
    </message>
    <message>
        <source>&amp;Import folder...</source>
        <translation>&amp;Importer un dossier...</translation>
    </message>
    <message>
        <source>Takes recordings from a folder; one can also be dropped on the table</source>
        <translation>Prend les enregistrements d&apos;un dossier ; on peut aussi le déposer sur le tableau</translation>
    </message>
    <message>
        <source>Prin&amp;t sheet...</source>
        <translation>Impri&amp;mer la feuille...</translation>
    </message>
    <message>
        <source>Makes a PDF to be printed, from which somebody reads the selected texts; without a selection all</source>
        <translation>Crée un PDF à imprimer, pour lire les textes sélectionnés ; sans sélection tous</translation>
    </message>
    <message>
        <source>Save s&amp;heet...</source>
        <translation>Enregistrer la &amp;feuille...</translation>
    </message>
    <message>
        <source>Saves the sheet to read the selected texts from as a text; without a selection all</source>
        <translation>Enregistre la feuille de lecture des textes sélectionnés comme fichier texte ; sans sélection tous</translation>
    </message>
    <message>
        <source>Ti&amp;dy...</source>
        <translation>&amp;Ranger...</translation>
    </message>
    <message>
        <source>Lists the audio files that no text uses, and moves them to the trash</source>
        <translation>Liste les fichiers audio qu&apos;aucun texte n&apos;utilise, et les met à la corbeille</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importer un dossier</translation>
    </message>
    <message>
        <source>%1 is the audio folder of the book itself.</source>
        <translation>%1 est le dossier audio du livre lui-même.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read.</source>
        <translation>Le dossier %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>There are no files in %1.</source>
        <translation>Il n&apos;y a pas de fichiers dans %1.</translation>
    </message>
    <message>
        <source>Print sheet</source>
        <translation>Imprimer la feuille</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Fichiers PDF</translation>
    </message>
    <message>
        <source>Save sheet</source>
        <translation>Enregistrer la feuille</translation>
    </message>
    <message>
        <source>Text files</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>reading sheet</source>
        <translation>feuille de lecture</translation>
    </message>
    <message>
        <source>Writing the sheet...</source>
        <translation>Écriture de la feuille...</translation>
    </message>
    <message>
        <source>The script has mistakes, so it is not known which audio files it uses. Correct them first.</source>
        <translation>Le script a des erreurs, et l&apos;on ne sait donc pas quels fichiers audio il utilise. Corrigez-les d&apos;abord.</translation>
    </message>
    <message>
        <source>All audio files are used by texts.</source>
        <translation>Tous les fichiers audio sont utilisés par des textes.</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>Mise à la corbeille...</translation>
    </message>
</context>
<context>
    <name>SpeechView</name>
    <message>
        <source>Texts of the book</source>
        <translation>Textes du livre</translation>
    </message>
    <message>
        <source>Space plays a text, Enter goes to its line in the script</source>
        <translation>Espace lit un texte, Entrée va à sa ligne dans le script</translation>
    </message>
    <message>
        <source>Every text of the book. A click on the sign plays it (Space), one on the line goes there (Enter)</source>
        <translation>Chaque texte du livre. Un clic sur le signe le joue (Espace), un clic sur la ligne y mène (Entrée)</translation>
    </message>
</context>
<context>
    <name>SpeechJobs</name>
    <message>
        <source>The text was spoken.</source>
        <translation>Le texte a été lu.</translation>
    </message>
    <message>
        <source>%1 texts were spoken.</source>
        <translation>%1 textes ont été lus.</translation>
    </message>
    <message>
        <source>Speaking was cancelled. &quot;Speak&quot; goes on where it stopped.</source>
        <translation>La lecture a été annulée. « Synthétiser » reprend là où elle s&apos;est arrêtée.</translation>
    </message>
    <message>
        <source>Not all texts could be spoken:</source>
        <translation>Tous les textes n&apos;ont pas pu être lus :</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>1 recording was taken.</source>
        <translation>1 enregistrement a été repris.</translation>
    </message>
    <message>
        <source>%1 recordings were taken.</source>
        <translation>%1 enregistrements ont été repris.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Le fichier %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>1 audio file was made as loud as all are to be.</source>
        <translation>1 fichier audio a été mis au volume commun.</translation>
    </message>
    <message>
        <source>%1 audio files were made as loud as all are to be.</source>
        <translation>%1 fichiers audio ont été mis au volume commun.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Le fichier %1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>The sheet is in the file %1.</source>
        <translation>La feuille est dans le fichier %1.</translation>
    </message>
    <message>
        <source>The numbers begin anew; earlier sheets do not fit any more.</source>
        <translation>Les numéros recommencent ; les feuilles précédentes ne conviennent plus.</translation>
    </message>
    <message>
        <source>%1 stays: it cannot be moved to the trash.</source>
        <translation>%1 reste : le fichier ne peut pas être mis à la corbeille.</translation>
    </message>
    <message>
        <source>1 file is in the trash.</source>
        <translation>1 fichier est dans la corbeille.</translation>
    </message>
    <message>
        <source>%1 files are in the trash.</source>
        <translation>%1 fichiers sont dans la corbeille.</translation>
    </message>
</context>
<context>
    <name>SheetPdf</name>
    <message>
        <source>Record each text as a file of its own whose name begins with the number: 7.wav</source>
        <translation>Enregistrez chaque texte dans un fichier à part dont le nom commence par le numéro : 7.wav</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Ce qu&apos;il devient</translation>
    </message>
    <message>
        <source>&amp;All that fit</source>
        <translation>&amp;Tous ceux qui conviennent</translation>
    </message>
    <message>
        <source>Import recordings</source>
        <translation>Importer des enregistrements</translation>
    </message>
    <message>
        <source>Files and the texts that they fit</source>
        <translation>Les fichiers et les textes auxquels ils conviennent</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>La barre d&apos;espace coche ou décoche les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick are taken</source>
        <translation>Coche ou décoche tout ; seuls les fichiers cochés sont repris</translation>
    </message>
    <message>
        <source>Taking the files...</source>
        <translation>Reprise des fichiers...</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>Takes the files with a tick as the recordings of their texts</source>
        <translation>Prend les fichiers cochés comme enregistrements de leurs textes</translation>
    </message>
    <message>
        <source>fits by its name</source>
        <translation>convient par son nom</translation>
    </message>
    <message>
        <source>fits by its text</source>
        <translation>convient par son texte</translation>
    </message>
    <message>
        <source>fits by its number</source>
        <translation>convient par son numéro</translation>
    </message>
    <message>
        <source>%1; takes the place of your recording, which is kept</source>
        <translation>%1 ; remplace votre enregistrement, qui est conservé</translation>
    </message>
    <message>
        <source>not taken: another file fits the text better</source>
        <translation>non repris : un autre fichier convient mieux au texte</translation>
    </message>
    <message>
        <source>not taken: other files fit the text as well</source>
        <translation>non repris : d&apos;autres fichiers conviennent aussi bien au texte</translation>
    </message>
    <message>
        <source>not taken: it fits several texts</source>
        <translation>non repris : il convient à plusieurs textes</translation>
    </message>
    <message>
        <source>not taken: it fits no text</source>
        <translation>non repris : il ne convient à aucun texte</translation>
    </message>
    <message>
        <source>%1 of %2 files become recordings. Take away the tick of what is to be left out.</source>
        <translation>%1 fichiers sur %2 deviennent des enregistrements. Décochez ce qui est à laisser de côté.</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>laissé de côté</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>non repris</translation>
    </message>
    <message>
        <source>taken: %1</source>
        <translation>repris : %1</translation>
    </message>
</context>
<context>
    <name>TidyDialog</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Tidy</source>
        <translation>Ranger</translation>
    </message>
    <message>
        <source>No text uses these audio files. Those with a tick go into the system&apos;s trash, from where you can take them back.</source>
        <translation>Aucun texte n&apos;utilise ces fichiers audio. Ceux qui sont cochés vont dans la corbeille du système, d&apos;où vous pouvez les reprendre.</translation>
    </message>
    <message>
        <source>Files that no text uses</source>
        <translation>Fichiers qu&apos;aucun texte n&apos;utilise</translation>
    </message>
    <message>
        <source>Space sets or takes away the tick of the selected files</source>
        <translation>La barre d&apos;espace coche ou décoche les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>spoken by the speech program</source>
        <translation>lu par le programme de synthèse</translation>
    </message>
    <message>
        <source>your own</source>
        <translation>le vôtre</translation>
    </message>
    <message>
        <source>&amp;All files</source>
        <translation>&amp;Tous les fichiers</translation>
    </message>
    <message>
        <source>Sets or takes away all ticks; only files with a tick go to the trash</source>
        <translation>Coche ou décoche tout ; seuls les fichiers cochés vont à la corbeille</translation>
    </message>
    <message>
        <source>&amp;Move to the trash</source>
        <translation>Mettre à la &amp;corbeille</translation>
    </message>
</context>
<context>
    <name>TryTab</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Encore</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Switches the book on, as START on paper does: plays the welcome</source>
        <translation>Met le livre en marche, comme START sur le papier : joue l’accueil</translation>
    </message>
    <message>
        <source>Plays once more what was played last, as REPLAY on paper does</source>
        <translation>Rejoue ce qui vient d’être joué, comme REPLAY sur le papier</translation>
    </message>
    <message>
        <source>Ends the sound that plays, as STOP on paper does</source>
        <translation>Arrête le son en cours, comme STOP sur le papier</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>À neuf</translation>
    </message>
    <message>
        <source>All as in the beginning: nothing was tapped, no variable changed</source>
        <translation>Tout comme au début : rien n’a été touché, aucune variable modifiée</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Goes on by one line of the script; the next tap begins like that</source>
        <translation>Avance d’une ligne du script ; le prochain toucher commence ainsi</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Goes on to the next breakpoint</source>
        <translation>Continue jusqu’au prochain point d’arrêt</translation>
    </message>
    <message>
        <source>Breakpoint</source>
        <translation>Point d’arrêt</translation>
    </message>
    <message>
        <source>Sets a breakpoint at the line of the caret, or takes it away</source>
        <translation>Pose un point d’arrêt à la ligne du curseur, ou l’enlève</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Shows the page in a window of its own, for a second screen</source>
        <translation>Montre la page dans une fenêtre à part, pour un second écran</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>The page that is shown; Page Up and Page Down turn the pages, too</source>
        <translation>La page montrée ; Page précédente et Page suivante tournent aussi les pages</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Begins anew and writes down what is tapped, as a book test; a second click keeps it</source>
        <translation>Recommence et note ce qui est touché, comme test du livre ; un second clic le garde</translation>
    </message>
    <message>
        <source>What is tapped now becomes a book test. Another click on &quot;Record&quot; keeps it.</source>
        <translation>Ce qui est touché maintenant devient un test du livre. Un autre clic sur « Enregistrer » le garde.</translation>
    </message>
    <message>
        <source>Nothing was tapped, so there is no book test.</source>
        <translation>Rien n’a été touché, il n’y a donc pas de test du livre.</translation>
    </message>
    <message>
        <source>The book test was not saved; it goes on. &quot;Fresh&quot; begins it anew.</source>
        <translation>Le test du livre n’a pas été enregistré ; il continue. « À neuf » le recommence.</translation>
    </message>
    <message>
        <source>What is shown beside the page</source>
        <translation>Ce qui est montré à côté de la page</translation>
    </message>
    <message>
        <source>Said</source>
        <translation>Dit</translation>
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
        <translation>Il n’y a pas de zone ici.</translation>
    </message>
    <message>
        <source>Line %1 comes next: F10 runs it, F5 goes on</source>
        <translation>La ligne %1 vient ensuite : F10 l’exécute, F5 continue</translation>
    </message>
    <message>
        <source>Something is heard</source>
        <translation>On entend quelque chose</translation>
    </message>
    <message>
        <source>The next tap goes line by line</source>
        <translation>Le prochain toucher va ligne par ligne</translation>
    </message>
    <message>
        <source>Tap an area of the page</source>
        <translation>Touchez une zone de la page</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>How loud the book is on this computer; the pen has keys of its own</source>
        <translation>Le volume du livre sur cet ordinateur ; le stylo a ses propres touches</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>The value that the script goes on with, from 0 to 65535</source>
        <translation>La valeur avec laquelle le script continue, de 0 à 65535</translation>
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
        <translation>Avant</translation>
    </message>
    <message>
        <source>What the script remembers. A click on a value changes it, to try what would come then</source>
        <translation>Ce que retient le script. Un clic sur une valeur la change, pour essayer ce qui viendrait alors</translation>
    </message>
</context>
<context>
    <name>TryVoicesDialog</name>
    <message>
        <source>The sentence is too long for the speech program.</source>
        <translation>La phrase est trop longue pour le programme de parole.</translation>
    </message>
    <message>
        <source>The speech program is not there.</source>
        <translation>Le programme de parole manque.</translation>
    </message>
    <message>
        <source>The speech program could not speak the sentence.</source>
        <translation>Le programme de parole n’a pas pu dire la phrase.</translation>
    </message>
    <message>
        <source>The sentence was not spoken: %1</source>
        <translation>La phrase n’a pas été dite : %1</translation>
    </message>
    <message>
        <source>Try voices</source>
        <translation>Essayer des voix</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>What all voices of this language say; write what your book will say</source>
        <translation>Ce que disent toutes les voix de cette langue ; écrivez ce que dira votre livre</translation>
    </message>
    <message>
        <source>Sentence</source>
        <translation>Phrase</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The language of the voices below those of the script, by age and sex</source>
        <translation>La langue des voix au-dessous de celles du script, par âge et par sexe</translation>
    </message>
    <message>
        <source>&amp;Sentence:</source>
        <translation>&amp;Phrase :</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>É&amp;couter</translation>
    </message>
    <message>
        <source>Lets the chosen voice say the sentence</source>
        <translation>Fait dire la phrase par la voix choisie</translation>
    </message>
    <message>
        <source>Play &amp;all</source>
        <translation>&amp;Tout écouter</translation>
    </message>
    <message>
        <source>Lets one voice after the other say the sentence</source>
        <translation>Fait dire la phrase par une voix après l’autre</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Ends the sound, also while one voice after the other speaks</source>
        <translation>Arrête le son, même pendant que les voix parlent l’une après l’autre</translation>
    </message>
    <message>
        <source>The name of the voice in the script, which stands behind say</source>
        <translation>Le nom de la voix dans le script, placé derrière say</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>&amp;Insert into the script</source>
        <translation>&amp;Insérer dans le script</translation>
    </message>
    <message>
        <source>Writes the statement below into the script, so that texts can be said by this voice</source>
        <translation>Écrit l’instruction ci-dessous dans le script, pour que des textes soient dits par cette voix</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages.</source>
        <translation>Le programme de parole ne dit pas ses langues.</translation>
    </message>
    <message>
        <source>The speech program does not tell its languages: %1</source>
        <translation>Le programme de parole ne dit pas ses langues : %1</translation>
    </message>
    <message>
        <source>%1 speaks.</source>
        <translation>%1 parle.</translation>
    </message>
    <message>
        <source>The script has this voice.</source>
        <translation>Le script a cette voix.</translation>
    </message>
    <message>
        <source>A name has small letters from a to z, and digits behind them.</source>
        <translation>Un nom a des minuscules de a à z, et des chiffres derrière.</translation>
    </message>
    <message>
        <source>The script has a voice of this name.</source>
        <translation>Le script a une voix de ce nom.</translation>
    </message>
    <message>
        <source>%1 takes a breath ...</source>
        <translation>%1 prend son souffle ...</translation>
    </message>
</context>
<context>
    <name>VoiceTable</name>
    <message>
        <source>girl</source>
        <translation>fille</translation>
    </message>
    <message>
        <source>boy</source>
        <translation>garcon</translation>
    </message>
    <message>
        <source>sister</source>
        <translation>soeur</translation>
    </message>
    <message>
        <source>brother</source>
        <translation>frere</translation>
    </message>
    <message>
        <source>mother</source>
        <translation>mere</translation>
    </message>
    <message>
        <source>father</source>
        <translation>pere</translation>
    </message>
    <message>
        <source>grandma</source>
        <translation>mamie</translation>
    </message>
    <message>
        <source>grandpa</source>
        <translation>papi</translation>
    </message>
    <message>
        <source>Girl</source>
        <translation>Fille</translation>
    </message>
    <message>
        <source>Boy</source>
        <translation>Garçon</translation>
    </message>
    <message>
        <source>Woman</source>
        <translation>Femme</translation>
    </message>
    <message>
        <source>Man</source>
        <translation>Homme</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Locuteur</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Voices of the script</source>
        <translation>Voix du script</translation>
    </message>
    <message>
        <source>Other voices</source>
        <translation>Autres voix</translation>
    </message>
</context>
<context>
    <name>SubNameNote</name>
    <message>
        <source>No area is selected, so this names none. Click one, then type its name.</source>
        <translation>Aucune zone n’est sélectionnée, ce nom n’en nomme donc aucune. Cliquez-en une, puis saisissez son nom.</translation>
    </message>
    <message>
        <source>An area needs a name. Type one.</source>
        <translation>Une zone a besoin d’un nom. Saisissez-en un.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand in a name. Leave it out.</source>
        <translation>« %1 » ne peut pas figurer dans un nom. Supprimez-le.</translation>
    </message>
    <message>
        <source>A name cannot begin with &quot;%1&quot;. Begin with a letter.</source>
        <translation>Un nom ne peut pas commencer par « %1 ». Commencez par une lettre.</translation>
    </message>
    <message>
        <source>The name would be taken for a number of dots. Begin with a letter.</source>
        <translation>Le nom serait pris pour un numéro de points. Commencez par une lettre.</translation>
    </message>
    <message>
        <source>&quot;asm&quot; with a number belongs to the compiler. Choose another name.</source>
        <translation>« asm » suivi d’un nombre appartient au compilateur. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name that begins with a digit. Begin with a letter.</source>
        <translation>Aucun « goto » ne peut mener à un nom qui commence par un chiffre. Commencez par une lettre.</translation>
    </message>
    <message>
        <source>No &quot;goto&quot; can lead to a name with &quot;%1&quot;. Take letters, digits and &quot;_&quot;.</source>
        <translation>Aucun « goto » ne peut mener à un nom qui contient « %1 ». Prenez des lettres, des chiffres et « _ ».</translation>
    </message>
</context>
<context>
    <name>RenameDialog</name>
    <message>
        <source>Rename everywhere</source>
        <translation>Renommer partout</translation>
    </message>
    <message>
        <source>&amp;New name of &quot;%1&quot;:</source>
        <translation>&amp;Nouveau nom de « %1 » :</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
</context>
<context>
    <name>RenameEverywhere</name>
    <message>
        <source>Rename &amp;everywhere...</source>
        <translation>Renommer &amp;partout…</translation>
    </message>
    <message>
        <source>Changes the name on all pages and in the script</source>
        <translation>Change le nom sur toutes les pages et dans le script</translation>
    </message>
    <message>
        <source>The script keeps the name &quot;%1&quot;: both names stand there now.</source>
        <translation>Le script garde le nom « %1 » : les deux noms y figurent maintenant.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>« %1 » s’appelle maintenant « %2 » partout.</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Endroits dans le script : %1</translation>
    </message>
    <message>
        <source>Areas: %1 (pages: %2)</source>
        <translation>Zones : %1 (pages : %2)</translation>
    </message>
    <message>
        <source>The script has a sub of this name already, and can have only one. Choose another name.</source>
        <translation>Le script a déjà un sub de ce nom et ne peut en avoir qu’un. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>This name is taken already.</source>
        <translation>Ce nom est déjà pris.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is taken already. The areas would share one number and one sub. Rename?</source>
        <translation>Le nom « %1 » est déjà pris. Les zones partageraient un numéro et un sub. Renommer ?</translation>
    </message>
    <message>
        <source>Rename everywhere</source>
        <translation>Renommer partout</translation>
    </message>
</context>
<context>
    <name>ScriptHelp</name>
    <message>
        <source>There is no name of a sub, variable or voice here.</source>
        <translation>Il n’y a ici aucun nom de sub, de variable ou de voix.</translation>
    </message>
    <message>
        <source>No area has the name &quot;%1&quot;.</source>
        <translation>Aucune zone ne porte le nom « %1 ».</translation>
    </message>
    <message>
        <source>There is no sub and no area &quot;%1&quot;.</source>
        <translation>Il n’y a ni sub ni zone « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is never set.</source>
        <translation>« %1 » ne reçoit jamais de valeur.</translation>
    </message>
    <message>
        <source>The voice &quot;%1&quot; is built in.</source>
        <translation>La voix « %1 » est intégrée.</translation>
    </message>
    <message>
        <source>Uses of &quot;%1&quot;</source>
        <translation>Utilisations de « %1 »</translation>
    </message>
    <message>
        <source>Subs</source>
        <translation>Subs</translation>
    </message>
    <message>
        <source>Places in the script: %1</source>
        <translation>Endroits dans le script : %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot; everywhere now.</source>
        <translation>« %1 » s’appelle maintenant « %2 » partout.</translation>
    </message>
    <message>
        <source>Variable %1, never set: always 0</source>
        <translation>Variable %1, jamais définie : toujours 0</translation>
    </message>
    <message>
        <source>Variable %1, set in lines %2</source>
        <translation>Variable %1, définie aux lignes %2</translation>
    </message>
    <message>
        <source>Voice %1, line %2</source>
        <translation>Voix %1, ligne %2</translation>
    </message>
    <message>
        <source>Voice %1, built in</source>
        <translation>Voix %1, intégrée</translation>
    </message>
</context>
<context>
    <name>KeywordToolTips</name>
    <message>
        <source>without it: %1</source>
        <translation>sans : %1</translation>
    </message>
</context>
<context>
    <name>ScriptLanguage</name>
    <message>
        <source>what the pen does when the area NAME is touched</source>
        <translation>ce que fait le stylo quand on touche la zone NAME</translation>
    </message>
    <message>
        <source>goes on with the sub NAME and does not come back</source>
        <translation>continue avec le sub NAME et ne revient pas</translation>
    </message>
    <message>
        <source>gives a variable a value</source>
        <translation>donne une valeur à une variable</translation>
    </message>
    <message>
        <source>does one or the other</source>
        <translation>fait l&apos;un ou l&apos;autre</translation>
    </message>
    <message>
        <source>chooses by the value of a variable</source>
        <translation>choisit selon la valeur d&apos;une variable</translation>
    </message>
    <message>
        <source>declares a voice</source>
        <translation>déclare une voix</translation>
    </message>
    <message>
        <source>speaks the text, or one of several</source>
        <translation>dit le texte, ou l&apos;un de plusieurs</translation>
    </message>
    <message>
        <source>the language: `en`, `de`, `es`, ...</source>
        <translation>la langue : `en`, `de`, `es`, ...</translation>
    </message>
    <message>
        <source>`m` or `f`</source>
        <translation>`m` ou `f`</translation>
    </message>
    <message>
        <source>1 to 99</source>
        <translation>1 à 99</translation>
    </message>
    <message>
        <source>a number; meant is 1 to 5, up to 99 is accepted</source>
        <translation>un nombre ; prévu de 1 à 5, accepté jusqu&apos;à 99</translation>
    </message>
</context>
<context>
    <name>JumpList</name>
    <message>
        <source>Type a part of it</source>
        <translation>Saisissez-en une partie</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
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
        <translation>Prenez des lettres, des chiffres et « _ », et commencez par une lettre.</translation>
    </message>
    <message>
        <source>Take small letters: a name with capitals is not found when it is read.</source>
        <translation>Prenez des minuscules : un nom avec des majuscules n’est pas retrouvé à la lecture.</translation>
    </message>
    <message>
        <source>Names that begin with &quot;_&quot; belong to the compiler.</source>
        <translation>Les noms qui commencent par « _ » appartiennent au compilateur.</translation>
    </message>
    <message>
        <source>This is a word of the language. Choose another name.</source>
        <translation>C’est un mot du langage. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>This name is taken already. Choose another name.</source>
        <translation>Ce nom est déjà pris. Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>CaretStatus</name>
    <message>
        <source>Help while writing</source>
        <translation>Aide à l’écriture</translation>
    </message>
    <message>
        <source>Switches on and off what comes by itself while you write the script: names, indentation, explanations, marks</source>
        <translation>Active et désactive ce qui vient tout seul pendant l’écriture du script : noms, retrait, explications, marques</translation>
    </message>
    <message>
        <source>&amp;Suggest names while typing</source>
        <translation>&amp;Suggérer des noms pendant la saisie</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>&amp;Indenter les nouvelles lignes</translation>
    </message>
    <message>
        <source>&amp;Explain words under the mouse</source>
        <translation>&amp;Expliquer les mots sous la souris</translation>
    </message>
    <message>
        <source>&amp;Mark problems in the text</source>
        <translation>&amp;Marquer les problèmes dans le texte</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>OVR</source>
        <translation>RFP</translation>
    </message>
    <message>
        <source>INS</source>
        <translation>INS</translation>
    </message>
    <message>
        <source>Typing replaces what stands there (Insert)</source>
        <translation>La saisie remplace ce qui s’y trouve (Inser)</translation>
    </message>
    <message>
        <source>Typing inserts (Insert)</source>
        <translation>La saisie insère (Inser)</translation>
    </message>
</context>
<context>
    <name>ScriptAreas</name>
    <message>
        <source>Area %1, number %2, page %3</source>
        <translation>Zone %1, numéro %2, page %3</translation>
    </message>
</context>
<context>
    <name>ChangedFileBar</name>
    <message>
        <source>Open the other</source>
        <translation>Ouvrir l’autre</translation>
    </message>
    <message>
        <source>Shows what the file holds now; your unsaved work is kept and offered</source>
        <translation>Montre ce que le fichier contient maintenant ; votre travail non enregistré est conservé et proposé</translation>
    </message>
    <message>
        <source>Another window or program has changed the project file since this window opened or saved it.</source>
        <translation>Une autre fenêtre ou un autre programme a modifié le fichier du projet depuis que cette fenêtre l’a ouvert ou enregistré.</translation>
    </message>
</context>
<context>
    <name>NumberBar</name>
    <message>
        <source>This book gets another number</source>
        <translation>Ce livre reçoit un autre numéro</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Both books keep their number</source>
        <translation>Les deux livres gardent leur numéro</translation>
    </message>
    <message>
        <source>The number %1 is also that of %2 in this folder: the books would use the same pictures.</source>
        <translation>Le numéro %1 est aussi celui de %2 dans ce dossier : les livres utiliseraient les mêmes images.</translation>
    </message>
    <message>
        <source>Take number %1</source>
        <translation>Prendre le numéro %1</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Unsaved work cannot be kept in %1. Save it soon.</source>
        <translation>Le travail non enregistré ne peut pas être conservé dans %1. Enregistrez-le bientôt.</translation>
    </message>
    <message>
        <source>That work is not there any more, or another window has it.</source>
        <translation>Ce travail n’est plus là, ou une autre fenêtre l’a pris.</translation>
    </message>
</context>
<context>
    <name>RecoveryBar</name>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Brings the unsaved work into the window; the file stays as it is</source>
        <translation>Ramène le travail non enregistré dans la fenêtre ; le fichier reste tel quel</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Throws the unsaved work away</source>
        <translation>Jette le travail non enregistré</translation>
    </message>
    <message>
        <source>The copy of the unsaved work of %1 is damaged and cannot be restored. It stays here: %2</source>
        <translation>La copie du travail non enregistré du %1 est endommagée et ne peut pas être restaurée. Elle reste ici : %2</translation>
    </message>
    <message>
        <source>There is work since %1 that was never saved.</source>
        <translation>Il y a du travail depuis le %1 qui n’a jamais été enregistré.</translation>
    </message>
    <message>
        <source>There is unsaved work since %1 on a project that is not there any more: %2</source>
        <translation>Il y a du travail non enregistré depuis le %1 sur un projet qui n’est plus là : %2</translation>
    </message>
    <message>
        <source>There is unsaved work on this project since %1.</source>
        <translation>Il y a du travail non enregistré sur ce projet depuis le %1.</translation>
    </message>
</context>
<context>
    <name>SettingsBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Cache cette ligne</translation>
    </message>
    <message>
        <source>How you like the window cannot be kept for the next start, since %1 cannot be written: the disk is full, or the folder is protected.</source>
        <translation>Vos réglages de la fenêtre ne peuvent pas être conservés jusqu’au prochain démarrage, car %1 ne peut pas être écrit : le disque est plein ou le dossier est protégé.</translation>
    </message>
</context>
<context>
    <name>PagePictures</name>
    <message>
        <source>The book has another number now. Save it before that.</source>
        <translation>Le livre a maintenant un autre numéro. Enregistrez-le d&apos;abord.</translation>
    </message>
    <message>
        <source>The folder cannot be written.</source>
        <translation>Impossible d&apos;écrire dans le dossier.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and saved that. Open the book again.</source>
        <translation>Une autre fenêtre a déplacé des pages de ce livre et les a enregistrées. Rouvrez le livre.</translation>
    </message>
    <message>
        <source>Another window has moved pages of this book and not saved that yet.</source>
        <translation>Une autre fenêtre a déplacé des pages de ce livre sans les enregistrer.</translation>
    </message>
    <message>
        <source>It is a link to a file outside of the project&apos;s folder.</source>
        <translation>C’est un lien vers un fichier hors du dossier du projet.</translation>
    </message>
    <message>
        <source>It is damaged. Put the pictures in order, then remove it.</source>
        <translation>Il est endommagé. Remettez les images en ordre, puis supprimez-le.</translation>
    </message>
</context>
<context>
    <name>AreaTools</name>
    <message>
        <source>Click an area to select it; drag it or its corners to change it</source>
        <translation>Cliquer sur une zone pour la sélectionner ; la tirer, ou ses coins, pour la modifier</translation>
    </message>
    <message>
        <source>A new area: click its corners one after the other</source>
        <translation>Une nouvelle zone : cliquer sur ses coins l&apos;un après l&apos;autre</translation>
    </message>
    <message>
        <source>%1. By keys: arrows, Space, Enter</source>
        <translation>%1. Au clavier : flèches, Espace, Entrée</translation>
    </message>
    <message>
        <source>Add rectangle</source>
        <translation>Ajouter un rectangle</translation>
    </message>
    <message>
        <source>A new area: drag a rectangle, with Shift a square</source>
        <translation>Une nouvelle zone : tracer un rectangle, avec Maj un carré</translation>
    </message>
    <message>
        <source>Add ellipse</source>
        <translation>Ajouter une ellipse</translation>
    </message>
    <message>
        <source>A new area: drag an ellipse, with Shift a circle</source>
        <translation>Une nouvelle zone : tracer une ellipse, avec Maj un cercle</translation>
    </message>
    <message>
        <source>Area of one colour</source>
        <translation>Zone d&apos;une couleur</translation>
    </message>
    <message>
        <source>A new area: click what has about the same colour</source>
        <translation>Une nouvelle zone : cliquer sur ce qui a à peu près la même couleur</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; has fewer than three corners. The pen will not find it.</source>
        <translation>La zone « %1 » a moins de trois coins. Le stylo ne la trouvera pas.</translation>
    </message>
    <message>
        <source>This page has no area to draw. &quot;+&quot; begins one.</source>
        <translation>Cette page n’a aucune zone à dessiner. « + » en commence une.</translation>
    </message>
    <message>
        <source>Clicks now add corners to &quot;%1&quot;, the last area of this page.</source>
        <translation>Les clics ajoutent maintenant des coins à « %1 », la dernière zone de cette page.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends drawing.</source>
        <translation>« %1 » termine le dessin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, which was there before, has one more corner. Undo takes it back.</source>
        <translation>« %1 », qui existait déjà, a un coin de plus. Annuler le retire.</translation>
    </message>
    <message>
        <source>The area &quot;%1&quot; needs three corners.</source>
        <translation>Il faut trois coins à la zone « %1 ».</translation>
    </message>
    <message>
        <source>Enter takes the area, the wheel changes the tolerance: %1</source>
        <translation>Entrée prend la zone, la molette change la tolérance : %1</translation>
    </message>
    <message>
        <source>There is no picture here.</source>
        <translation>Il n&apos;y a pas d&apos;image ici.</translation>
    </message>
</context>
<context>
    <name>WhyButton</name>
    <message>
        <source>Why?</source>
        <translation>Pourquoi ?</translation>
    </message>
    <message>
        <source>Opens the manual in your browser, where it tells what to do</source>
        <translation>Ouvre le manuel dans le navigateur, là où il dit que faire</translation>
    </message>
</context>
<context>
    <name>ZoomActions</name>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse</source>
        <translation>Montre la page en plus grand, pour les petites zones ; Ctrl et la molette le font autour de la souris</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too</source>
        <translation>Montre la page en plus petit, pour en voir davantage ; Ctrl et la molette le font aussi</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Shows the page as wide as the window, however it was zoomed</source>
        <translation>Montre la page à la largeur de la fenêtre, quel que soit le zoom</translation>
    </message>
    <message>
        <source>Zoom: %1 %</source>
        <translation>Zoom : %1 %</translation>
    </message>
</context>
<context>
    <name>AreaTableModel</name>
    <message>
        <source>Fewer than three corners</source>
        <translation>Moins de trois sommets</translation>
    </message>
    <message>
        <source>Not in the script</source>
        <translation>Absente du script</translation>
    </message>
    <message>
        <source>Number above 15000: not known to the pen</source>
        <translation>Numéro supérieur à 15000 : inconnu du stylo</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
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
        <translation>Avertissements</translation>
    </message>
</context>
<context>
    <name>AreasDock</name>
    <message>
        <source>Areas</source>
        <translation>Zones</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filter of the areas</source>
        <translation>Filtre des zones</translation>
    </message>
    <message>
        <source>Shows only areas whose name has this text, to find one among many; empty shows all</source>
        <translation>Ne montre que les zones dont le nom contient ce texte, pour en trouver une parmi beaucoup ; vide, toutes</translation>
    </message>
    <message>
        <source>Areas of all pages</source>
        <translation>Zones de toutes les pages</translation>
    </message>
    <message>
        <source>A click selects an area, a double click goes to its code, F2 renames it</source>
        <translation>Un clic choisit une zone, un double clic va à son code, F2 la renomme</translation>
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
        <translation>Pages du livre</translation>
    </message>
    <message>
        <source>Move page up</source>
        <translation>Monter la page</translation>
    </message>
    <message>
        <source>Move page down</source>
        <translation>Descendre la page</translation>
    </message>
    <message>
        <source>Remove page</source>
        <translation>Supprimer la page</translation>
    </message>
    <message>
        <source>Page %1 is page %2 now.</source>
        <translation>La page %1 est maintenant la page %2.</translation>
    </message>
    <message>
        <source>Page %1 is removed with its areas. Undo brings it back.</source>
        <translation>La page %1 est supprimée avec ses zones. Annuler la rétablit.</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>Aucune page</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete removes it, and Undo brings it back</source>
        <translation>Un clic va à une page. La tirer la déplace (Ctrl+Haut, Ctrl+Bas) ; Suppr la supprime, et Annuler la rétablit</translation>
    </message>
</context>
</TS>
