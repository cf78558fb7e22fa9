<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AlertActions</name>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>&amp;Open Item</source>
        <translation>&amp;Ouvrir la tâche</translation>
    </message>
    <message>
        <source>&amp;Remind me later</source>
        <translation>Me le &amp;rappeler plus tard</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Ignorer</translation>
    </message>
</context>
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
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>AlertNotification</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Later (15 minutes)</source>
        <translation>Plus tard (15 minutes)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
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
    <message>
        <source>Category &quot;%1&quot; deleted with its tasks</source>
        <translation>Catégorie «&#xa0;%1&#xa0;» supprimée avec ses tâches</translation>
    </message>
    <message>
        <source>There are no categories yet</source>
        <translation>Il n’y a pas encore de catégories</translation>
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
    <name>ChangeTexts</name>
    <message>
        <source>1 task deleted</source>
        <translation>1 tâche supprimée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted</source>
        <translation>
            <numerusform>%n tâche supprimée</numerusform>
            <numerusform>%n tâches supprimées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task duplicated</source>
        <translation>1 tâche dupliquée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks duplicated</source>
        <translation>
            <numerusform>%n tâche dupliquée</numerusform>
            <numerusform>%n tâches dupliquées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task completed</source>
        <translation>1 tâche terminée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks completed</source>
        <translation>
            <numerusform>%n tâche terminée</numerusform>
            <numerusform>%n tâches terminées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task set back to &quot;Not Started&quot;</source>
        <translation>1 tâche remise à «&#x202f;Non commencée&#x202f;»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks set back to &quot;Not Started&quot;</source>
        <translation>
            <numerusform>%n tâche remise à «&#x202f;Non commencée&#x202f;»</numerusform>
            <numerusform>%n tâches remises à «&#x202f;Non commencée&#x202f;»</numerusform>
        </translation>
    </message>
    <message>
        <source>Status of 1 task changed</source>
        <translation>État de 1 tâche modifié</translation>
    </message>
    <message numerus="yes">
        <source>Status of %n tasks changed</source>
        <translation>
            <numerusform>État de %n tâche modifié</numerusform>
            <numerusform>État de %n tâches modifié</numerusform>
        </translation>
    </message>
    <message>
        <source>Priority of 1 task changed</source>
        <translation>Priorité de 1 tâche modifiée</translation>
    </message>
    <message numerus="yes">
        <source>Priority of %n tasks changed</source>
        <translation>
            <numerusform>Priorité de %n tâche modifiée</numerusform>
            <numerusform>Priorité de %n tâches modifiée</numerusform>
        </translation>
    </message>
    <message>
        <source>Category of 1 task changed</source>
        <translation>Catégorie de 1 tâche modifiée</translation>
    </message>
    <message numerus="yes">
        <source>Category of %n tasks changed</source>
        <translation>
            <numerusform>Catégorie de %n tâche modifiée</numerusform>
            <numerusform>Catégorie de %n tâches modifiée</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder dismissed</source>
        <translation>1 rappel ignoré</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders dismissed</source>
        <translation>
            <numerusform>%n rappel ignoré</numerusform>
            <numerusform>%n rappels ignorés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder postponed</source>
        <translation>1 rappel reporté</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders postponed</source>
        <translation>
            <numerusform>%n rappel reporté</numerusform>
            <numerusform>%n rappels reportés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task imported</source>
        <translation>1 tâche importée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks imported</source>
        <translation>
            <numerusform>%n tâche importée</numerusform>
            <numerusform>%n tâches importées</numerusform>
        </translation>
    </message>
    <message>
        <source>No copy was kept: %1</source>
        <translation>Aucune copie n’a été conservée&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>1 task moved on to its next time</source>
        <translation>1 tâche passée à l’occurrence suivante</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted this time</source>
        <translation>
            <numerusform>%n tâche supprimée pour cette occurrence</numerusform>
            <numerusform>%n tâches supprimées pour cette occurrence</numerusform>
        </translation>
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
    <name>CommandLine</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>L’option «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value.</source>
        <translation>L’option «&#xa0;%1&#xa0;» exige une valeur.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value.</source>
        <translation>L’option «&#xa0;%1&#xa0;» n’accepte pas de valeur.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;; the formats are &quot;ics&quot; and &quot;csv&quot;.</source>
        <translation>Le format «&#xa0;%1&#xa0;» n’existe pas&#xa0;; les formats sont «&#xa0;ics&#xa0;» et «&#xa0;csv&#xa0;».</translation>
    </message>
    <message>
        <source>With &quot;-&quot; the format has to be said, by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>Avec «&#xa0;-&#xa0;», le format doit être indiqué par «&#xa0;--format ics&#xa0;» ou «&#xa0;--format csv&#xa0;».</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; ends neither in &quot;.ics&quot; nor in &quot;.csv&quot;; say the format by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» ne se termine ni par «&#xa0;.ics&#xa0;» ni par «&#xa0;.csv&#xa0;»&#xa0;; indiquez le format par «&#xa0;--format ics&#xa0;» ou «&#xa0;--format csv&#xa0;».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes with &quot;%2&quot; only.</source>
        <translation>L’option «&#xa0;%1&#xa0;» ne s’emploie qu’avec «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; do not go together.</source>
        <translation>Les options «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» sont incompatibles.</translation>
    </message>
    <message>
        <source>The word &quot;%1&quot; is one too many.</source>
        <translation>Le mot «&#xa0;%1&#xa0;» est en trop.</translation>
    </message>
    <message>
        <source>Ambertask --export FILE [--format ics|csv]</source>
        <translation>Ambertask --export FICHIER [--format ics|csv]</translation>
    </message>
    <message>
        <source>Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]</source>
        <translation>Ambertask --import FICHIER [--format ics|csv] [--yes] [--with-programs]</translation>
    </message>
    <message>
        <source>Without an option the organizer starts with its window. With one of these it does what it is told and ends, without a window, also while a copy runs:</source>
        <translation>Sans option, Ambertask démarre avec sa fenêtre. Avec l’une des options suivantes, il exécute la commande sans fenêtre puis se termine, même si Ambertask est déjà en cours d’exécution&#xa0;:</translation>
    </message>
    <message>
        <source>Writes all tasks, each on a line, with tabs between the fields, which the first line names. In texts \t stands for a tab, \n for a line break and \\ for \.</source>
        <translation>Écrit toutes les tâches, une par ligne, avec des tabulations entre les champs, que la première ligne nomme. Dans les textes, \t représente une tabulation, \n un saut de ligne et \\ le caractère \.</translation>
    </message>
    <message>
        <source>Writes all tasks as an array of JSON objects.</source>
        <translation>Écrit toutes les tâches sous forme de tableau d’objets JSON.</translation>
    </message>
    <message>
        <source>--export FILE</source>
        <translation>--export FICHIER</translation>
    </message>
    <message>
        <source>Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv).</source>
        <translation>Écrit toutes les tâches dans FICHIER, au format iCalendar (.ics) ou CSV (.csv).</translation>
    </message>
    <message>
        <source>--import FILE</source>
        <translation>--import FICHIER</translation>
    </message>
    <message>
        <source>Says what an import of FILE would do and imports nothing; the status is 1.</source>
        <translation>Indique ce que ferait l’importation de FICHIER, sans rien importer&#xa0;; le code de retour est 1.</translation>
    </message>
    <message>
        <source>--import FILE --yes</source>
        <translation>--import FICHIER --yes</translation>
    </message>
    <message>
        <source>Imports FILE, without the programs that its tasks would start; it names them.</source>
        <translation>Importe FICHIER sans les programmes que ses tâches lanceraient, et indique lesquels.</translation>
    </message>
    <message>
        <source>--import FILE --yes --with-programs</source>
        <translation>--import FICHIER --yes --with-programs</translation>
    </message>
    <message>
        <source>Imports these programs as well.</source>
        <translation>Importe aussi ces programmes.</translation>
    </message>
    <message>
        <source>The format of FILE, where its name does not tell. FILE can be &quot;-&quot; then, for standard output or standard input.</source>
        <translation>Le format de FICHIER, si son nom ne l’indique pas. FICHIER peut alors être «&#xa0;-&#xa0;», pour la sortie standard ou l’entrée standard.</translation>
    </message>
    <message>
        <source>Writes this text.</source>
        <translation>Affiche ce texte.</translation>
    </message>
    <message>
        <source>Writes the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>The status is 0, 1 when something has failed, and 2 when the command line is wrong.</source>
        <translation>Le code de retour est 0, 1 en cas d’échec et 2 si la ligne de commande est incorrecte.</translation>
    </message>
    <message>
        <source>--format ics|csv</source>
        <translation>--format ics|csv</translation>
    </message>
