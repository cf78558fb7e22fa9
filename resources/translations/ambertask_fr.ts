<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AlertListModel</name>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Catégorie&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Cancelled</name>
    <message>
        <source>The operation was cancelled.</source>
        <translation>L’opération a été annulée.</translation>
    </message>
</context>
<context>
    <name>CategoriesPage</name>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Add a category</source>
        <translation>Ajouter une catégorie</translation>
    </message>
    <message>
        <source>Edit the selected category</source>
        <translation>Modifier la catégorie sélectionnée</translation>
    </message>
    <message>
        <source>Delete the selected category</source>
        <translation>Supprimer la catégorie sélectionnée</translation>
    </message>
    <message>
        <source>Help on categories</source>
        <translation>Aide sur les catégories</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos; category, all tasks under this category will be deleted?</source>
        <translation>Voulez-vous vraiment supprimer la catégorie «&#xa0;%1&#xa0;»&#x202f;? Toutes ses tâches seront également supprimées.</translation>
    </message>
</context>
<context>
    <name>CategoryInput</name>
    <message>
        <source>The changes to the category are not saved.</source>
        <translation>Les modifications de la catégorie ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Les modifications de «&#xa0;%1&#xa0;» ne sont pas enregistrées.</translation>
    </message>
</context>
<context>
    <name>CategoryPictures</name>
    <message>
        <source>Home</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Achats</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Courrier</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>Finances</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Voyages</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Études</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Idées</translation>
    </message>
</context>
<context>
    <name>ClsTask</name>
    <message>
        <source>The statement is unfinished: %1</source>
        <translation>L’instruction est incomplète&#xa0;: %1</translation>
    </message>
    <message>
        <source>The task was not stored: there is no number left for a new one. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>La tâche n’a pas été enregistrée&#xa0;: il ne reste aucun numéro pour une nouvelle tâche. Supprimez les tâches dont vous n’avez plus besoin, puis quittez Ambertask et relancez-le.</translation>
    </message>
</context>
<context>
    <name>CompiledHelpWindow</name>
    <message>
        <source>Ambertask Help</source>
        <translation>Aide d’Ambertask</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Rubrique</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Accueil</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>Te&amp;xte plus petit</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>I&amp;ndex</translation>
    </message>
    <message>
        <source>S&amp;earch</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>L’aide ne peut pas être affichée</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read. Installing the program again brings it back; your tasks are kept.</source>
        <translation>Le fichier d’aide «&#xa0;%1&#xa0;» est endommagé ou illisible. Réinstallez le programme pour le rétablir&#x202f;; vos tâches seront conservées.</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is not in the program&apos;s folder. Installing the program again brings it back; your tasks are kept.</source>
        <translation>Le fichier d’aide «&#xa0;%1&#xa0;» ne se trouve pas dans le dossier du programme. Réinstallez le programme pour le rétablir&#x202f;; vos tâches seront conservées.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>Cette page ne peut pas être affichée</translation>
    </message>
    <message>
        <source>The help file has no topic number %1.</source>
        <translation>Le fichier d’aide ne contient pas de rubrique numéro %1.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>La&amp;rger text</source>
        <translation>Texte plus &amp;grand</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. Do you want to write this topic to a PDF file instead?</source>
        <translation>Aucune imprimante n’est configurée sur cet ordinateur. Voulez-vous plutôt écrire cette rubrique dans un fichier PDF&#x202f;?</translation>
    </message>
    <message>
        <source>The topic could not be printed.</source>
        <translation>La rubrique n’a pas pu être imprimée.</translation>
    </message>
    <message>
        <source>The topic could not be written to &quot;%1&quot;: %2.</source>
        <translation>La rubrique n’a pas pu être écrite dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF enregistré dans «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>The connection is open already.</source>
        <translation>La connexion est déjà ouverte.</translation>
    </message>
    <message>
        <source>The data file knows no users and no passwords.</source>
        <translation>Le fichier de données ne connaît ni utilisateurs ni mots de passe.</translation>
    </message>
    <message>
        <source>The connection string &quot;%1&quot; names no data file.</source>
        <translation>La chaîne de connexion «&#xa0;%1&#xa0;» ne désigne aucun fichier de données.</translation>
    </message>
    <message>
        <source>The connection to the data file is not open.</source>
        <translation>La connexion au fichier de données n’est pas ouverte.</translation>
    </message>
