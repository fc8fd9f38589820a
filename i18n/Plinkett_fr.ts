<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>KVQtFindDialog</name>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Goes to the next place that holds the text</source>
        <translation>Va au prochain endroit qui contient le texte</translation>
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
        <source>Replaces the text wherever it stands</source>
        <translation>Remplace le texte partout où il se trouve</translation>
    </message>
    <message>
        <source>Search &amp;backwards</source>
        <translation>Rechercher en &amp;arrière</translation>
    </message>
    <message>
        <source>Searches toward the beginning</source>
        <translation>Recherche vers le début</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Remplacer par :</translation>
    </message>
    <message>
        <source>The text that takes its place</source>
        <translation>Le texte qui prend sa place</translation>
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
        <source>The name of the book, which the pen says when it is switched on</source>
        <translation>Le nom du livre, que le stylo dit à la mise en marche</translation>
    </message>
    <message>
        <source>Project ID</source>
        <translation>ID du projet</translation>
    </message>
    <message>
        <source>The number of the book, one for each book on the pen</source>
        <translation>Le numéro du livre, différent pour chaque livre du stylo</translation>
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
        <source>The width of the printed page</source>
        <translation>La largeur de la page imprimée</translation>
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
        <source>The height of the printed page</source>
        <translation>La hauteur de la page imprimée</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>PPP :</translation>
    </message>
    <message>
        <source>The resolution of the printer: 600 at least, better 1200</source>
        <translation>La résolution de l&apos;imprimante : au moins 600, mieux 1200</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Creates the print images of all pictures</source>
        <translation>Crée les images à imprimer de toutes les images</translation>
    </message>
    <message>
        <source>Create the output image now...</source>
        <translation>Créer l&apos;image à imprimer maintenant...</translation>
    </message>
    <message>
        <source>For all pictures</source>
        <translation>Pour toutes les images</translation>
    </message>
    <message>
        <source>Gives the paper and the DPI of this picture to all pictures</source>
        <translation>Donne à toutes les images le papier et les DPI de celle-ci</translation>
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
        <source>The game was copied to the pen</source>
        <translation>Le jeu a été copié sur le stylo</translation>
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
        <source>Puts another picture file in the place of this one</source>
        <translation>Met un autre fichier d&apos;image à la place de celui-ci</translation>
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
        <source>Deletes this picture</source>
        <translation>Supprime cette image</translation>
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
        <source>The name of the area, as the script knows it</source>
        <translation>Le nom de la zone, tel que le script la connaît</translation>
    </message>
    <message>
        <source>OID of the area</source>
        <translation>OID de la zone</translation>
    </message>
    <message>
        <source>The number of the dots that the area is printed with</source>
        <translation>Le numéro des points avec lesquels la zone est imprimée</translation>
    </message>
    <message>
        <source>Goto code</source>
        <translation>Aller au code</translation>
    </message>
    <message>
        <source>Goes to the code of the area in the script, or begins it</source>
        <translation>Va au code de la zone dans le script, ou le commence</translation>
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
        <source>Opens a project</source>
        <translation>Ouvre un projet</translation>
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
        <source>Saves the project</source>
        <translation>Enregistre le projet</translation>
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
        <source>Takes back the last step</source>
        <translation>Annule la dernière étape</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Does again what was taken back</source>
        <translation>Refait ce qui a été annulé</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Saves the project under another name</source>
        <translation>Enregistre le projet sous un autre nom</translation>
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
        <source>Another window has moved pages of this book and not saved that yet.</source>
        <translation>Une autre fenêtre a déplacé des pages de ce livre sans les enregistrer.</translation>
    </message>
    <message>
        <source>It is damaged. Put the pictures in order, then remove it.</source>
        <translation>Il est endommagé. Remettez les images en ordre, puis supprimez-le.</translation>
    </message>
</context>
</TS>