</context>
<context>
    <name>CommandRun</name>
    <message>
        <source>1 record cannot be read and is left out. %1</source>
        <translation>1 enregistrement ne peut pas être lu et est omis. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n records cannot be read and are left out. The first: %1</source>
        <translation>
            <numerusform>%n enregistrement ne peut pas être lu et est omis. Le premier&#xa0;: %1</numerusform>
            <numerusform>%n enregistrements ne peuvent pas être lus et sont omis. Le premier&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>La sortie n’a pas pu être écrite&#xa0;: %1.</translation>
    </message>
    <message>
        <source>See &quot;Ambertask --help&quot;.</source>
        <translation>Voir «&#xa0;Ambertask --help&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing was imported; the option &quot;--yes&quot; imports it.</source>
        <translation>Rien n’a été importé&#xa0;; l’option «&#xa0;--yes&#xa0;» lance l’importation.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Il n’y a rien à importer.</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>Importation terminée.</translation>
    </message>
    <message>
        <source>What cannot be read in the file was left out.</source>
        <translation>Ce qui ne peut pas être lu dans le fichier a été omis.</translation>
    </message>
    <message>
        <source>New: %1</source>
        <translation>Nouvelle tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Tâche modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>New category: %1</source>
        <translation>Nouvelle catégorie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Starts a program, &quot;%1&quot;: %2</source>
        <translation>Lance un programme, «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Left out, a program that &quot;%1&quot; would start: %2</source>
        <translation>Omis, un programme que «&#xa0;%1&#xa0;» lancerait&#xa0;: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1: %2</source>
        <translation>Illisible, ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1, &quot;%2&quot;: %3</source>
        <translation>Illisible, ligne %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>There are no tasks yet: the program folder &quot;%1&quot; does not exist. The first start makes it, and so does an import.</source>
        <translation>Il n’y a pas encore de tâches&#xa0;: le dossier du programme «&#xa0;%1&#xa0;» n’existe pas. Il est créé au premier démarrage ou par une importation.</translation>
    </message>
    <message>
        <source>There are no tasks yet. The first start makes the data file, and so does an import.</source>
        <translation>Il n’y a pas encore de tâches. Le fichier de données est créé au premier démarrage ou par une importation.</translation>
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
    <name>CopyListModel</name>
    <message>
        <source>First change of the day</source>
        <translation>Première modification du jour</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restauration</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importation</translation>
    </message>
    <message>
        <source>Deletion of tasks</source>
        <translation>Suppression de tâches</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à niveau</translation>
    </message>
    <message>
        <source>1 task added</source>
        <translation>1 tâche ajoutée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks added</source>
        <translation>
            <numerusform>%n tâche ajoutée</numerusform>
            <numerusform>%n tâches ajoutées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task changed</source>
        <translation>1 tâche modifiée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks changed</source>
        <translation>
            <numerusform>%n tâche modifiée</numerusform>
            <numerusform>%n tâches modifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task gone</source>
        <translation>1 tâche retirée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks gone</source>
        <translation>
            <numerusform>%n tâche retirée</numerusform>
            <numerusform>%n tâches retirées</numerusform>
        </translation>
    </message>
    <message>
        <source>other categories</source>
        <translation>catégories modifiées</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>aucune modification</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Créée le</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Since then</source>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>is being compared...</source>
        <translation>comparaison en cours…</translation>
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
    <name>Draft</name>
    <message>
        <source>The input is too large. Nothing was stored.</source>
        <translation>L’entrée est trop volumineuse. Rien n’a été enregistré.</translation>
    </message>