</context>
<context>
    <name>ContentsPane</name>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
</context>
<context>
    <name>CustomIcons</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: this is not a plain file name.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être utilisée&#xa0;: ce n’est pas un simple nom de fichier.</translation>
    </message>
</context>
<context>
    <name>DataFileCopies</name>
    <message>
        <source>&quot;%1&quot; belongs to the data file.</source>
        <translation>«&#xa0;%1&#xa0;» fait partie du fichier de données.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the data file itself.</source>
        <translation>«&#xa0;%1&#xa0;» est le fichier de données lui-même.</translation>
    </message>
    <message>
        <source>An operation on &quot;%1&quot; is not finished.</source>
        <translation>Une opération sur «&#xa0;%1&#xa0;» n’est pas terminée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no data file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de données.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
    </message>
</context>
<context>
    <name>DataFileRoad</name>
    <message>
        <source>The data file was made by a later version of Ambertask; this version cannot use it.</source>
        <translation>Le fichier de données provient d’une version ultérieure d’Ambertask&#x202f;; la version actuelle ne peut pas l’utiliser.</translation>
    </message>
</context>
<context>
    <name>Dialect</name>
    <message>
        <source>The date literal %1 is not of the form #month/day/year hours:minutes#.</source>
        <translation>Le littéral de date %1 n’est pas de la forme #mois/jour/année heures:minutes#.</translation>
    </message>
    <message>
        <source>The date literal %1 names no existing day and time.</source>
        <translation>Le littéral de date %1 ne désigne pas un moment existant.</translation>
    </message>
    <message>
        <source>The statement holds a zero character.</source>
        <translation>L’instruction contient un caractère nul.</translation>
    </message>
    <message>
        <source>The date literal %1 is not closed.</source>
        <translation>Le littéral de date %1 n’est pas fermé.</translation>
    </message>
</context>
<context>
    <name>DisplayGate</name>
    <message>
        <source>Ambertask needs a graphical desktop, and none could be reached from here.</source>
        <translation>Ambertask a besoin d’un bureau graphique, et aucun n’a pu être atteint d’ici.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>there is no file name</source>
        <translation>le nom du fichier est absent</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>le fichier serait trop volumineux</translation>
    </message>
    <message>
        <source>there is no permission for that</source>
        <translation>l’autorisation nécessaire manque</translation>
    </message>
    <message>
        <source>nothing can be written to that disk</source>
        <translation>ce disque est protégé en écriture</translation>
    </message>
    <message>
        <source>the file or its folder does not exist</source>
        <translation>le fichier ou son dossier n’existe pas</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>the disk failed or was taken out</source>
        <translation>le disque est défaillant ou a été retiré</translation>
    </message>
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>La fenêtre d’aide est absente de cette installation.</translation>
    </message>
</context>
<context>
    <name>IndexPane</name>
    <message>
        <source>First letters of a keyword</source>
        <translation>Premières lettres d’un mot-clé</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>&amp;Keyword</source>
        <translation>&amp;Mot-clé</translation>
    </message>