</context>
<context>
    <name>EmptyListNote</name>
    <message>
        <source>%1 of 1 task</source>
        <translation>%1 sur 1 tâche</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n tasks</source>
        <translation>
            <numerusform>%1 sur %n tâche</numerusform>
            <numerusform>%1 sur %n tâches</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show all</source>
        <translation>Tout affic&amp;her</translation>
    </message>
    <message>
        <source>There are no tasks yet</source>
        <translation>Il n’y a pas encore de tâches</translation>
    </message>
    <message>
        <source>No task matches the filters</source>
        <translation>Aucune tâche ne correspond aux filtres</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;</source>
        <translation>Rien trouvé pour «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ExchangeTexts</name>
    <message>
        <source>The file could not be read: %1.</source>
        <translation>Le fichier n’a pas pu être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file is no iCalendar file.</source>
        <translation>Le fichier n’est pas un fichier iCalendar.</translation>
    </message>
    <message>
        <source>It has no end.</source>
        <translation>L’entrée n’a pas de fin.</translation>
    </message>
    <message>
        <source>Its parts are nested too deeply.</source>
        <translation>Les parties de l’entrée sont imbriquées trop profondément.</translation>
    </message>
    <message>
        <source>The file ends in the middle of it.</source>
        <translation>Le fichier se termine au milieu de l’entrée.</translation>
    </message>
    <message>
        <source>One of its parts has no end.</source>
        <translation>Une partie de l’entrée n’a pas de fin.</translation>
    </message>
    <message>
        <source>One of its lines is too long.</source>
        <translation>Une ligne de l’entrée est trop longue.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>L’entrée est trop volumineuse.</translation>
    </message>
    <message>
        <source>It has too many columns.</source>
        <translation>L’entrée a trop de colonnes.</translation>
    </message>
    <message>
        <source>One of its quotes has no end.</source>
        <translation>Un guillemet de l’entrée n’est pas fermé.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; cannot be read: %2</source>
        <translation>La colonne «&#xa0;%1&#xa0;» ne peut pas être lue&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file is no list of tasks: its first line has no column &quot;%1&quot;.</source>
        <translation>Le fichier n’est pas une liste de tâches&#xa0;: sa première ligne ne contient pas de colonne «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>It holds bytes that are no text in UTF-8.</source>
        <translation>L’entrée contient des octets qui ne sont pas du texte en UTF-8.</translation>
    </message>
    <message>
        <source>1 task is new.</source>
        <translation>1 tâche est nouvelle.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are new.</source>
        <translation>
            <numerusform>%n tâche est nouvelle.</numerusform>
            <numerusform>%n tâches sont nouvelles.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is changed.</source>
        <translation>1 tâche est modifiée.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are changed.</source>
        <translation>
            <numerusform>%n tâche est modifiée.</numerusform>
            <numerusform>%n tâches sont modifiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is the same.</source>
        <translation>1 tâche est inchangée.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are the same.</source>
        <translation>
            <numerusform>%n tâche est inchangée.</numerusform>
            <numerusform>%n tâches sont inchangées.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file holds no task.</source>
        <translation>Le fichier ne contient aucune tâche.</translation>
    </message>
    <message>
        <source>1 category is made.</source>
        <translation>1 catégorie est créée.</translation>
    </message>
    <message numerus="yes">
        <source>%n categories are made.</source>
        <translation>
            <numerusform>%n catégorie est créée.</numerusform>
            <numerusform>%n catégories sont créées.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task cannot be read and stays out.</source>
        <translation>1 tâche ne peut pas être lue et est omise.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks cannot be read and stay out.</source>
        <translation>
            <numerusform>%n tâche ne peut pas être lue et est omise.</numerusform>
            <numerusform>%n tâches ne peuvent pas être lues et sont omises.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry is no task and stays out.</source>
        <translation>1 entrée n’est pas une tâche et est omise.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are no tasks and stay out.</source>
        <translation>
            <numerusform>%n entrée n’est pas une tâche et est omise.</numerusform>
            <numerusform>%n entrées ne sont pas des tâches et sont omises.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder is past and comes in as dismissed.</source>
        <translation>1 rappel est déjà passé et est importé comme ignoré.</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders are past and come in as dismissed.</source>
        <translation>
            <numerusform>%n rappel est déjà passé et est importé comme ignoré.</numerusform>
            <numerusform>%n rappels sont déjà passés et sont importés comme ignorés.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task repeats and comes in once.</source>
        <translation>1 tâche se répète et n’est importée qu’une fois.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks repeat and come in once.</source>
        <translation>
            <numerusform>%n tâche se répète et n’est importée qu’une fois.</numerusform>
            <numerusform>%n tâches se répètent et ne sont importées qu’une fois.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task has no due date and is due today.</source>
        <translation>1 tâche n’a pas d’échéance et reçoit celle d’aujourd’hui.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks have no due date and are due today.</source>
        <translation>
            <numerusform>%n tâche n’a pas d’échéance et reçoit celle d’aujourd’hui.</numerusform>
            <numerusform>%n tâches n’ont pas d’échéance et reçoivent celle d’aujourd’hui.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further reminder is kept, but does not remind.</source>
        <translation>1 rappel supplémentaire est conservé, mais ne se déclenche pas.</translation>
    </message>
    <message numerus="yes">
        <source>%n further reminders are kept, but do not remind.</source>
        <translation>
            <numerusform>%n rappel supplémentaire est conservé, mais ne se déclenche pas.</numerusform>
            <numerusform>%n rappels supplémentaires sont conservés, mais ne se déclenchent pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is in an unknown time zone and is taken as local time.</source>
        <translation>1 tâche est dans un fuseau horaire inconnu et est interprétée en heure locale.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are in unknown time zones and are taken as local time.</source>
        <translation>
            <numerusform>%n tâche est dans un fuseau horaire inconnu et est interprétée en heure locale.</numerusform>
            <numerusform>%n tâches sont dans des fuseaux horaires inconnus et sont interprétées en heure locale.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tasks cannot be exported or imported: the module &quot;ambertask_exchange&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>Les tâches ne peuvent être ni exportées ni importées&#xa0;: le module «&#xa0;ambertask_exchange&#xa0;» est absent du dossier du programme ou endommagé.</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importées</translation>
    </message>
    <message>
        <source>A task before it has the same UID.</source>
        <translation>Une tâche précédente a le même UID.</translation>
    </message>
    <message>
        <source>The file holds more than %1 tasks that are new. Nothing was stored.</source>
        <translation>Le fichier contient plus de %1 nouvelles tâches. Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The file is too large. Nothing was stored.</source>
        <translation>Le fichier est trop volumineux. Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The file holds %1 tasks that are new, and there is room for %2. Nothing was stored. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>Le fichier contient %1 nouvelles tâches, mais il n’y a de la place que pour %2. Rien n’a été enregistré. Supprimez les tâches dont vous n’avez plus besoin, puis quittez Ambertask et relancez-le.</translation>
    </message>
    <message>
        <source>The tasks could not be written: %1.</source>
        <translation>Les tâches n’ont pas pu être écrites&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Its due date cannot be read: %1</source>
        <translation>L’échéance ne peut pas être lue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was stored: another program has changed the tasks meanwhile.</source>
        <translation>Rien n’a été enregistré&#xa0;: un autre programme a modifié les tâches entre-temps.</translation>
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
    <message>
        <source>another program is using it</source>
        <translation>un autre programme l’utilise</translation>
    </message>
</context>
<context>
    <name>FileExchange</name>
    <message>
        <source>iCalendar Files (*.ics)|*.ics</source>
        <translation>Fichiers iCalendar (*.ics)|*.ics</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv</source>
        <translation>Fichiers CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>the name of the file ends neither with .ics nor with .csv</source>
        <translation>le nom du fichier ne se termine ni par .ics ni par .csv</translation>
    </message>
    <message>
        <source>1 task was exported to &quot;%1&quot;</source>
        <translation>1 tâche a été exportée vers «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were exported to &quot;%1&quot;</source>
        <translation>
            <numerusform>%n tâche a été exportée vers «&#xa0;%1&#xa0;»</numerusform>
            <numerusform>%n tâches ont été exportées vers «&#xa0;%1&#xa0;»</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was added</source>
        <translation>1 tâche a été ajoutée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were added</source>
        <translation>
            <numerusform>%n tâche a été ajoutée</numerusform>
            <numerusform>%n tâches ont été ajoutées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was changed</source>
        <translation>1 tâche a été modifiée</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were changed</source>
        <translation>
            <numerusform>%n tâche a été modifiée</numerusform>
            <numerusform>%n tâches ont été modifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv</source>
        <translation>Fichiers iCalendar et CSV (*.ics;*.csv)|*.ics;*.csv</translation>
    </message>
    <message>
        <source>Exporting the tasks...</source>
        <translation>Exportation des tâches en cours…</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>Rien n’a été exporté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Lecture du fichier en cours…</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Rien n’a été importé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Importing the tasks...</source>
        <translation>Importation des tâches en cours…</translation>
    </message>
    <message>
        <source>Nothing was imported.