</context>
<context>
    <name>Lateness</name>
    <message>
        <source>due now</source>
        <translation>échu à l’instant</translation>
    </message>
    <message>
        <source>1 minute late</source>
        <translation>1 minute de retard</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes late</source>
        <translation>
            <numerusform>%n minute de retard</numerusform>
            <numerusform>%n minutes de retard</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour late</source>
        <translation>1 heure de retard</translation>
    </message>
    <message numerus="yes">
        <source>%n hours late</source>
        <translation>
            <numerusform>%n heure de retard</numerusform>
            <numerusform>%n heures de retard</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation>1 jour de retard</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n jour de retard</numerusform>
            <numerusform>%n jours de retard</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MaintenancePage</name>
    <message>
        <source>Ambertaks Backup Files (*.abk)|*.abk</source>
        <translation>Sauvegardes Ambertask (*.abk)|*.abk</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete Tasks</source>
        <translation>Supprimer des tâches</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>É&amp;tat</translation>
    </message>
    <message>
        <source>&amp;All tasks</source>
        <translation>Toutes &amp;les tâches</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Tâches act&amp;ives uniquement</translation>
    </message>
    <message>
        <source>&amp;Expired tasks only</source>
        <translation>Tâches en retard &amp;uniquement</translation>
    </message>
    <message>
        <source>Date Range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Du</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Au</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>Sau&amp;vegarder</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Backup and Restore</source>
        <translation>Sauvegarde et restauration</translation>
    </message>
    <message>
        <source>There is no tasks according to the selected criteria!</source>
        <translation>Aucune tâche ne correspond aux critères sélectionnés&#x202f;!</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>Voulez-vous vraiment supprimer %n tâche&#x202f;?</numerusform>
            <numerusform>Voulez-vous vraiment supprimer %n tâches&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Backing up the data...</source>
        <translation>Sauvegarde des données en cours…</translation>
    </message>
    <message>
        <source>Restoring the data...</source>
        <translation>Restauration des données en cours…</translation>
    </message>
    <message>
        <source>Deleting the tasks...</source>
        <translation>Suppression des tâches en cours…</translation>
    </message>
    <message>
        <source>1 task was deleted</source>
        <translation>1 tâche a été supprimée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were deleted</source>
        <translation>
            <numerusform>%n tâche a été supprimée</numerusform>
            <numerusform>%n tâches ont été supprimées</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored from &quot;%1&quot;</source>
        <translation>Restauré depuis «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Restored 1 task from &quot;%1&quot;; what was there before is in %2</source>
        <translation>1 tâche restaurée depuis «&#xa0;%1&#xa0;»&#xa0;; ce qui s’y trouvait auparavant est dans %2</translation>
    </message>
    <message numerus="yes">
        <source>Restored %n tasks from &quot;%1&quot;; what was there before is in %2</source>
        <translation>
            <numerusform>%n tâche restaurée depuis «&#xa0;%1&#xa0;»&#xa0;; ce qui s’y trouvait auparavant est dans %2</numerusform>
            <numerusform>%n tâches restaurées depuis «&#xa0;%1&#xa0;»&#xa0;; ce qui s’y trouvait auparavant est dans %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup saved to &quot;%1&quot;</source>
        <translation>Sauvegarde enregistrée dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The backup could not be written: %1</source>
        <translation>La sauvegarde n’a pas pu être écrite&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was restored: %1</source>
        <translation>Rien n’a été restauré&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>OverflowError</name>
    <message>
        <source>task id</source>
        <translation>identifiant de tâche</translation>
    </message>
    <message>
        <source>icon number</source>
        <translation>numéro d’icône</translation>
    </message>
    <message>
        <source>category id</source>
        <translation>identifiant de catégorie</translation>
    </message>
    <message>
        <source>Overflow: the %1 %2 does not fit into 16 bits.</source>
        <translation>Dépassement&#xa0;: %1 %2 ne tient pas sur 16 bits.</translation>
    </message>