%1</source>
        <translation>Rien n’a été importé.
%1</translation>
    </message>
    <message>
        <source>Nothing was imported yet: the tasks or the file have been changed meanwhile.
The window shows what the import would do now.</source>
        <translation>Rien n’a encore été importé&#xa0;: les tâches ou le fichier ont été modifiés entre-temps.
La fenêtre montre ce que ferait l’importation maintenant.</translation>
    </message>
</context>
<context>
    <name>FilterFold</name>
    <message>
        <source>Unfold the filters</source>
        <translation>Déplier les filtres</translation>
    </message>
    <message>
        <source>Fold the filters away</source>
        <translation>Replier les filtres</translation>
    </message>
</context>
<context>
    <name>FindField</name>
    <message>
        <source>Find tasks</source>
        <translation>Chercher</translation>
    </message>
</context>
<context>
    <name>GridView</name>
    <message>
        <source>Sorts the list</source>
        <translation>Trie la liste</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Trié par ordre croissant</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Trié par ordre décroissant</translation>
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
    <name>ImportListModel</name>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importation</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
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
    <name>KeptCopies</name>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>le disque est presque plein</translation>
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
    <message numerus="yes">
        <source>%n times since %1</source>
        <translation>
            <numerusform>%n fois depuis %1</numerusform>
            <numerusform>%n fois depuis %1</numerusform>
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
    <message>
        <source>Restore from a c&amp;opy...</source>
        <translation>Restaurer depuis une co&amp;pie…</translation>
    </message>
    <message>
        <source>Shows the copies of your data that the program has made by itself</source>
        <translation>Affiche les copies de vos données que le programme a créées de lui-même</translation>
    </message>
    <message>
        <source>Exchange with other programs</source>
        <translation>Échange avec d’autres programmes</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>Saves all tasks as iCalendar or CSV, for other programs</source>
        <translation>Enregistre toutes les tâches au format iCalendar ou CSV, pour d’autres programmes</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mporter…</translation>
    </message>
    <message>
        <source>Adds the tasks of an iCalendar or CSV file; shows first what would happen</source>
        <translation>Ajoute les tâches d’un fichier iCalendar ou CSV&#xa0;; montre d’abord ce qui se passerait</translation>
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
    <message>
        <source>&amp;This Time</source>
        <translation>&amp;Cette occurrence</translation>
    </message>
    <message>
        <source>&amp;All Times</source>
        <translation>&amp;Toutes les occurrences</translation>
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
    <message>
        <source>&amp;Save as...</source>
        <translation>E&amp;nregistrer sous…</translation>
    </message>
    <message>
        <source>Saves the tasks of the report as iCalendar or CSV, for other programs</source>
        <translation>Enregistre les tâches du rapport au format iCalendar ou CSV, pour d’autres programmes</translation>
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
    <message>
        <source>The task &quot;%1&quot; was added; the search does not show it</source>
        <translation>La tâche «&#xa0;%1&#xa0;» a été ajoutée&#xa0;; la recherche ne l’affiche pas</translation>
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
    <name>RepeatByHand</name>
    <message>
        <source>Custom ...</source>
        <translation>Personnalisée…</translation>
    </message>
</context>
<context>
    <name>RepeatChoices</name>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>Every weekday</source>
        <translation>Tous les jours ouvrés</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Toutes les semaines</translation>
    </message>
    <message>
        <source>Every 2 weeks</source>
        <translation>Toutes les 2 semaines</translation>
    </message>
    <message>
        <source>Every month on the same day</source>
        <translation>Tous les mois le même jour</translation>
    </message>
    <message>
        <source>Every month on the last day</source>
        <translation>Tous les mois le dernier jour</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Tous les ans</translation>
    </message>
</context>
<context>
    <name>RepeatInput</name>
    <message>
        <source>Please tick a weekday.</source>
        <translation>Veuillez cocher un jour de la semaine.</translation>
    </message>
    <message>
        <source>The last day should not be earlier than the due date.</source>
        <translation>Le dernier jour ne doit pas être antérieur à la date d’échéance.</translation>
    </message>
</context>
<context>
    <name>RepeatTexts</name>
    <message>
        <source>%1 until %2</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;, and %2 the last day</extracomment>
        <translation>%1 jusqu’au %2</translation>
    </message>
    <message>
        <source>%1, once</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;</extracomment>
        <translation>%1, une fois</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times</source>
        <translation>
            <numerusform>%1, %n fois</numerusform>
            <numerusform>%1, %n fois</numerusform>
        </translation>
    </message>
    <message>
        <source>by a rule of another program</source>
        <translation>selon une règle d’un autre programme</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>tous les jours</translation>
    </message>
    <message numerus="yes">
        <source>every %n days</source>
        <translation>
            <numerusform>tous les %n jours</numerusform>
            <numerusform>tous les %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>Day and month of a date, in the format of QLocale: &quot;d. MMMM&quot;, &quot;MMMM d&quot;, &quot;d &apos;de&apos; MMMM&quot;</extracomment>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>every year on %1</source>
        <extracomment>%1 is a day and a month</extracomment>
        <translation>tous les ans le %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n years on %1</source>
        <translation>
            <numerusform>tous les %n ans le %1</numerusform>
            <numerusform>tous les %n ans le %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every weekday</source>
        <extracomment>on each day of the working week, as from Monday to Friday</extracomment>
        <translation>tous les jours ouvrés</translation>
    </message>
    <message>
        <source>every week on %1</source>
        <extracomment>%1 is a weekday or several: &quot;Monday and Thursday&quot;</extracomment>
        <translation>toutes les semaines le %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n weeks on %1</source>
        <translation>
            <numerusform>toutes les %n semaines le %1</numerusform>
            <numerusform>toutes les %n semaines le %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on day %1</source>
        <extracomment>%1 is the number of a day</extracomment>
        <translation>tous les mois le %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on day %1</source>
        <translation>
            <numerusform>tous les %n mois le %1</numerusform>
            <numerusform>tous les %n mois le %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last day</source>
        <translation>tous les mois le dernier jour</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last day</source>
        <translation>
            <numerusform>tous les %n mois le dernier jour</numerusform>
            <numerusform>tous les %n mois le dernier jour</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the first %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>tous les mois le premier %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the first %1</source>
        <translation>
            <numerusform>tous les %n mois le premier %1</numerusform>
            <numerusform>tous les %n mois le premier %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the second %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>tous les mois le deuxième %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the second %1</source>
        <translation>
            <numerusform>tous les %n mois le deuxième %1</numerusform>
            <numerusform>tous les %n mois le deuxième %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the third %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>tous les mois le troisième %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the third %1</source>
        <translation>
            <numerusform>tous les %n mois le troisième %1</numerusform>
            <numerusform>tous les %n mois le troisième %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the fourth %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>tous les mois le quatrième %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the fourth %1</source>
        <translation>
            <numerusform>tous les %n mois le quatrième %1</numerusform>
            <numerusform>tous les %n mois le quatrième %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>tous les mois le dernier %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last %1</source>
        <translation>
            <numerusform>tous les %n mois le dernier %1</numerusform>
            <numerusform>tous les %n mois le dernier %1</numerusform>
        </translation>
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
    <message>
        <source>It has been changed since.</source>
        <translation>Cela a été modifié depuis.</translation>
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
    <message>
        <source>This desktop lets no program keep its windows on top. The menu of a title bar may offer it.</source>
        <translation>Ce bureau ne laisse aucun programme garder ses fenêtres au premier plan. Le menu d’une barre de titre le propose peut-être.</translation>
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
    <name>TaskActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>&amp;Postpone</source>
        <translation>&amp;Reporter</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>Ét&amp;at</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>&amp;Priorité</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>Caté&amp;gorie</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>A&amp;nnuler&#x202f;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>Réta&amp;blir&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>TaskChoices</name>
    <message>
        <source>Set Ba&amp;ck to &quot;Not Started&quot;</source>
        <translation>Reme&amp;ttre à «&#x202f;Non commencée&#x202f;»</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>Voulez-vous vraiment supprimer cette tâche&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>Voulez-vous vraiment supprimer %n tâche&#x202f;?</numerusform>
            <numerusform>Voulez-vous vraiment supprimer %n tâches&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Not Started</source>
        <translation>&amp;Non commencée</translation>
    </message>
    <message>
        <source>In &amp;Progress</source>
        <translation>&amp;En cours</translation>
    </message>
    <message>
        <source>&amp;Completed</source>
        <translation>&amp;Terminée</translation>
    </message>
    <message>
        <source>&amp;Waiting on someone else</source>
        <translation>En &amp;attente d’un tiers</translation>
    </message>
    <message>
        <source>&amp;Deferred</source>
        <translation>&amp;Reportée</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Haute</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normale</translation>
    </message>
    <message>
        <source>&amp;Low</source>
        <translation>&amp;Basse</translation>
    </message>
    <message>
        <source>This task repeats. Do you want to delete it this time, or all times?</source>
        <translation>Cette tâche se répète. Voulez-vous supprimer uniquement cette occurrence ou toutes les occurrences&#x202f;?</translation>
    </message>
    <message>
        <source>These tasks repeat. Do you want to delete them this time, or all times?</source>
        <translation>Ces tâches se répètent. Voulez-vous supprimer pour chacune uniquement cette occurrence ou toutes les occurrences&#x202f;?</translation>
    </message>
    <message>
        <source>Some of the tasks repeat. Do you want to delete those this time, or all times?