</context>
<context>
    <name>PdfFileChoice</name>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>Fichiers PDF (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it is neither a GIF nor a JPEG nor a PNG picture.</source>
        <translation>ce n’est une image ni GIF, ni JPEG, ni PNG.</translation>
    </message>
    <message>
        <source>it is damaged or incomplete.</source>
        <translation>elle est endommagée ou incomplète.</translation>
    </message>
    <message>
        <source>it is %1 x %2 pixels large, more than %3 x %3 are not accepted.</source>
        <translation>elle mesure %1 × %2 pixels, le maximum accepté est de %3 × %3.</translation>
    </message>
    <message>
        <source>there is no such file.</source>
        <translation>ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>it is not an ordinary file.</source>
        <translation>ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB.</source>
        <translation>elle dépasse %1 Mio.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: %2</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être utilisée&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>&amp;Exporter en PDF…</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>Pre&amp;mière</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>Pré&amp;cédente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Dernière</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>Pa&amp;pier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Orientation</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Zoom o&amp;ut</source>
        <translation>Réd&amp;uire</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Pa&amp;ge</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> sur %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Le rapport n’a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%1&quot;: %2.</source>
        <translation>Le rapport n’a pas pu être écrit dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer.</source>
        <translation>Aucune imprimante n’est configurée sur cet ordinateur.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF enregistré dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>Préparation du rapport en cours…</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Printing...</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>Writing the PDF file...</source>
        <translation>Écriture du fichier PDF…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The task &quot;%1&quot; was added; the filters do not show it</source>
        <translation>La tâche «&#xa0;%1&#xa0;» a été ajoutée&#xa0;; les filtres ne l’affichent pas</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>RecordSet</name>
    <message>
        <source>The value of column &quot;%1&quot; is no whole number.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is out of range: %2.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» est hors limites&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>Il n’y a pas d’enregistrement courant.</translation>
    </message>
    <message>
        <source>The field name &quot;%1&quot; is ambiguous.</source>
        <translation>Le nom de champ «&#xa0;%1&#xa0;» est ambigu.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>Il n’y a pas de champ «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no field number %1.</source>
        <translation>Il n’y a pas de champ numéro %1.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is null.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» est nulle.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no text.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» n’est pas un texte.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; does not fit into memory.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» ne tient pas en mémoire.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no date and time: %2.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» n’est pas une date avec heure&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is empty.</source>
        <translation>La valeur de la colonne «&#xa0;%1&#xa0;» est vide.</translation>
    </message>
</context>
<context>
    <name>Rest</name>
    <message>
        <source>Only the beginning is shown. The &quot;⋯&quot; stands for the rest.</source>
        <translation>Seul le début est affiché. Le «&#xa0;⋯&#xa0;» représente la suite.</translation>
    </message>
</context>
<context>
    <name>ScreenErrorReport</name>
    <message>
        <source>Close &amp;program</source>
        <translation>Fermer le &amp;programme</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>SearchPane</name>
    <message>
        <source>List &amp;topics</source>
        <translation>&amp;Lister les rubriques</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>Mots à rechercher</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>Rubriques trouvées</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>M&amp;ots</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>Aucune rubrique ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>1 topic found.</source>
        <translation>1 rubrique trouvée.</translation>
    </message>
    <message numerus="yes">
        <source>%n topics found.</source>
        <translation>
            <numerusform>%n rubrique trouvée.</numerusform>
            <numerusform>%n rubriques trouvées.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>it does not exist</source>
        <translation>il n’existe pas</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; the statement was not run: %2</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» a déjà échoué&#x202f;; l’instruction n’a pas été exécutée&#xa0;: %2</translation>
    </message>
    <message>
        <source>The statement is too long (%1 bytes): %2</source>
        <translation>L’instruction est trop longue (%1 octets)&#xa0;: %2</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>L’instruction est vide.</translation>
    </message>
    <message>
        <source>The text holds more than one statement: %1</source>
        <translation>Le texte contient plus d’une instruction&#xa0;: %1</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written: %2.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; nothing was stored.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» a déjà échoué&#x202f;; rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written; nothing was stored: %2.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être écrit&#x202f;; rien n’a été enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be opened: %2.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The statement failed: %1.
%2</source>
        <translation>L’instruction a échoué&#xa0;: %1.
%2</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed at the statement
%2
: %3.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» a échoué à l’instruction
%2
: %3.</translation>
    </message>
    <message>
        <source>another program is using it (%1)</source>
        <translation>un autre programme l’utilise (%1)</translation>
    </message>
    <message>
        <source>a rule in its table &quot;%1&quot; could remove records</source>
        <translation>une règle de sa table «&#xa0;%1&#xa0;» pourrait supprimer des enregistrements</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>&amp;Save Settings</source>
        <translation>E&amp;nregistrer les paramètres</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Show &amp;grid</source>
        <translation>Afficher la &amp;grille</translation>
    </message>
    <message>
        <source>Show &amp;today&apos;s tasks on start</source>
        <translation>Afficher les tâches du &amp;jour au démarrage</translation>
    </message>
    <message>
        <source>Start with &amp;windows</source>
        <translation>Lancer à l’ouverture de la se&amp;ssion</translation>
    </message>
    <message>
        <source>Always on to&amp;p</source>
        <translation>Toujours au &amp;premier plan</translation>
    </message>
    <message>
        <source>&amp;Minimize on start</source>
        <translation>Démarrer en mode ré&amp;duit</translation>
    </message>
    <message>
        <source>Show tray &amp;balloon when closed</source>
        <translation>Afficher une &amp;bulle à la fermeture</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Task p&amp;riority</source>
        <translation>Pri&amp;orité</translation>
    </message>
    <message>
        <source>Task &amp;due date</source>
        <translation>Éc&amp;héance</translation>
    </message>
    <message>
        <source>Task r&amp;eminder</source>
        <translation>&amp;Rappel</translation>
    </message>
    <message>
        <source>Task stat&amp;us</source>
        <translation>É&amp;tat</translation>
    </message>
    <message>
        <source>Show Columns</source>
        <translation>Colonnes affichées</translation>
    </message>
    <message>
        <source>Current s&amp;kin</source>
        <translation>Thème a&amp;ctuel</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Add &amp;new skin</source>
        <translation>Ajouter un nou&amp;veau thème</translation>
    </message>
    <message>
        <source>Add new skin</source>
        <translation>Ajouter un nouveau thème</translation>
    </message>
    <message>
        <source>Download More Skins</source>
        <translation>Télécharger d’autres thèmes</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>Thèmes</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Skin Files (*.skf)|*.skf</source>
        <translation>Fichiers de thème (*.skf)|*.skf</translation>
    </message>
    <message>
        <source>The new skin is now available in the skins list.</source>
        <translation>Le nouveau thème est maintenant disponible dans la liste des thèmes.</translation>
    </message>
    <message>
        <source>The skin was not added: %1</source>
        <translation>Le thème n’a pas été ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>The skin &quot;%1&quot; was added; to wear it, choose it in the list and save the settings</source>
        <translation>Le thème «&#xa0;%1&#xa0;» a été ajouté&#xa0;; pour l’utiliser, choisissez-le dans la liste et enregistrez les paramètres</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The row of the table &quot;settings&quot; is missing in the data file.</source>
        <translation>La ligne de la table «&#xa0;settings&#xa0;» est absente du fichier de données.</translation>
    </message>
</context>
<context>
    <name>SkinFile</name>
    <message>
        <source>%1: the file is not a text in UTF-8</source>
        <translation>%1&#xa0;: le fichier n’est pas un texte en UTF-8</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1&#xa0;: le fichier n’existe pas</translation>
    </message>
    <message>
        <source>%1: it is not a file</source>
        <translation>%1&#xa0;: ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: the file is larger than 1 MiB</source>
        <translation>%1&#xa0;: le fichier dépasse 1 Mio</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>SkinHeader</name>
    <message>
        <source>the file does not begin with a comment block</source>
        <translation>le fichier ne commence pas par un bloc de commentaire</translation>
    </message>
    <message>
        <source>the comment block has no end</source>
        <translation>le bloc de commentaire n’a pas de fin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be the name of a file</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un nom de fichier</translation>
    </message>
    <message>
        <source>unknown keyword &quot;%1&quot;</source>
        <translation>mot-clé «&#xa0;%1&#xa0;» inconnu</translation>
    </message>
    <message>
        <source>a second &quot;%1&quot;</source>
        <translation>«&#xa0;%1&#xa0;» figure deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing</source>
        <translation>«&#xa0;%1&#xa0;» est vide</translation>
    </message>
    <message>
        <source>expected &quot;@color token #rrggbb&quot;</source>
        <translation>«&#xa0;@color token #rrggbb&#xa0;» attendu</translation>
    </message>
    <message>
        <source>a second colour &quot;%1&quot;</source>
        <translation>la couleur «&#xa0;%1&#xa0;» figure deux fois</translation>
    </message>
    <message>
        <source>expected &quot;@disabled Role $token&quot;</source>
        <translation>«&#xa0;@disabled Role $token&#xa0;» attendu</translation>
    </message>
    <message>
        <source>expected &quot;@palette Role $token&quot;</source>
        <translation>«&#xa0;@palette Role $token&#xa0;» attendu</translation>
    </message>
    <message>
        <source>unknown palette role &quot;%1&quot;</source>
        <translation>rôle de palette «&#xa0;%1&#xa0;» inconnu</translation>
    </message>
    <message>
        <source>the comment block has no &quot;@name&quot;</source>
        <translation>le bloc de commentaire ne contient pas «&#xa0;@name&#xa0;»</translation>
    </message>
    <message>
        <source>unknown colour &quot;$%1&quot;</source>
        <translation>couleur «&#xa0;$%1&#xa0;» inconnue</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The skin could not be used.
%1</source>
        <translation>Le thème n’a pas pu être utilisé.
%1</translation>
    </message>
    <message>
        <source>%1: the file has to be named &quot;%2&quot;, as its skin is</source>
        <translation>%1&#xa0;: le fichier doit s’appeler «&#xa0;%2&#xa0;», comme son thème</translation>
    </message>
</context>
<context>
    <name>TaskInput</name>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>La date et l’heure du rappel ne doivent pas être antérieures à la date et à l’heure actuelles du système</translation>
    </message>
    <message>
        <source>Please enter task name.</source>
        <translation>Veuillez saisir le nom de la tâche.</translation>
    </message>
    <message>
        <source>Please select category.</source>
        <translation>Veuillez sélectionner une catégorie.</translation>
    </message>
    <message>
        <source>Please select reminder sound.</source>
        <translation>Veuillez sélectionner un son de rappel.</translation>
    </message>
    <message>
        <source>Please select reminder file.</source>
        <translation>Veuillez sélectionner un fichier de rappel.</translation>
    </message>
    <message>
        <source>The changes to the task are not saved.</source>
        <translation>Les modifications de la tâche ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Les modifications de «&#xa0;%1&#xa0;» ne sont pas enregistrées.</translation>
    </message>
</context>
<context>
    <name>TaskListModel</name>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>periority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Reminder on</source>
        <translation>Rappel activé</translation>
    </message>
    <message>
        <source>Reminder off</source>
        <translation>Rappel désactivé</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Catégorie&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>A&amp;ll</source>
        <translation>T&amp;outes</translation>
    </message>
    <message>
        <source>Spec&amp;ific</source>
        <translation>&amp;Période</translation>
    </message>
    <message>
        <source>All tas&amp;ks</source>
        <translation>Toutes &amp;les tâches</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Tâches a&amp;ctives uniquement</translation>
    </message>
    <message>
        <source>E&amp;xpired tasks only</source>
        <translation>Tâches en retard &amp;uniquement</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Du</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Au</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>Caté&amp;gorie</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>É&amp;tat</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>Trie&amp;r par</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Please enter categories in the categories section first.</source>
        <translation>Veuillez d’abord créer des catégories sur la page «&#xa0;Catégories&#xa0;».</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>Voulez-vous vraiment supprimer cette tâche&#x202f;?</translation>
    </message>
</context>
<context>
    <name>TopicView</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>Cette page ne peut pas être affichée</translation>
    </message>
    <message>
        <source>The help file has no readable page &quot;%1&quot;.</source>
        <translation>Le fichier d’aide ne contient pas de page lisible «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>UnreadableRecords</name>
    <message>
        <source>Category %1: %2</source>
        <translation>Catégorie %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Category %1, &quot;%2&quot;: %3</source>
        <translation>Catégorie %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>Task %1: %2</source>
        <translation>Tâche %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Task %1, &quot;%2&quot;: %3</source>
        <translation>Tâche %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Some values in the data file cannot be read. For this reason these are not shown:</source>
        <translation>Certaines valeurs du fichier de données ne peuvent pas être lues. C’est pourquoi ceci n’est pas affiché&#xa0;:</translation>
    </message>
    <message>
        <source>The tasks of a category that is not shown are not shown either.</source>
        <translation>Les tâches d’une catégorie qui n’est pas affichée ne le sont pas non plus.</translation>
    </message>
    <message>
        <source>Everything stays in the data file as it is. To have it back, restore a backup that was made before (page Maintenance), or correct the values with another program.</source>
        <translation>Tout reste tel quel dans le fichier de données. Pour le retrouver, restaurez une sauvegarde antérieure (page Maintenance) ou corrigez les valeurs avec un autre programme.</translation>
    </message>
    <message>
        <source>Some settings cannot be read. They are for now what they are in a new data file:</source>
        <translation>Certains paramètres ne peuvent pas être lus. Ils sont pour l’instant ceux d’un nouveau fichier de données&#xa0;:</translation>
    </message>
    <message>
        <source>To store them anew, press &quot;Save Settings&quot; on the page Settings.</source>
        <translation>Pour les enregistrer à nouveau, cliquez sur «&#xa0;Enregistrer les paramètres&#xa0;» à la page Paramètres.</translation>
    </message>
</context>
<context>
    <name>UsualMoments</name>
    <message>
        <source>In &amp;5 minutes</source>
        <translation>Dans &amp;5 minutes</translation>
    </message>
    <message>
        <source>In &amp;15 minutes</source>
        <translation>Dans &amp;15 minutes</translation>
    </message>
    <message>
        <source>In 1 &amp;hour</source>
        <translation>Dans 1 &amp;heure</translation>
    </message>
    <message>
        <source>This &amp;evening</source>
        <translation>Ce &amp;soir</translation>
    </message>
    <message>
        <source>&amp;Tomorrow morning</source>
        <translation>&amp;Demain matin</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>La semaine &amp;prochaine</translation>
    </message>
</context>
<context>
    <name>clsGuiLoader</name>
    <message>
        <source>None</source>
        <translation>Aucun tri</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>All</source>
        <comment>statuses</comment>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Not Started</source>
        <translation>Non commencée</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Waiting on someone else</source>
        <translation>En attente d’un tiers</translation>
    </message>
    <message>
        <source>Deferred</source>
        <translation>Reportée</translation>
    </message>
    <message>
        <source>All</source>
        <comment>categories</comment>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
</context>
<context>
    <name>drTasks</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Tasks Report</source>
        <translation>Rapport des tâches</translation>
    </message>
    <message>
        <source>The report cannot be shown: the module &quot;ambertask_report&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>Le rapport ne peut pas être affiché&#xa0;: le module «&#xa0;ambertask_report&#xa0;» est absent du dossier du programme ou endommagé.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Ambertask</source>
        <translation>À propos d’Ambertask</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Version 1.1</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Ambertask is a simple and powerful task management software program.</source>
        <translation>Ambertask est un logiciel de gestion des tâches simple et puissant.</translation>
    </message>
    <message>
        <source>Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what you would miss.</source>
        <translation>Ambertask est fourni sans aucune garantie. Vos tâches restent sur cet ordinateur&#x202f;; sauvegardez ce que vous ne voulez pas perdre.</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Les informations système ne sont pas disponibles pour le moment</translation>
    </message>
</context>
<context>
    <name>frmAlerts</name>
    <message>
        <source>New reminder</source>
        <translation>Nouveau rappel</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Open Item</source>
        <translation>Ouvrir la tâche</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Dismiss All</source>
        <translation>Tout ignorer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Heure&#xa0;:</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>Rappels échus</translation>
    </message>
    <message>
        <source>New reminder date</source>
        <translation>Date du nouveau rappel</translation>
    </message>
    <message>
        <source>New reminder time</source>
        <translation>Heure du nouveau rappel</translation>
    </message>
    <message>
        <source>Moves the selected reminder to the new date and time</source>
        <translation>Reporte le rappel sélectionné à la nouvelle date et à la nouvelle heure</translation>
    </message>
    <message>
        <source>Opens the task of the selected reminder</source>
        <translation>Ouvre la tâche du rappel sélectionné</translation>
    </message>
    <message>
        <source>Switches the selected reminder off</source>
        <translation>Désactive le rappel sélectionné</translation>
    </message>
    <message>
        <source>Switches all due reminders off</source>
        <translation>Désactive tous les rappels échus</translation>
    </message>
    <message>
        <source>1 Reminder</source>
        <translation>1 rappel</translation>
    </message>
    <message numerus="yes">
        <source>%n Reminders</source>
        <translation>
            <numerusform>%n rappel</numerusform>
            <numerusform>%n rappels</numerusform>
        </translation>
    </message>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>La date et l’heure du rappel ne doivent pas être antérieures à la date et à l’heure actuelles du système</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Régler sur</translation>
    </message>
    <message>
        <source>Set date and time to</source>
        <translation>Régler la date et l’heure sur</translation>
    </message>
    <message>
        <source>Fills in a usual moment; &quot;Remind me later&quot; then puts the reminder off</source>
        <translation>Remplit un moment habituel&#x202f;; «&#xa0;Me le rappeler plus tard&#xa0;» reporte ensuite le rappel</translation>
    </message>
</context>
<context>
    <name>frmCategoryDetails</name>
    <message>
        <source>Icon %1 of %2</source>
        <translation>Icône %1 sur %2</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>De&amp;fault Icon</source>
        <translation>&amp;Icône par défaut</translation>
    </message>
    <message>
        <source>C&amp;ustom Icon</source>
        <translation>Icône &amp;personnalisée</translation>
    </message>
    <message>
        <source>Default icons</source>
        <translation>Icônes par défaut</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>Icône personnalisée</translation>
    </message>
    <message>
        <source>Custom icon preview</source>
        <translation>Aperçu de l’icône personnalisée</translation>
    </message>
    <message>
        <source>Prefered size 24*24 pixels</source>
        <translation>Taille conseillée&#xa0;: 24 × 24 pixels</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>Pa&amp;rcourir</translation>
    </message>
    <message>
        <source>Browse for a custom icon</source>
        <translation>Rechercher une icône personnalisée</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Description</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>Détails de la catégorie</translation>
    </message>
    <message>
        <source>The category no longer exists.</source>
        <translation>La catégorie n’existe plus.</translation>
    </message>
    <message>
        <source>Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</source>
        <translation>Fichiers d’images (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>A category with the same name already exists</source>
        <translation>Une catégorie portant ce nom existe déjà</translation>
    </message>
    <message>
        <source>Please enter category name.</source>
        <translation>Veuillez saisir le nom de la catégorie.</translation>
    </message>
    <message>
        <source>Please browse for a custom icon</source>
        <translation>Veuillez choisir une icône personnalisée</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Version 1.1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Ambertaks</source>
        <translation>Ambertask</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Ambertaks is still running..</source>
        <translation>Ambertask est toujours en cours d’exécution.</translation>
    </message>
</context>
<context>
    <name>frmTaskDetails</name>
    <message>
        <source>Task Details</source>
        <translation>Détails de la tâche</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>La tâche n’existe plus.</translation>
    </message>
    <message>
        <source>Executable Files (*.exe;*.bat;)|*.exe;*.bat</source>
        <translation>Fichiers exécutables (*.exe;*.bat;)|*.exe;*.bat</translation>
    </message>
    <message>
        <source>Wave Files (*.wav)|*.wav</source>
        <translation>Fichiers Wave (*.wav)|*.wav</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>&amp;Enable reminder</source>
        <translation>&amp;Activer le rappel</translation>
    </message>
    <message>
        <source>Reminder sou&amp;nd</source>
        <translation>&amp;Son du rappel</translation>
    </message>
    <message>
        <source>Reminder &amp;file</source>
        <translation>&amp;Fichier du rappel</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pa&amp;rcourir…</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Parcour&amp;ir…</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nom de la tâche</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Date d’échéance</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Heure d’échéance</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Enable reminder</source>
        <translation>Activer le rappel</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>Date du rappel</translation>
    </message>
    <message>
        <source>Reminder time</source>
        <translation>Heure du rappel</translation>
    </message>
    <message>
        <source>Reminder sound</source>
        <translation>Son du rappel</translation>
    </message>
    <message>
        <source>Reminder sound file</source>
        <translation>Fichier son du rappel</translation>
    </message>
    <message>
        <source>Browse for a reminder sound</source>
        <translation>Rechercher un son de rappel</translation>
    </message>
    <message>
        <source>Reminder file</source>
        <translation>Fichier du rappel</translation>
    </message>
    <message>
        <source>Program or batch file</source>
        <translation>Programme ou fichier de commandes</translation>
    </message>
    <message>
        <source>Browse for a reminder file</source>
        <translation>Rechercher un fichier de rappel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Task name:</source>
        <translation>No&amp;m de la tâche&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#xa0;:</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>Date d’éc&amp;héance&#xa0;:</translation>
    </message>
    <message>
        <source>Due ti&amp;me:</source>
        <translation>He&amp;ure d’échéance&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>É&amp;tat&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Priority:</source>
        <translation>&amp;Priorité&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Reminder date:</source>
        <translation>Dat&amp;e du rappel&#xa0;:</translation>
    </message>
    <message>
        <source>Reminder t&amp;ime:</source>
        <translation>Heure du rappe&amp;l&#xa0;:</translation>
    </message>
    <message>
        <source>Wa&amp;ve:</source>
        <translation>&amp;Wave&#xa0;:</translation>
    </message>
    <message>
        <source>Pro&amp;gram:</source>
        <translation>Pro&amp;gramme&#xa0;:</translation>
    </message>
</context>
<context>
    <name>modAmbertaks</name>
    <message>
        <source>The program folder could not be made.
%1</source>
        <translation>Le dossier du programme n’a pas pu être créé.
%1</translation>
    </message>
    <message>
        <source>The program folder could not be kept from a second copy of the program.
%1</source>
        <translation>Le dossier du programme n’a pas pu être protégé d’une seconde copie du programme.
%1</translation>
    </message>
</context>
</TS>