The others are deleted.</source>
        <translation>Certaines des tâches se répètent. Voulez-vous supprimer pour chacune d’elles uniquement cette occurrence ou toutes les occurrences&#x202f;?
Les autres tâches seront supprimées.</translation>
    </message>
</context>
<context>
    <name>TaskFilters</name>
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
        <source>The same order chosen again is turned round</source>
        <translation>Le même ordre, choisi une seconde fois, est inversé</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Catégorie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>État&#xa0;: %1</translation>
    </message>
    <message>
        <source>Due from %1 to %2</source>
        <translation>À échéance du %1 au %2</translation>
    </message>
    <message>
        <source>Active tasks only</source>
        <translation>Tâches actives uniquement</translation>
    </message>
    <message>
        <source>Expired tasks only</source>
        <translation>Tâches en retard uniquement</translation>
    </message>
    <message>
        <source>No filter leaves a task out</source>
        <translation>Aucun filtre n’écarte de tâche</translation>
    </message>
</context>
<context>
    <name>TaskGridModel</name>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>Échéance aujourd’hui</translation>
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
    <message>
        <source>Repeats %1</source>
        <translation>Se répète %1</translation>
    </message>
</context>
<context>
    <name>TaskMoments</name>
    <message>
        <source>1 &amp;day before</source>
        <translation>1 &amp;jour avant</translation>
    </message>
    <message>
        <source>&amp;At the due moment</source>
        <translation>À l’é&amp;chéance</translation>
    </message>
    <message>
        <source>&amp;5 minutes before</source>
        <translation>&amp;5 minutes avant</translation>
    </message>
    <message>
        <source>&amp;15 minutes before</source>
        <translation>&amp;15 minutes avant</translation>
    </message>
    <message>
        <source>&amp;30 minutes before</source>
        <translation>&amp;30 minutes avant</translation>
    </message>
    <message>
        <source>1 &amp;hour before</source>
        <translation>1 &amp;heure avant</translation>
    </message>
    <message>
        <source>To&amp;day, %1</source>
        <translation>&amp;Aujourd’hui, %1</translation>
    </message>
    <message>
        <source>&amp;Tomorrow, %1</source>
        <translation>&amp;Demain, %1</translation>
    </message>
    <message>
        <source>Next &amp;Monday, %1</source>
        <translation>&amp;Lundi prochain, %1</translation>
    </message>
</context>
<context>
    <name>TaskRepeats</name>
    <message>
        <source>Tasks cannot repeat in this data file, which is of an earlier version and could not be upgraded. The next start of Ambertask tries it again.</source>
        <translation>Les tâches ne peuvent pas se répéter dans ce fichier de données, qui est d’une version antérieure et n’a pas pu être mis à niveau. Le prochain démarrage d’Ambertask réessaiera.</translation>
    </message>
</context>
<context>
    <name>TaskStoring</name>
    <message>
        <source>Nothing was stored: there is no number left for a new category.</source>
        <translation>Rien n’a été enregistré&#xa0;: il ne reste aucun numéro pour une nouvelle catégorie.</translation>
    </message>
    <message>
        <source>Nothing was stored: there is no room for so many tasks.</source>
        <translation>Rien n’a été enregistré&#xa0;: il n’y a pas assez de place pour autant de tâches.</translation>
    </message>
    <message>
        <source>Nothing was stored: the task &quot;%1&quot; has been deleted meanwhile. Choose the file again.</source>
        <translation>Rien n’a été enregistré&#xa0;: la tâche «&#xa0;%1&#xa0;» a été supprimée entre-temps. Choisissez à nouveau le fichier.</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
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
    <name>TrayNews</name>
    <message numerus="yes">
        <source>%n due</source>
        <comment>reminders</comment>
        <translation>
            <numerusform>%n rappel échu</numerusform>
            <numerusform>%n rappels échus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <comment>tasks</comment>
        <translation>
            <numerusform>%n tâche en retard</numerusform>
            <numerusform>%n tâches en retard</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>2 due, 3 overdue</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>UnchangedFile</name>
    <message>
        <source>another program is using it</source>
        <translation>un autre programme l’utilise</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>U&amp;ndo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>Non annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>Non rétabli&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>It would leave tasks without a category.</source>
        <translation>Des tâches resteraient sans catégorie.</translation>
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
    <name>UnusableCopy</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
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
    <message>
        <source>The tasks could not be saved.
%1</source>
        <translation>Les tâches n’ont pas pu être enregistrées.
%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>Se répète %1</translation>
    </message>
    <message>
        <source>Nothing was saved: the report shows tasks from before the restore.</source>
        <translation>Rien n’a été enregistré&#xa0;: le rapport montre des tâches d’avant la restauration.</translation>
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
    <name>frmCopies</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Restore from a Copy</source>
        <translation>Restaurer depuis une copie</translation>
    </message>
    <message>
        <source>Copies of your data</source>
        <translation>Copies de vos données</translation>
    </message>
    <message>
        <source>No copy has been made yet. The first one is made before the next change.</source>
        <translation>Aucune copie n’a encore été créée. La première le sera avant la prochaine modification.</translation>
    </message>
    <message>
        <source>Puts the selected copy in the place of your data, which is kept as another copy</source>
        <translation>Met la copie sélectionnée à la place de vos données, qui sont conservées comme une autre copie</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Closes this list and changes nothing</source>
        <translation>Ferme cette liste sans rien modifier</translation>
    </message>
    <message>
        <source>Co&amp;pies of your data that the program has made by itself</source>
        <translation>Co&amp;pies de vos données que le programme a créées de lui-même</translation>
    </message>
    <message>
        <source>The copies could not be compared: %1</source>
        <translation>Les copies n’ont pas pu être comparées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the copy of %1? Your data as it is now is kept as another copy.</source>
        <translation>Voulez-vous vraiment restaurer la copie du %1&#xa0;? Vos données actuelles seront conservées comme une autre copie.</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>Ligne %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>New categories: %1</source>
        <translation>Nouvelles catégories&#xa0;: %1</translation>
    </message>
    <message>
        <source>And more that cannot be read.</source>
        <translation>Et d’autres qui ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Import Tasks</source>
        <translation>Importer des tâches</translation>
    </message>
    <message>
        <source>Tasks to import</source>
        <translation>Tâches à importer</translation>
    </message>
    <message>
        <source>Programs to start with the reminder</source>
        <translation>Programmes à lancer avec le rappel</translation>
    </message>
    <message>
        <source>&amp;Programs to start with the reminder; tick those that you trust</source>
        <translation>&amp;Programmes à lancer avec le rappel&#xa0;; cochez ceux auxquels vous faites confiance</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>&amp;Tâches</translation>
    </message>
    <message>
        <source>From &quot;%1&quot;</source>
        <translation>Depuis «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
    <name>frmRepeat</name>
    <message>
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a weekday, %2 a date and a time</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semaines</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Années</translation>
    </message>
    <message>
        <source>The same day</source>
        <translation>Le même jour</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>Le dernier jour</translation>
    </message>
    <message>
        <source>The same weekday</source>
        <translation>Le même jour de la semaine</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>On a date</source>
        <translation>À une date</translation>
    </message>
    <message>
        <source>After a number of times</source>
        <translation>Après un nombre d’occurrences</translation>
    </message>
    <message>
        <source>On these &amp;weekdays</source>
        <translation>Ces &amp;jours de la semaine</translation>
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
        <source>Repeat every so many</source>
        <translation>Intervalle de répétition</translation>
    </message>
    <message>
        <source>Days, weeks, months or years</source>
        <translation>Jours, semaines, mois ou années</translation>
    </message>
    <message>
        <source>On these weekdays</source>
        <translation>Ces jours de la semaine</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Jour du mois</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>Number of times</source>
        <translation>Nombre d’occurrences</translation>
    </message>
    <message>
        <source>Next due moments</source>
        <translation>Prochaines échéances</translation>
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
        <source>Repeat &amp;every:</source>
        <translation>Inter&amp;valle&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unité&#xa0;:</translation>
    </message>
    <message>
        <source>Day of the &amp;month:</source>
        <translation>Jour du &amp;mois&#xa0;:</translation>
    </message>
    <message>
        <source>E&amp;nd:</source>
        <translation>&amp;Fin&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>&amp;Dernier jour&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>Occu&amp;rrences&#xa0;:</translation>
    </message>
    <message>
        <source>Ne&amp;xt due moments:</source>
        <translation>&amp;Prochaines échéances&#xa0;:</translation>
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
    <message>
        <source>Set to</source>
        <translation>Régler sur</translation>
    </message>
    <message>
        <source>Set the due moment to</source>
        <translation>Régler l’échéance sur</translation>
    </message>
    <message>
        <source>Set the reminder to</source>
        <translation>Régler le rappel sur</translation>
    </message>
    <message>
        <source>Switches the reminder on; it follows the due moment until it is changed</source>
        <translation>Active le rappel, qui suit l’échéance jusqu’à ce qu’il soit modifié</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Fréquence de répétition</translation>
    </message>
    <message>
        <source>Repeat tas&amp;k:</source>
        <translation>Fré&amp;quence&#xa0;:</translation>
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
