<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AlertActions</name>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Completar</translation>
    </message>
    <message>
        <source>&amp;Open Item</source>
        <translation>&amp;Abrir tarea</translation>
    </message>
    <message>
        <source>&amp;Remind me later</source>
        <translation>&amp;Recordar más tarde</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Descartar</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Categoría: %1</translation>
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
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Later (15 minutes)</source>
        <translation>Más tarde (15 minutos)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>Cancelled</name>
    <message>
        <source>The operation was cancelled.</source>
        <translation>La operación se ha cancelado.</translation>
    </message>
</context>
<context>
    <name>CategoriesPage</name>
    <message>
        <source>&amp;Add</source>
        <translation>Añad&amp;ir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Add a category</source>
        <translation>Añadir una categoría</translation>
    </message>
    <message>
        <source>Edit the selected category</source>
        <translation>Editar la categoría seleccionada</translation>
    </message>
    <message>
        <source>Delete the selected category</source>
        <translation>Eliminar la categoría seleccionada</translation>
    </message>
    <message>
        <source>Help on categories</source>
        <translation>Ayuda sobre las categorías</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos; category, all tasks under this category will be deleted?</source>
        <translation>¿Seguro que desea eliminar la categoría «%1»? También se eliminarán todas sus tareas.</translation>
    </message>
    <message>
        <source>Category &quot;%1&quot; deleted with its tasks</source>
        <translation>Categoría «%1» eliminada con sus tareas</translation>
    </message>
    <message>
        <source>There are no categories yet</source>
        <translation>Aún no hay categorías</translation>
    </message>
</context>
<context>
    <name>CategoryInput</name>
    <message>
        <source>The changes to the category are not saved.</source>
        <translation>Los cambios de la categoría no se han guardado.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Los cambios de «%1» no se han guardado.</translation>
    </message>
</context>
<context>
    <name>CategoryPictures</name>
    <message>
        <source>Home</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Compras</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>Finanzas</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Viajes</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Estudio</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familia</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Ideas</translation>
    </message>
</context>
<context>
    <name>ChangeTexts</name>
    <message>
        <source>1 task deleted</source>
        <translation>1 tarea eliminada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted</source>
        <translation>
            <numerusform>%n tarea eliminada</numerusform>
            <numerusform>%n tareas eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task duplicated</source>
        <translation>1 tarea duplicada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks duplicated</source>
        <translation>
            <numerusform>%n tarea duplicada</numerusform>
            <numerusform>%n tareas duplicadas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task completed</source>
        <translation>1 tarea completada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks completed</source>
        <translation>
            <numerusform>%n tarea completada</numerusform>
            <numerusform>%n tareas completadas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task set back to &quot;Not Started&quot;</source>
        <translation>1 tarea devuelta a «No iniciada»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks set back to &quot;Not Started&quot;</source>
        <translation>
            <numerusform>%n tarea devuelta a «No iniciada»</numerusform>
            <numerusform>%n tareas devueltas a «No iniciada»</numerusform>
        </translation>
    </message>
    <message>
        <source>Status of 1 task changed</source>
        <translation>Estado de 1 tarea cambiado</translation>
    </message>
    <message numerus="yes">
        <source>Status of %n tasks changed</source>
        <translation>
            <numerusform>Estado de %n tarea cambiado</numerusform>
            <numerusform>Estado de %n tareas cambiado</numerusform>
        </translation>
    </message>
    <message>
        <source>Priority of 1 task changed</source>
        <translation>Prioridad de 1 tarea cambiada</translation>
    </message>
    <message numerus="yes">
        <source>Priority of %n tasks changed</source>
        <translation>
            <numerusform>Prioridad de %n tarea cambiada</numerusform>
            <numerusform>Prioridad de %n tareas cambiada</numerusform>
        </translation>
    </message>
    <message>
        <source>Category of 1 task changed</source>
        <translation>Categoría de 1 tarea cambiada</translation>
    </message>
    <message numerus="yes">
        <source>Category of %n tasks changed</source>
        <translation>
            <numerusform>Categoría de %n tarea cambiada</numerusform>
            <numerusform>Categoría de %n tareas cambiada</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder dismissed</source>
        <translation>1 recordatorio descartado</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders dismissed</source>
        <translation>
            <numerusform>%n recordatorio descartado</numerusform>
            <numerusform>%n recordatorios descartados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder postponed</source>
        <translation>1 recordatorio pospuesto</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders postponed</source>
        <translation>
            <numerusform>%n recordatorio pospuesto</numerusform>
            <numerusform>%n recordatorios pospuestos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task imported</source>
        <translation>1 tarea importada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks imported</source>
        <translation>
            <numerusform>%n tarea importada</numerusform>
            <numerusform>%n tareas importadas</numerusform>
        </translation>
    </message>
    <message>
        <source>No copy was kept: %1</source>
        <translation>No se conservó ninguna copia: %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>1 task moved on to its next time</source>
        <translation>1 tarea pasada a su próxima vez</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted this time</source>
        <translation>
            <numerusform>%n tarea eliminada esta vez</numerusform>
            <numerusform>%n tareas eliminadas esta vez</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClsTask</name>
    <message>
        <source>The statement is unfinished: %1</source>
        <translation>La instrucción está incompleta: %1</translation>
    </message>
    <message>
        <source>The task was not stored: there is no number left for a new one. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>La tarea no se guardó: no queda ningún número para una nueva. Elimine las tareas que ya no necesite, salga de Ambertask y vuelva a iniciarlo.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>No existe la opción «%1».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value.</source>
        <translation>La opción «%1» necesita un valor.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value.</source>
        <translation>La opción «%1» no admite ningún valor.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;; the formats are &quot;ics&quot; and &quot;csv&quot;.</source>
        <translation>No existe el formato «%1»; los formatos son «ics» y «csv».</translation>
    </message>
    <message>
        <source>With &quot;-&quot; the format has to be said, by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>Con «-» hay que indicar el formato mediante «--format ics» o «--format csv».</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; ends neither in &quot;.ics&quot; nor in &quot;.csv&quot;; say the format by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>El nombre «%1» no termina ni en «.ics» ni en «.csv»; indique el formato mediante «--format ics» o «--format csv».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes with &quot;%2&quot; only.</source>
        <translation>La opción «%1» solo se puede usar con «%2».</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; do not go together.</source>
        <translation>Las opciones «%1» y «%2» no se pueden usar juntas.</translation>
    </message>
    <message>
        <source>The word &quot;%1&quot; is one too many.</source>
        <translation>Sobra la palabra «%1».</translation>
    </message>
    <message>
        <source>Ambertask --export FILE [--format ics|csv]</source>
        <translation>Ambertask --export ARCHIVO [--format ics|csv]</translation>
    </message>
    <message>
        <source>Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]</source>
        <translation>Ambertask --import ARCHIVO [--format ics|csv] [--yes] [--with-programs]</translation>
    </message>
    <message>
        <source>Without an option the organizer starts with its window. With one of these it does what it is told and ends, without a window, also while a copy runs:</source>
        <translation>Sin opciones, el organizador se inicia con su ventana. Con una de las siguientes hace lo que se le pide y termina, sin ventana, incluso mientras otra copia del programa está en ejecución:</translation>
    </message>
    <message>
        <source>Writes all tasks, each on a line, with tabs between the fields, which the first line names. In texts \t stands for a tab, \n for a line break and \\ for \.</source>
        <translation>Escribe todas las tareas, cada una en una línea, con tabuladores entre los campos, cuyos nombres figuran en la primera línea. En los textos, \t representa un tabulador, \n un salto de línea y \\ el carácter \.</translation>
    </message>
    <message>
        <source>Writes all tasks as an array of JSON objects.</source>
        <translation>Escribe todas las tareas como una matriz de objetos JSON.</translation>
    </message>
    <message>
        <source>--export FILE</source>
        <translation>--export ARCHIVO</translation>
    </message>
    <message>
        <source>Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv).</source>
        <translation>Escribe todas las tareas en ARCHIVO, como iCalendar (.ics) o CSV (.csv).</translation>
    </message>
    <message>
        <source>--import FILE</source>
        <translation>--import ARCHIVO</translation>
    </message>
    <message>
        <source>Says what an import of FILE would do and imports nothing; the status is 1.</source>
        <translation>Indica lo que haría una importación de ARCHIVO y no importa nada; el estado es 1.</translation>
    </message>
    <message>
        <source>--import FILE --yes</source>
        <translation>--import ARCHIVO --yes</translation>
    </message>
    <message>
        <source>Imports FILE, without the programs that its tasks would start; it names them.</source>
        <translation>Importa ARCHIVO, sin los programas que iniciarían sus tareas; los enumera.</translation>
    </message>
    <message>
        <source>--import FILE --yes --with-programs</source>
        <translation>--import ARCHIVO --yes --with-programs</translation>
    </message>
    <message>
        <source>Imports these programs as well.</source>
        <translation>Importa también esos programas.</translation>
    </message>
    <message>
        <source>The format of FILE, where its name does not tell. FILE can be &quot;-&quot; then, for standard output or standard input.</source>
        <translation>El formato de ARCHIVO, si su nombre no lo indica. En ese caso, ARCHIVO puede ser «-», para la salida estándar o la entrada estándar.</translation>
    </message>
    <message>
        <source>Writes this text.</source>
        <translation>Escribe este texto.</translation>
    </message>
    <message>
        <source>Writes the version.</source>
        <translation>Escribe la versión.</translation>
    </message>
    <message>
        <source>The status is 0, 1 when something has failed, and 2 when the command line is wrong.</source>
        <translation>El estado es 0; 1 si algo ha fallado y 2 si la línea de comandos es incorrecta.</translation>
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
        <translation>1 registro no se puede leer y se omite. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n records cannot be read and are left out. The first: %1</source>
        <translation>
            <numerusform>%n registro no se puede leer y se omite. El primero: %1</numerusform>
            <numerusform>%n registros no se pueden leer y se omiten. El primero: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>No se pudo escribir la salida: %1.</translation>
    </message>
    <message>
        <source>See &quot;Ambertask --help&quot;.</source>
        <translation>Consulte «Ambertask --help».</translation>
    </message>
    <message>
        <source>Nothing was imported; the option &quot;--yes&quot; imports it.</source>
        <translation>No se ha importado nada; la opción «--yes» lo importa.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>No hay nada que importar.</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>Importación completada.</translation>
    </message>
    <message>
        <source>What cannot be read in the file was left out.</source>
        <translation>Se ha omitido lo que no se puede leer en el archivo.</translation>
    </message>
    <message>
        <source>New: %1</source>
        <translation>Nueva: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Cambiada: %1</translation>
    </message>
    <message>
        <source>New category: %1</source>
        <translation>Categoría nueva: %1</translation>
    </message>
    <message>
        <source>Starts a program, &quot;%1&quot;: %2</source>
        <translation>Inicia un programa, «%1»: %2</translation>
    </message>
    <message>
        <source>Left out, a program that &quot;%1&quot; would start: %2</source>
        <translation>Omitido, un programa que «%1» iniciaría: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1: %2</source>
        <translation>Ilegible, línea %1: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1, &quot;%2&quot;: %3</source>
        <translation>Ilegible, línea %1, «%2»: %3</translation>
    </message>
    <message>
        <source>There are no tasks yet: the program folder &quot;%1&quot; does not exist. The first start makes it, and so does an import.</source>
        <translation>Aún no hay tareas: la carpeta del programa «%1» no existe. Se crea en el primer inicio o con una importación.</translation>
    </message>
    <message>
        <source>There are no tasks yet. The first start makes the data file, and so does an import.</source>
        <translation>Aún no hay tareas. El archivo de datos se crea en el primer inicio o con una importación.</translation>
    </message>
</context>
<context>
    <name>CompiledHelpWindow</name>
    <message>
        <source>Ambertask Help</source>
        <translation>Ayuda de Ambertask</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>Texto más &amp;pequeño</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Índic&amp;e</translation>
    </message>
    <message>
        <source>S&amp;earch</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>No se puede mostrar la ayuda</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read. Installing the program again brings it back; your tasks are kept.</source>
        <translation>El archivo de ayuda «%1» está dañado o no se puede leer. Al reinstalar el programa se recupera; sus tareas se conservan.</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is not in the program&apos;s folder. Installing the program again brings it back; your tasks are kept.</source>
        <translation>El archivo de ayuda «%1» no está en la carpeta del programa. Al reinstalar el programa se recupera; sus tareas se conservan.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>No se puede mostrar esta página</translation>
    </message>
    <message>
        <source>The help file has no topic number %1.</source>
        <translation>El archivo de ayuda no contiene el tema número %1.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>I&amp;mprimir…</translation>
    </message>
    <message>
        <source>La&amp;rger text</source>
        <translation>Texto más &amp;grande</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. Do you want to write this topic to a PDF file instead?</source>
        <translation>No hay ninguna impresora configurada en este equipo. ¿Desea guardar este tema en un archivo PDF?</translation>
    </message>
    <message>
        <source>The topic could not be printed.</source>
        <translation>No se pudo imprimir el tema.</translation>
    </message>
    <message>
        <source>The topic could not be written to &quot;%1&quot;: %2.</source>
        <translation>No se pudo escribir el tema en «%1»: %2.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF guardado en «%1»</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>The connection is open already.</source>
        <translation>La conexión ya está abierta.</translation>
    </message>
    <message>
        <source>The data file knows no users and no passwords.</source>
        <translation>El archivo de datos no admite usuarios ni contraseñas.</translation>
    </message>
    <message>
        <source>The connection string &quot;%1&quot; names no data file.</source>
        <translation>La cadena de conexión «%1» no indica ningún archivo de datos.</translation>
    </message>
    <message>
        <source>The connection to the data file is not open.</source>
        <translation>La conexión con el archivo de datos no está abierta.</translation>
    </message>
</context>
<context>
    <name>ContentsPane</name>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
</context>
<context>
    <name>CopyListModel</name>
    <message>
        <source>First change of the day</source>
        <translation>Primer cambio del día</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restauración</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importación</translation>
    </message>
    <message>
        <source>Deletion of tasks</source>
        <translation>Eliminación de tareas</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>1 task added</source>
        <translation>1 tarea añadida</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks added</source>
        <translation>
            <numerusform>%n tarea añadida</numerusform>
            <numerusform>%n tareas añadidas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task changed</source>
        <translation>1 tarea cambiada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks changed</source>
        <translation>
            <numerusform>%n tarea cambiada</numerusform>
            <numerusform>%n tareas cambiadas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task gone</source>
        <translation>1 tarea eliminada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks gone</source>
        <translation>
            <numerusform>%n tarea eliminada</numerusform>
            <numerusform>%n tareas eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>other categories</source>
        <translation>otras categorías</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes de</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Since then</source>
        <translation>Desde entonces</translation>
    </message>
    <message>
        <source>is being compared...</source>
        <translation>comparando…</translation>
    </message>
</context>
<context>
    <name>CustomIcons</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: this is not a plain file name.</source>
        <translation>No se puede usar la imagen «%1»: no es un simple nombre de archivo.</translation>
    </message>
</context>
<context>
    <name>DataFileCopies</name>
    <message>
        <source>&quot;%1&quot; belongs to the data file.</source>
        <translation>«%1» forma parte del archivo de datos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the data file itself.</source>
        <translation>«%1» es el propio archivo de datos.</translation>
    </message>
    <message>
        <source>An operation on &quot;%1&quot; is not finished.</source>
        <translation>Una operación en «%1» no ha terminado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no data file.</source>
        <translation>«%1» no es un archivo de datos.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
</context>
<context>
    <name>DataFileRoad</name>
    <message>
        <source>The data file was made by a later version of Ambertask; this version cannot use it.</source>
        <translation>El archivo de datos se creó con una versión posterior de Ambertask; esta versión no puede usarlo.</translation>
    </message>
</context>
<context>
    <name>Dialect</name>
    <message>
        <source>The date literal %1 is not of the form #month/day/year hours:minutes#.</source>
        <translation>El literal de fecha %1 no tiene la forma #mes/día/año horas:minutos#.</translation>
    </message>
    <message>
        <source>The date literal %1 names no existing day and time.</source>
        <translation>El literal de fecha %1 no indica un momento existente.</translation>
    </message>
    <message>
        <source>The statement holds a zero character.</source>
        <translation>La instrucción contiene un carácter nulo.</translation>
    </message>
    <message>
        <source>The date literal %1 is not closed.</source>
        <translation>El literal de fecha %1 no está cerrado.</translation>
    </message>
</context>
<context>
    <name>DisplayGate</name>
    <message>
        <source>Ambertask needs a graphical desktop, and none could be reached from here.</source>
        <translation>Ambertask necesita un escritorio gráfico y desde aquí no se ha podido acceder a ninguno.</translation>
    </message>
</context>
<context>
    <name>Draft</name>
    <message>
        <source>The input is too large. Nothing was stored.</source>
        <translation>La entrada es demasiado grande. No se guardó nada.</translation>
    </message>
</context>
<context>
    <name>EmptyListNote</name>
    <message>
        <source>%1 of 1 task</source>
        <translation>%1 de 1 tarea</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n tasks</source>
        <translation>
            <numerusform>%1 de %n tarea</numerusform>
            <numerusform>%1 de %n tareas</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show all</source>
        <translation>&amp;Quitar filtros</translation>
    </message>
    <message>
        <source>There are no tasks yet</source>
        <translation>Aún no hay tareas</translation>
    </message>
    <message>
        <source>No task matches the filters</source>
        <translation>Ninguna tarea cumple los filtros</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;</source>
        <translation>No se ha encontrado nada para «%1»</translation>
    </message>
</context>
<context>
    <name>ExchangeTexts</name>
    <message>
        <source>The file could not be read: %1.</source>
        <translation>No se pudo leer el archivo: %1.</translation>
    </message>
    <message>
        <source>The file is no iCalendar file.</source>
        <translation>El archivo no es un archivo iCalendar.</translation>
    </message>
    <message>
        <source>It has no end.</source>
        <translation>Le falta el final.</translation>
    </message>
    <message>
        <source>Its parts are nested too deeply.</source>
        <translation>Sus partes están anidadas a demasiada profundidad.</translation>
    </message>
    <message>
        <source>The file ends in the middle of it.</source>
        <translation>El archivo termina en medio de esta entrada.</translation>
    </message>
    <message>
        <source>One of its parts has no end.</source>
        <translation>A una de sus partes le falta el final.</translation>
    </message>
    <message>
        <source>One of its lines is too long.</source>
        <translation>Una de sus líneas es demasiado larga.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es demasiado grande.</translation>
    </message>
    <message>
        <source>It has too many columns.</source>
        <translation>Tiene demasiadas columnas.</translation>
    </message>
    <message>
        <source>One of its quotes has no end.</source>
        <translation>Una de sus comillas no se cierra.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; cannot be read: %2</source>
        <translation>No se puede leer la columna «%1»: %2</translation>
    </message>
    <message>
        <source>The file is no list of tasks: its first line has no column &quot;%1&quot;.</source>
        <translation>El archivo no es una lista de tareas: su primera línea no tiene la columna «%1».</translation>
    </message>
    <message>
        <source>It holds bytes that are no text in UTF-8.</source>
        <translation>Contiene bytes que no son texto en UTF-8.</translation>
    </message>
    <message>
        <source>1 task is new.</source>
        <translation>1 tarea nueva.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are new.</source>
        <translation>
            <numerusform>%n tarea nueva.</numerusform>
            <numerusform>%n tareas nuevas.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is changed.</source>
        <translation>1 tarea cambiada.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are changed.</source>
        <translation>
            <numerusform>%n tarea cambiada.</numerusform>
            <numerusform>%n tareas cambiadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is the same.</source>
        <translation>1 tarea igual.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are the same.</source>
        <translation>
            <numerusform>%n tarea igual.</numerusform>
            <numerusform>%n tareas iguales.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file holds no task.</source>
        <translation>El archivo no contiene tareas.</translation>
    </message>
    <message>
        <source>1 category is made.</source>
        <translation>1 categoría nueva.</translation>
    </message>
    <message numerus="yes">
        <source>%n categories are made.</source>
        <translation>
            <numerusform>%n categoría nueva.</numerusform>
            <numerusform>%n categorías nuevas.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task cannot be read and stays out.</source>
        <translation>1 tarea no se puede leer y se omite.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks cannot be read and stay out.</source>
        <translation>
            <numerusform>%n tarea no se puede leer y se omite.</numerusform>
            <numerusform>%n tareas no se pueden leer y se omiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry is no task and stays out.</source>
        <translation>1 entrada no es una tarea y se omite.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are no tasks and stay out.</source>
        <translation>
            <numerusform>%n entrada no es una tarea y se omite.</numerusform>
            <numerusform>%n entradas no son tareas y se omiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder is past and comes in as dismissed.</source>
        <translation>1 recordatorio ya ha pasado y se importa como descartado.</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders are past and come in as dismissed.</source>
        <translation>
            <numerusform>%n recordatorio ya ha pasado y se importa como descartado.</numerusform>
            <numerusform>%n recordatorios ya han pasado y se importan como descartados.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task repeats and comes in once.</source>
        <translation>1 tarea se repite y se importa una sola vez.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks repeat and come in once.</source>
        <translation>
            <numerusform>%n tarea se repite y se importa una sola vez.</numerusform>
            <numerusform>%n tareas se repiten y se importan una sola vez.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task has no due date and is due today.</source>
        <translation>1 tarea no tiene vencimiento y vence hoy.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks have no due date and are due today.</source>
        <translation>
            <numerusform>%n tarea no tiene vencimiento y vence hoy.</numerusform>
            <numerusform>%n tareas no tienen vencimiento y vencen hoy.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further reminder is kept, but does not remind.</source>
        <translation>1 recordatorio adicional se conserva, pero no avisa.</translation>
    </message>
    <message numerus="yes">
        <source>%n further reminders are kept, but do not remind.</source>
        <translation>
            <numerusform>%n recordatorio adicional se conserva, pero no avisa.</numerusform>
            <numerusform>%n recordatorios adicionales se conservan, pero no avisan.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is in an unknown time zone and is taken as local time.</source>
        <translation>1 tarea está en una zona horaria desconocida y se toma como hora local.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are in unknown time zones and are taken as local time.</source>
        <translation>
            <numerusform>%n tarea está en una zona horaria desconocida y se toma como hora local.</numerusform>
            <numerusform>%n tareas están en zonas horarias desconocidas y se toman como hora local.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tasks cannot be exported or imported: the module &quot;ambertask_exchange&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>No se pueden exportar ni importar tareas: el módulo «ambertask_exchange» falta en la carpeta del programa o está dañado.</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importadas</translation>
    </message>
    <message>
        <source>A task before it has the same UID.</source>
        <translation>Una tarea anterior tiene el mismo UID.</translation>
    </message>
    <message>
        <source>The file holds more than %1 tasks that are new. Nothing was stored.</source>
        <translation>El archivo contiene más de %1 tareas nuevas. No se guardó nada.</translation>
    </message>
    <message>
        <source>The file is too large. Nothing was stored.</source>
        <translation>El archivo es demasiado grande. No se guardó nada.</translation>
    </message>
    <message>
        <source>The file holds %1 tasks that are new, and there is room for %2. Nothing was stored. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>El archivo contiene %1 tareas nuevas y solo hay espacio para %2. No se guardó nada. Elimine las tareas que ya no necesite, salga de Ambertask y vuelva a iniciarlo.</translation>
    </message>
    <message>
        <source>The tasks could not be written: %1.</source>
        <translation>No se pudieron escribir las tareas: %1.</translation>
    </message>
    <message>
        <source>Its due date cannot be read: %1</source>
        <translation>No se puede leer su vencimiento: %1</translation>
    </message>
    <message>
        <source>Nothing was stored: another program has changed the tasks meanwhile.</source>
        <translation>No se guardó nada: otro programa ha cambiado las tareas entretanto.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>there is no file name</source>
        <translation>falta el nombre del archivo</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>el archivo sería demasiado grande</translation>
    </message>
    <message>
        <source>there is no permission for that</source>
        <translation>no hay permiso para ello</translation>
    </message>
    <message>
        <source>nothing can be written to that disk</source>
        <translation>en ese disco no se puede escribir</translation>
    </message>
    <message>
        <source>the file or its folder does not exist</source>
        <translation>el archivo o su carpeta no existe</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message>
        <source>the disk failed or was taken out</source>
        <translation>el disco ha fallado o se ha retirado</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>otro programa lo está usando</translation>
    </message>
</context>
<context>
    <name>FileExchange</name>
    <message>
        <source>iCalendar Files (*.ics)|*.ics</source>
        <translation>Archivos iCalendar (*.ics)|*.ics</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv</source>
        <translation>Archivos CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>the name of the file ends neither with .ics nor with .csv</source>
        <translation>el nombre del archivo no termina ni en .ics ni en .csv</translation>
    </message>
    <message>
        <source>1 task was exported to &quot;%1&quot;</source>
        <translation>1 tarea exportada a «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were exported to &quot;%1&quot;</source>
        <translation>
            <numerusform>%n tarea exportada a «%1»</numerusform>
            <numerusform>%n tareas exportadas a «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was added</source>
        <translation>1 tarea añadida</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were added</source>
        <translation>
            <numerusform>%n tarea añadida</numerusform>
            <numerusform>%n tareas añadidas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was changed</source>
        <translation>1 tarea cambiada</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were changed</source>
        <translation>
            <numerusform>%n tarea cambiada</numerusform>
            <numerusform>%n tareas cambiadas</numerusform>
        </translation>
    </message>
    <message>
        <source>iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv</source>
        <translation>Archivos iCalendar y CSV (*.ics;*.csv)|*.ics;*.csv</translation>
    </message>
    <message>
        <source>Exporting the tasks...</source>
        <translation>Exportando las tareas…</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>No se ha exportado nada: %1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Leyendo el archivo…</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>No se ha importado nada: %1</translation>
    </message>
    <message>
        <source>Importing the tasks...</source>
        <translation>Importando las tareas…</translation>
    </message>
    <message>
        <source>Nothing was imported.
%1</source>
        <translation>No se ha importado nada.
%1</translation>
    </message>
    <message>
        <source>Nothing was imported yet: the tasks or the file have been changed meanwhile.
The window shows what the import would do now.</source>
        <translation>Aún no se ha importado nada: entretanto han cambiado las tareas o el archivo.
La ventana muestra lo que haría ahora la importación.</translation>
    </message>
</context>
<context>
    <name>FilterFold</name>
    <message>
        <source>Unfold the filters</source>
        <translation>Desplegar los filtros</translation>
    </message>
    <message>
        <source>Fold the filters away</source>
        <translation>Plegar los filtros</translation>
    </message>
</context>
<context>
    <name>FindField</name>
    <message>
        <source>Find tasks</source>
        <translation>Buscar tareas</translation>
    </message>
</context>
<context>
    <name>GridView</name>
    <message>
        <source>Sorts the list</source>
        <translation>Ordena la lista</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>En orden ascendente</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>En orden descendente</translation>
    </message>
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>Falta la ventana de ayuda en esta instalación.</translation>
    </message>
</context>
<context>
    <name>ImportListModel</name>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiada</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>Igual</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importación</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
</context>
<context>
    <name>IndexPane</name>
    <message>
        <source>First letters of a keyword</source>
        <translation>Primeras letras de una palabra clave</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>&amp;Keyword</source>
        <translation>Palabra cla&amp;ve</translation>
    </message>
</context>
<context>
    <name>KeptCopies</name>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>el disco está casi lleno</translation>
    </message>
</context>
<context>
    <name>Lateness</name>
    <message>
        <source>due now</source>
        <translation>vence ahora</translation>
    </message>
    <message>
        <source>1 minute late</source>
        <translation>1 minuto de retraso</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes late</source>
        <translation>
            <numerusform>%n minuto de retraso</numerusform>
            <numerusform>%n minutos de retraso</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour late</source>
        <translation>1 hora de retraso</translation>
    </message>
    <message numerus="yes">
        <source>%n hours late</source>
        <translation>
            <numerusform>%n hora de retraso</numerusform>
            <numerusform>%n horas de retraso</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation>1 día de retraso</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n día de retraso</numerusform>
            <numerusform>%n días de retraso</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n times since %1</source>
        <translation>
            <numerusform>%n vez desde el %1</numerusform>
            <numerusform>%n veces desde el %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MaintenancePage</name>
    <message>
        <source>Ambertaks Backup Files (*.abk)|*.abk</source>
        <translation>Copias de seguridad de Ambertask (*.abk)|*.abk</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete Tasks</source>
        <translation>Eliminar tareas</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Cate&amp;goría</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>&amp;Estado</translation>
    </message>
    <message>
        <source>&amp;All tasks</source>
        <translation>&amp;Todas las tareas</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Solo tareas &amp;activas</translation>
    </message>
    <message>
        <source>&amp;Expired tasks only</source>
        <translation>Solo tareas &amp;vencidas</translation>
    </message>
    <message>
        <source>Date Range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>De&amp;sde</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Hasta</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>Crear co&amp;pia</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Backup and Restore</source>
        <translation>Copia de seguridad y restauración</translation>
    </message>
    <message>
        <source>There is no tasks according to the selected criteria!</source>
        <translation>¡No hay tareas que cumplan los criterios seleccionados!</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>¿Seguro que desea eliminar %n tarea?</numerusform>
            <numerusform>¿Seguro que desea eliminar %n tareas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Backing up the data...</source>
        <translation>Haciendo la copia de seguridad…</translation>
    </message>
    <message>
        <source>Restoring the data...</source>
        <translation>Restaurando los datos…</translation>
    </message>
    <message>
        <source>Deleting the tasks...</source>
        <translation>Eliminando las tareas…</translation>
    </message>
    <message>
        <source>1 task was deleted</source>
        <translation>Se ha eliminado 1 tarea</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were deleted</source>
        <translation>
            <numerusform>Se ha eliminado %n tarea</numerusform>
            <numerusform>Se han eliminado %n tareas</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored from &quot;%1&quot;</source>
        <translation>Restaurado desde «%1»</translation>
    </message>
    <message>
        <source>Restored 1 task from &quot;%1&quot;; what was there before is in %2</source>
        <translation>Se ha restaurado 1 tarea desde «%1»; lo que había antes está en %2</translation>
    </message>
    <message numerus="yes">
        <source>Restored %n tasks from &quot;%1&quot;; what was there before is in %2</source>
        <translation>
            <numerusform>Se ha restaurado %n tarea desde «%1»; lo que había antes está en %2</numerusform>
            <numerusform>Se han restaurado %n tareas desde «%1»; lo que había antes está en %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup saved to &quot;%1&quot;</source>
        <translation>Copia de seguridad guardada en «%1»</translation>
    </message>
    <message>
        <source>The backup could not be written: %1</source>
        <translation>No se pudo escribir la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Nothing was restored: %1</source>
        <translation>No se ha restaurado nada: %1</translation>
    </message>
    <message>
        <source>Restore from a c&amp;opy...</source>
        <translation>Restaurar &amp;desde una copia…</translation>
    </message>
    <message>
        <source>Shows the copies of your data that the program has made by itself</source>
        <translation>Muestra las copias de sus datos que el programa ha creado automáticamente</translation>
    </message>
    <message>
        <source>Exchange with other programs</source>
        <translation>Intercambio con otros programas</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>Saves all tasks as iCalendar or CSV, for other programs</source>
        <translation>Guarda todas las tareas como iCalendar o CSV, para otros programas</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>Adds the tasks of an iCalendar or CSV file; shows first what would happen</source>
        <translation>Añade las tareas de un archivo iCalendar o CSV; antes muestra lo que ocurriría</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;This Time</source>
        <translation>&amp;Esta vez</translation>
    </message>
    <message>
        <source>&amp;All Times</source>
        <translation>&amp;Todas las veces</translation>
    </message>
</context>
<context>
    <name>OverflowError</name>
    <message>
        <source>task id</source>
        <translation>identificador de tarea</translation>
    </message>
    <message>
        <source>icon number</source>
        <translation>número de icono</translation>
    </message>
    <message>
        <source>category id</source>
        <translation>identificador de categoría</translation>
    </message>
    <message>
        <source>Overflow: the %1 %2 does not fit into 16 bits.</source>
        <translation>Desbordamiento: %1 %2 no cabe en 16 bits.</translation>
    </message>
</context>
<context>
    <name>PdfFileChoice</name>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>Archivos PDF (*.pdf)|*.pdf</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it is neither a GIF nor a JPEG nor a PNG picture.</source>
        <translation>no es una imagen GIF, JPEG ni PNG.</translation>
    </message>
    <message>
        <source>it is damaged or incomplete.</source>
        <translation>está dañada o incompleta.</translation>
    </message>
    <message>
        <source>it is %1 x %2 pixels large, more than %3 x %3 are not accepted.</source>
        <translation>mide %1 × %2 píxeles y no se admiten más de %3 × %3.</translation>
    </message>
    <message>
        <source>there is no such file.</source>
        <translation>el archivo no existe.</translation>
    </message>
    <message>
        <source>it is not an ordinary file.</source>
        <translation>no es un archivo normal.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB.</source>
        <translation>ocupa más de %1 MiB.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: %2</source>
        <translation>No se puede usar la imagen «%1»: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>&amp;Exportar a PDF…</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>P&amp;rimera</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>Ú&amp;ltima</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>Pa&amp;pel</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Orientación</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom o&amp;ut</source>
        <translation>Re&amp;ducir</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Pá&amp;gina</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> de %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>No se pudo imprimir el informe.</translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%1&quot;: %2.</source>
        <translation>No se pudo escribir el informe en «%1»: %2.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer.</source>
        <translation>No hay ninguna impresora configurada en este equipo.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF guardado en «%1»</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>Preparando el informe…</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>G&amp;uardar como…</translation>
    </message>
    <message>
        <source>Saves the tasks of the report as iCalendar or CSV, for other programs</source>
        <translation>Guarda las tareas del informe como iCalendar o CSV, para otros programas</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Printing...</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Writing the PDF file...</source>
        <translation>Escribiendo el archivo PDF…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The task &quot;%1&quot; was added; the filters do not show it</source>
        <translation>Se ha añadido la tarea «%1»; los filtros no la muestran</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; was added; the search does not show it</source>
        <translation>Se ha añadido la tarea «%1»; la búsqueda no la muestra</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>RecordSet</name>
    <message>
        <source>The value of column &quot;%1&quot; is no whole number.</source>
        <translation>El valor de la columna «%1» no es un número entero.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is out of range: %2.</source>
        <translation>El valor de la columna «%1» está fuera del intervalo: %2.</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>No hay ningún registro actual.</translation>
    </message>
    <message>
        <source>The field name &quot;%1&quot; is ambiguous.</source>
        <translation>El nombre de campo «%1» es ambiguo.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>No existe el campo «%1».</translation>
    </message>
    <message>
        <source>There is no field number %1.</source>
        <translation>No existe el campo número %1.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is null.</source>
        <translation>El valor de la columna «%1» es nulo.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no text.</source>
        <translation>El valor de la columna «%1» no es texto.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; does not fit into memory.</source>
        <translation>El valor de la columna «%1» no cabe en la memoria.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no date and time: %2.</source>
        <translation>El valor de la columna «%1» no es una fecha con hora: %2.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is empty.</source>
        <translation>El valor de la columna «%1» está vacío.</translation>
    </message>
</context>
<context>
    <name>RepeatByHand</name>
    <message>
        <source>Custom ...</source>
        <translation>Personalizar…</translation>
    </message>
</context>
<context>
    <name>RepeatChoices</name>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Every weekday</source>
        <translation>Cada día laborable</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Every 2 weeks</source>
        <translation>Cada 2 semanas</translation>
    </message>
    <message>
        <source>Every month on the same day</source>
        <translation>Cada mes el mismo día</translation>
    </message>
    <message>
        <source>Every month on the last day</source>
        <translation>Cada mes el último día</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Cada año</translation>
    </message>
</context>
<context>
    <name>RepeatInput</name>
    <message>
        <source>Please tick a weekday.</source>
        <translation>Marque un día de la semana.</translation>
    </message>
    <message>
        <source>The last day should not be earlier than the due date.</source>
        <translation>El último día no puede ser anterior a la fecha de vencimiento.</translation>
    </message>
</context>
<context>
    <name>RepeatTexts</name>
    <message>
        <source>%1 until %2</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;, and %2 the last day</extracomment>
        <translation>%1 hasta el %2</translation>
    </message>
    <message>
        <source>%1, once</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;</extracomment>
        <translation>%1, una vez</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times</source>
        <translation>
            <numerusform>%1, %n vez</numerusform>
            <numerusform>%1, %n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>by a rule of another program</source>
        <translation>según una regla de otro programa</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>cada día</translation>
    </message>
    <message numerus="yes">
        <source>every %n days</source>
        <translation>
            <numerusform>cada %n día</numerusform>
            <numerusform>cada %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>Day and month of a date, in the format of QLocale: &quot;d. MMMM&quot;, &quot;MMMM d&quot;, &quot;d &apos;de&apos; MMMM&quot;</extracomment>
        <translation>d &apos;de&apos; MMMM</translation>
    </message>
    <message>
        <source>every year on %1</source>
        <extracomment>%1 is a day and a month</extracomment>
        <translation>cada año el %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n years on %1</source>
        <translation>
            <numerusform>cada %n año el %1</numerusform>
            <numerusform>cada %n años el %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every weekday</source>
        <extracomment>on each day of the working week, as from Monday to Friday</extracomment>
        <translation>cada día laborable</translation>
    </message>
    <message>
        <source>every week on %1</source>
        <extracomment>%1 is a weekday or several: &quot;Monday and Thursday&quot;</extracomment>
        <translation>cada semana el %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n weeks on %1</source>
        <translation>
            <numerusform>cada %n semana el %1</numerusform>
            <numerusform>cada %n semanas el %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on day %1</source>
        <extracomment>%1 is the number of a day</extracomment>
        <translation>cada mes el día %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on day %1</source>
        <translation>
            <numerusform>cada %n mes el día %1</numerusform>
            <numerusform>cada %n meses el día %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last day</source>
        <translation>cada mes el último día</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last day</source>
        <translation>
            <numerusform>cada %n mes el último día</numerusform>
            <numerusform>cada %n meses el último día</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the first %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>cada mes el primer %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the first %1</source>
        <translation>
            <numerusform>cada %n mes el primer %1</numerusform>
            <numerusform>cada %n meses el primer %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the second %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>cada mes el segundo %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the second %1</source>
        <translation>
            <numerusform>cada %n mes el segundo %1</numerusform>
            <numerusform>cada %n meses el segundo %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the third %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>cada mes el tercer %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the third %1</source>
        <translation>
            <numerusform>cada %n mes el tercer %1</numerusform>
            <numerusform>cada %n meses el tercer %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the fourth %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>cada mes el cuarto %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the fourth %1</source>
        <translation>
            <numerusform>cada %n mes el cuarto %1</numerusform>
            <numerusform>cada %n meses el cuarto %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>cada mes el último %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last %1</source>
        <translation>
            <numerusform>cada %n mes el último %1</numerusform>
            <numerusform>cada %n meses el último %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Rest</name>
    <message>
        <source>Only the beginning is shown. The &quot;⋯&quot; stands for the rest.</source>
        <translation>Solo se muestra el principio. El «⋯» representa el resto.</translation>
    </message>
</context>
<context>
    <name>ScreenErrorReport</name>
    <message>
        <source>Close &amp;program</source>
        <translation>Cerrar el &amp;programa</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>SearchPane</name>
    <message>
        <source>List &amp;topics</source>
        <translation>&amp;Listar temas</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>Palabras que se buscan</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>Temas encontrados</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>Palab&amp;ras</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>Ningún tema contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>1 topic found.</source>
        <translation>Se encontró 1 tema.</translation>
    </message>
    <message numerus="yes">
        <source>%n topics found.</source>
        <translation>
            <numerusform>Se encontró %n tema.</numerusform>
            <numerusform>Se encontraron %n temas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>it does not exist</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; the statement was not run: %2</source>
        <translation>El archivo de datos «%1» ya había fallado; la instrucción no se ejecutó: %2</translation>
    </message>
    <message>
        <source>The statement is too long (%1 bytes): %2</source>
        <translation>La instrucción es demasiado larga (%1 bytes): %2</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>La instrucción está vacía.</translation>
    </message>
    <message>
        <source>The text holds more than one statement: %1</source>
        <translation>El texto contiene más de una instrucción: %1</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written: %2.</source>
        <translation>No se pudo escribir en el archivo de datos «%1»: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; nothing was stored.</source>
        <translation>El archivo de datos «%1» ya había fallado; no se guardó nada.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written; nothing was stored: %2.</source>
        <translation>No se pudo escribir en el archivo de datos «%1»; no se guardó nada: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be opened: %2.</source>
        <translation>No se pudo abrir el archivo de datos «%1»: %2.</translation>
    </message>
    <message>
        <source>The statement failed: %1.
%2</source>
        <translation>La instrucción falló: %1.
%2</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed at the statement
%2
: %3.</source>
        <translation>El archivo de datos «%1» falló en la instrucción
%2
: %3.</translation>
    </message>
    <message>
        <source>another program is using it (%1)</source>
        <translation>otro programa lo está usando (%1)</translation>
    </message>
    <message>
        <source>a rule in its table &quot;%1&quot; could remove records</source>
        <translation>una regla de su tabla «%1» podría eliminar registros</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>Se ha modificado desde entonces.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>&amp;Save Settings</source>
        <translation>&amp;Guardar configuración</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Show &amp;grid</source>
        <translation>Mostrar &amp;cuadrícula</translation>
    </message>
    <message>
        <source>Show &amp;today&apos;s tasks on start</source>
        <translation>Mostrar las tareas de &amp;hoy al iniciar</translation>
    </message>
    <message>
        <source>Start with &amp;windows</source>
        <translation>&amp;Iniciar con la sesión</translation>
    </message>
    <message>
        <source>Always on to&amp;p</source>
        <translation>&amp;Siempre visible</translation>
    </message>
    <message>
        <source>&amp;Minimize on start</source>
        <translation>Iniciar &amp;minimizado</translation>
    </message>
    <message>
        <source>Show tray &amp;balloon when closed</source>
        <translation>Mostrar &amp;aviso en la bandeja al cerrar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Task p&amp;riority</source>
        <translation>&amp;Prioridad</translation>
    </message>
    <message>
        <source>Task &amp;due date</source>
        <translation>&amp;Vencimiento</translation>
    </message>
    <message>
        <source>Task r&amp;eminder</source>
        <translation>&amp;Recordatorio</translation>
    </message>
    <message>
        <source>Task stat&amp;us</source>
        <translation>&amp;Estado</translation>
    </message>
    <message>
        <source>Show Columns</source>
        <translation>Columnas visibles</translation>
    </message>
    <message>
        <source>Current s&amp;kin</source>
        <translation>&amp;Tema actual</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Add &amp;new skin</source>
        <translation>Añadir tema &amp;nuevo</translation>
    </message>
    <message>
        <source>Add new skin</source>
        <translation>Añadir tema nuevo</translation>
    </message>
    <message>
        <source>Download More Skins</source>
        <translation>Descargar más temas</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Skin Files (*.skf)|*.skf</source>
        <translation>Archivos de tema (*.skf)|*.skf</translation>
    </message>
    <message>
        <source>The new skin is now available in the skins list.</source>
        <translation>El tema nuevo ya está disponible en la lista de temas.</translation>
    </message>
    <message>
        <source>The skin was not added: %1</source>
        <translation>No se ha añadido el tema: %1</translation>
    </message>
    <message>
        <source>The skin &quot;%1&quot; was added; to wear it, choose it in the list and save the settings</source>
        <translation>Se ha añadido el tema «%1»; para usarlo, elíjalo en la lista y guarde la configuración</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its windows on top. The menu of a title bar may offer it.</source>
        <translation>Este escritorio no permite que ningún programa mantenga sus ventanas siempre visibles. El menú de una barra de título puede ofrecerlo.</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The row of the table &quot;settings&quot; is missing in the data file.</source>
        <translation>Falta la fila de la tabla «settings» en el archivo de datos.</translation>
    </message>
</context>
<context>
    <name>SkinFile</name>
    <message>
        <source>%1: the file is not a text in UTF-8</source>
        <translation>%1: el archivo no es texto en UTF-8</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1: el archivo no existe</translation>
    </message>
    <message>
        <source>%1: it is not a file</source>
        <translation>%1: no es un archivo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: the file is larger than 1 MiB</source>
        <translation>%1: el archivo ocupa más de 1 MiB</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
</context>
<context>
    <name>SkinHeader</name>
    <message>
        <source>the file does not begin with a comment block</source>
        <translation>el archivo no empieza con un bloque de comentario</translation>
    </message>
    <message>
        <source>the comment block has no end</source>
        <translation>el bloque de comentario no tiene fin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be the name of a file</source>
        <translation>«%1» no puede ser un nombre de archivo</translation>
    </message>
    <message>
        <source>unknown keyword &quot;%1&quot;</source>
        <translation>palabra clave «%1» desconocida</translation>
    </message>
    <message>
        <source>a second &quot;%1&quot;</source>
        <translation>«%1» aparece dos veces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing</source>
        <translation>«%1» está vacío</translation>
    </message>
    <message>
        <source>expected &quot;@color token #rrggbb&quot;</source>
        <translation>se esperaba «@color token #rrggbb»</translation>
    </message>
    <message>
        <source>a second colour &quot;%1&quot;</source>
        <translation>el color «%1» aparece dos veces</translation>
    </message>
    <message>
        <source>expected &quot;@disabled Role $token&quot;</source>
        <translation>se esperaba «@disabled Role $token»</translation>
    </message>
    <message>
        <source>expected &quot;@palette Role $token&quot;</source>
        <translation>se esperaba «@palette Role $token»</translation>
    </message>
    <message>
        <source>unknown palette role &quot;%1&quot;</source>
        <translation>rol de paleta «%1» desconocido</translation>
    </message>
    <message>
        <source>the comment block has no &quot;@name&quot;</source>
        <translation>falta «@name» en el bloque de comentario</translation>
    </message>
    <message>
        <source>unknown colour &quot;$%1&quot;</source>
        <translation>color «$%1» desconocido</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The skin could not be used.
%1</source>
        <translation>No se pudo usar el tema.
%1</translation>
    </message>
    <message>
        <source>%1: the file has to be named &quot;%2&quot;, as its skin is</source>
        <translation>%1: el archivo debe llamarse «%2», como su tema</translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Completar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Postpone</source>
        <translation>&amp;Posponer</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>E&amp;stado</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>Pr&amp;ioridad</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>Cate&amp;goría</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>Des&amp;hacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
</context>
<context>
    <name>TaskChoices</name>
    <message>
        <source>Set Ba&amp;ck to &quot;Not Started&quot;</source>
        <translation>Volver a «No ini&amp;ciada»</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Completar</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>¿Seguro que desea eliminar esta tarea?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>¿Seguro que desea eliminar %n tarea?</numerusform>
            <numerusform>¿Seguro que desea eliminar %n tareas?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Not Started</source>
        <translation>&amp;No iniciada</translation>
    </message>
    <message>
        <source>In &amp;Progress</source>
        <translation>&amp;En curso</translation>
    </message>
    <message>
        <source>&amp;Completed</source>
        <translation>&amp;Completada</translation>
    </message>
    <message>
        <source>&amp;Waiting on someone else</source>
        <translation>&amp;A la espera de otra persona</translation>
    </message>
    <message>
        <source>&amp;Deferred</source>
        <translation>A&amp;plazada</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Alta</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Low</source>
        <translation>&amp;Baja</translation>
    </message>
    <message>
        <source>This task repeats. Do you want to delete it this time, or all times?</source>
        <translation>Esta tarea se repite. ¿Desea eliminarla solo esta vez o todas las veces?</translation>
    </message>
    <message>
        <source>These tasks repeat. Do you want to delete them this time, or all times?</source>
        <translation>Estas tareas se repiten. ¿Desea eliminarlas solo esta vez o todas las veces?</translation>
    </message>
    <message>
        <source>Some of the tasks repeat. Do you want to delete those this time, or all times?
The others are deleted.</source>
        <translation>Algunas de las tareas se repiten. ¿Desea eliminarlas solo esta vez o todas las veces?
Las demás se eliminan.</translation>
    </message>
</context>
<context>
    <name>TaskFilters</name>
    <message>
        <source>A&amp;ll</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Spec&amp;ific</source>
        <translation>&amp;Período</translation>
    </message>
    <message>
        <source>All tas&amp;ks</source>
        <translation>T&amp;odas las tareas</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Solo tareas &amp;activas</translation>
    </message>
    <message>
        <source>E&amp;xpired tasks only</source>
        <translation>Solo tareas &amp;vencidas</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>De&amp;sde</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Hasta</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>Cate&amp;goría</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>Esta&amp;do</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>Orde&amp;nar por</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>The same order chosen again is turned round</source>
        <translation>El mismo orden, elegido otra vez, se invierte</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Categoría: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Estado: %1</translation>
    </message>
    <message>
        <source>Due from %1 to %2</source>
        <translation>Vencen del %1 al %2</translation>
    </message>
    <message>
        <source>Active tasks only</source>
        <translation>Solo tareas activas</translation>
    </message>
    <message>
        <source>Expired tasks only</source>
        <translation>Solo tareas vencidas</translation>
    </message>
    <message>
        <source>No filter leaves a task out</source>
        <translation>Ningún filtro oculta tareas</translation>
    </message>
</context>
<context>
    <name>TaskGridModel</name>
    <message>
        <source>Overdue</source>
        <translation>Vencida</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>Vence hoy</translation>
    </message>
</context>
<context>
    <name>TaskInput</name>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>La fecha y la hora del recordatorio no pueden ser anteriores a la fecha y la hora actuales del sistema</translation>
    </message>
    <message>
        <source>Please enter task name.</source>
        <translation>Escriba el nombre de la tarea.</translation>
    </message>
    <message>
        <source>Please select category.</source>
        <translation>Seleccione una categoría.</translation>
    </message>
    <message>
        <source>Please select reminder sound.</source>
        <translation>Seleccione un sonido de recordatorio.</translation>
    </message>
    <message>
        <source>Please select reminder file.</source>
        <translation>Seleccione un archivo de recordatorio.</translation>
    </message>
    <message>
        <source>The changes to the task are not saved.</source>
        <translation>Los cambios de la tarea no se han guardado.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Los cambios de «%1» no se han guardado.</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>periority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>reminder</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Reminder on</source>
        <translation>Recordatorio activado</translation>
    </message>
    <message>
        <source>Reminder off</source>
        <translation>Recordatorio desactivado</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Categoría: %1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>Se repite %1</translation>
    </message>
</context>
<context>
    <name>TaskMoments</name>
    <message>
        <source>1 &amp;day before</source>
        <translation>1 &amp;día antes</translation>
    </message>
    <message>
        <source>&amp;At the due moment</source>
        <translation>&amp;Al vencer</translation>
    </message>
    <message>
        <source>&amp;5 minutes before</source>
        <translation>&amp;5 minutos antes</translation>
    </message>
    <message>
        <source>&amp;15 minutes before</source>
        <translation>&amp;15 minutos antes</translation>
    </message>
    <message>
        <source>&amp;30 minutes before</source>
        <translation>&amp;30 minutos antes</translation>
    </message>
    <message>
        <source>1 &amp;hour before</source>
        <translation>1 &amp;hora antes</translation>
    </message>
    <message>
        <source>To&amp;day, %1</source>
        <translation>&amp;Hoy, %1</translation>
    </message>
    <message>
        <source>&amp;Tomorrow, %1</source>
        <translation>&amp;Mañana, %1</translation>
    </message>
    <message>
        <source>Next &amp;Monday, %1</source>
        <translation>El próximo &amp;lunes, %1</translation>
    </message>
</context>
<context>
    <name>TaskRepeats</name>
    <message>
        <source>Tasks cannot repeat in this data file, which is of an earlier version and could not be upgraded. The next start of Ambertask tries it again.</source>
        <translation>Las tareas no pueden repetirse en este archivo de datos, que es de una versión anterior y no se pudo actualizar. El próximo inicio de Ambertask lo intentará de nuevo.</translation>
    </message>
</context>
<context>
    <name>TaskStoring</name>
    <message>
        <source>Nothing was stored: there is no number left for a new category.</source>
        <translation>No se guardó nada: no queda ningún número para una categoría nueva.</translation>
    </message>
    <message>
        <source>Nothing was stored: there is no room for so many tasks.</source>
        <translation>No se guardó nada: no hay espacio para tantas tareas.</translation>
    </message>
    <message>
        <source>Nothing was stored: the task &quot;%1&quot; has been deleted meanwhile. Choose the file again.</source>
        <translation>No se guardó nada: entretanto se ha eliminado la tarea «%1». Vuelva a elegir el archivo.</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Añad&amp;ir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Please enter categories in the categories section first.</source>
        <translation>Primero cree categorías en la página «Categorías».</translation>
    </message>
</context>
<context>
    <name>TopicView</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>No se puede mostrar esta página</translation>
    </message>
    <message>
        <source>The help file has no readable page &quot;%1&quot;.</source>
        <translation>El archivo de ayuda no contiene la página «%1» o no se puede leer.</translation>
    </message>
</context>
<context>
    <name>TrayNews</name>
    <message numerus="yes">
        <source>%n due</source>
        <comment>reminders</comment>
        <translation>
            <numerusform>%n pendiente</numerusform>
            <numerusform>%n pendientes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <comment>tasks</comment>
        <translation>
            <numerusform>%n vencida</numerusform>
            <numerusform>%n vencidas</numerusform>
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
        <translation>otro programa lo está usando</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>U&amp;ndo</source>
        <translation>Desha&amp;cer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>No se ha deshecho: %1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>No se ha rehecho: %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Oc&amp;ultar</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>It would leave tasks without a category.</source>
        <translation>Quedarían tareas sin categoría.</translation>
    </message>
</context>
<context>
    <name>UnreadableRecords</name>
    <message>
        <source>Category %1: %2</source>
        <translation>Categoría %1: %2</translation>
    </message>
    <message>
        <source>Category %1, &quot;%2&quot;: %3</source>
        <translation>Categoría %1, «%2»: %3</translation>
    </message>
    <message>
        <source>Task %1: %2</source>
        <translation>Tarea %1: %2</translation>
    </message>
    <message>
        <source>Task %1, &quot;%2&quot;: %3</source>
        <translation>Tarea %1, «%2»: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Some values in the data file cannot be read. For this reason these are not shown:</source>
        <translation>Algunos valores del archivo de datos no se pueden leer. Por eso no se muestra lo siguiente:</translation>
    </message>
    <message>
        <source>The tasks of a category that is not shown are not shown either.</source>
        <translation>Las tareas de una categoría que no se muestra tampoco se muestran.</translation>
    </message>
    <message>
        <source>Everything stays in the data file as it is. To have it back, restore a backup that was made before (page Maintenance), or correct the values with another program.</source>
        <translation>Todo permanece en el archivo de datos tal como está. Para recuperarlo, restaure una copia de seguridad anterior (página Mantenimiento) o corrija los valores con otro programa.</translation>
    </message>
    <message>
        <source>Some settings cannot be read. They are for now what they are in a new data file:</source>
        <translation>Algunos ajustes de la configuración no se pueden leer. Por ahora son los de un archivo de datos nuevo:</translation>
    </message>
    <message>
        <source>To store them anew, press &quot;Save Settings&quot; on the page Settings.</source>
        <translation>Para guardarlos de nuevo, pulse «Guardar configuración» en la página Configuración.</translation>
    </message>
</context>
<context>
    <name>UnusableCopy</name>
    <message>
        <source>The file is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
</context>
<context>
    <name>UsualMoments</name>
    <message>
        <source>In &amp;5 minutes</source>
        <translation>En &amp;5 minutos</translation>
    </message>
    <message>
        <source>In &amp;15 minutes</source>
        <translation>En &amp;15 minutos</translation>
    </message>
    <message>
        <source>In 1 &amp;hour</source>
        <translation>En 1 &amp;hora</translation>
    </message>
    <message>
        <source>This &amp;evening</source>
        <translation>Esta &amp;tarde</translation>
    </message>
    <message>
        <source>&amp;Tomorrow morning</source>
        <translation>&amp;Mañana por la mañana</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>La &amp;próxima semana</translation>
    </message>
</context>
<context>
    <name>clsGuiLoader</name>
    <message>
        <source>None</source>
        <translation>Sin ordenar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>All</source>
        <comment>statuses</comment>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Not Started</source>
        <translation>No iniciada</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completada</translation>
    </message>
    <message>
        <source>Waiting on someone else</source>
        <translation>A la espera de otra persona</translation>
    </message>
    <message>
        <source>Deferred</source>
        <translation>Aplazada</translation>
    </message>
    <message>
        <source>All</source>
        <comment>categories</comment>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
</context>
<context>
    <name>drTasks</name>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Tasks Report</source>
        <translation>Informe de tareas</translation>
    </message>
    <message>
        <source>The report cannot be shown: the module &quot;ambertask_report&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>No se puede mostrar el informe: el módulo «ambertask_report» falta en la carpeta del programa o está dañado.</translation>
    </message>
    <message>
        <source>The tasks could not be saved.
%1</source>
        <translation>No se pudieron guardar las tareas.
%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>Se repite %1</translation>
    </message>
    <message>
        <source>Nothing was saved: the report shows tasks from before the restore.</source>
        <translation>No se ha guardado nada: el informe muestra tareas anteriores a la restauración.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Ambertask</source>
        <translation>Acerca de Ambertask</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Versión 1.1</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acep&amp;tar</translation>
    </message>
    <message>
        <source>Ambertask is a simple and powerful task management software program.</source>
        <translation>Ambertask es un programa de gestión de tareas sencillo y potente.</translation>
    </message>
    <message>
        <source>Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what you would miss.</source>
        <translation>Ambertask se ofrece sin garantía alguna. Sus tareas permanecen en este equipo; haga una copia de seguridad de lo que no quiera perder.</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>La información del sistema no está disponible en este momento</translation>
    </message>
</context>
<context>
    <name>frmAlerts</name>
    <message>
        <source>New reminder</source>
        <translation>Recordatorio nuevo</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Recordar más tarde</translation>
    </message>
    <message>
        <source>Open Item</source>
        <translation>Abrir tarea</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Dismiss All</source>
        <translation>Descartar todos</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Hora:</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>Recordatorios pendientes</translation>
    </message>
    <message>
        <source>New reminder date</source>
        <translation>Fecha del recordatorio nuevo</translation>
    </message>
    <message>
        <source>New reminder time</source>
        <translation>Hora del recordatorio nuevo</translation>
    </message>
    <message>
        <source>Moves the selected reminder to the new date and time</source>
        <translation>Mueve el recordatorio seleccionado a la fecha y la hora nuevas</translation>
    </message>
    <message>
        <source>Opens the task of the selected reminder</source>
        <translation>Abre la tarea del recordatorio seleccionado</translation>
    </message>
    <message>
        <source>Switches the selected reminder off</source>
        <translation>Desactiva el recordatorio seleccionado</translation>
    </message>
    <message>
        <source>Switches all due reminders off</source>
        <translation>Desactiva todos los recordatorios pendientes</translation>
    </message>
    <message>
        <source>1 Reminder</source>
        <translation>1 recordatorio</translation>
    </message>
    <message numerus="yes">
        <source>%n Reminders</source>
        <translation>
            <numerusform>%n recordatorio</numerusform>
            <numerusform>%n recordatorios</numerusform>
        </translation>
    </message>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>La fecha y la hora del recordatorio no pueden ser anteriores a la fecha y la hora actuales del sistema</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Establecer en</translation>
    </message>
    <message>
        <source>Set date and time to</source>
        <translation>Establecer la fecha y la hora en</translation>
    </message>
    <message>
        <source>Fills in a usual moment; &quot;Remind me later&quot; then puts the reminder off</source>
        <translation>Rellena un momento habitual; «Recordar más tarde» aplaza después el recordatorio</translation>
    </message>
</context>
<context>
    <name>frmCategoryDetails</name>
    <message>
        <source>Icon %1 of %2</source>
        <translation>Icono %1 de %2</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>De&amp;fault Icon</source>
        <translation>Icono &amp;predeterminado</translation>
    </message>
    <message>
        <source>C&amp;ustom Icon</source>
        <translation>Icono per&amp;sonalizado</translation>
    </message>
    <message>
        <source>Default icons</source>
        <translation>Iconos predeterminados</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>Icono personalizado</translation>
    </message>
    <message>
        <source>Custom icon preview</source>
        <translation>Vista previa del icono personalizado</translation>
    </message>
    <message>
        <source>Prefered size 24*24 pixels</source>
        <translation>Tamaño recomendado: 24 × 24 píxeles</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>E&amp;xaminar</translation>
    </message>
    <message>
        <source>Browse for a custom icon</source>
        <translation>Buscar un icono personalizado</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acep&amp;tar</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Descripción</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Cate&amp;goría</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>Detalles de la categoría</translation>
    </message>
    <message>
        <source>The category no longer exists.</source>
        <translation>La categoría ya no existe.</translation>
    </message>
    <message>
        <source>Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</source>
        <translation>Archivos de imagen (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>A category with the same name already exists</source>
        <translation>Ya existe una categoría con ese nombre</translation>
    </message>
    <message>
        <source>Please enter category name.</source>
        <translation>Escriba el nombre de la categoría.</translation>
    </message>
    <message>
        <source>Please browse for a custom icon</source>
        <translation>Seleccione un icono personalizado</translation>
    </message>
</context>
<context>
    <name>frmCopies</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Restore from a Copy</source>
        <translation>Restaurar desde una copia</translation>
    </message>
    <message>
        <source>Copies of your data</source>
        <translation>Copias de sus datos</translation>
    </message>
    <message>
        <source>No copy has been made yet. The first one is made before the next change.</source>
        <translation>Aún no se ha creado ninguna copia. La primera se crea antes del próximo cambio.</translation>
    </message>
    <message>
        <source>Puts the selected copy in the place of your data, which is kept as another copy</source>
        <translation>Sustituye sus datos por la copia seleccionada; los actuales se conservan como otra copia</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Closes this list and changes nothing</source>
        <translation>Cierra esta lista sin cambiar nada</translation>
    </message>
    <message>
        <source>Co&amp;pies of your data that the program has made by itself</source>
        <translation>Co&amp;pias de sus datos que el programa ha creado automáticamente</translation>
    </message>
    <message>
        <source>The copies could not be compared: %1</source>
        <translation>No se pudieron comparar las copias: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the copy of %1? Your data as it is now is kept as another copy.</source>
        <translation>¿Seguro que desea restaurar la copia del %1? Sus datos actuales se conservan como otra copia.</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>Línea %1, «%2»: %3</translation>
    </message>
    <message>
        <source>New categories: %1</source>
        <translation>Categorías nuevas: %1</translation>
    </message>
    <message>
        <source>And more that cannot be read.</source>
        <translation>Y otras que no se pueden leer.</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Import Tasks</source>
        <translation>Importar tareas</translation>
    </message>
    <message>
        <source>Tasks to import</source>
        <translation>Tareas que se importan</translation>
    </message>
    <message>
        <source>Programs to start with the reminder</source>
        <translation>Programas que se inician con el recordatorio</translation>
    </message>
    <message>
        <source>&amp;Programs to start with the reminder; tick those that you trust</source>
        <translation>&amp;Programas que se inician con el recordatorio; marque los que sean de confianza</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>&amp;Tareas</translation>
    </message>
    <message>
        <source>From &quot;%1&quot;</source>
        <translation>De «%1»</translation>
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
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Versión 1.1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Ambertaks</source>
        <translation>Ambertask</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Ambertaks is still running..</source>
        <translation>Ambertask sigue en ejecución.</translation>
    </message>
</context>
<context>
    <name>frmRepeat</name>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a weekday, %2 a date and a time</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Años</translation>
    </message>
    <message>
        <source>The same day</source>
        <translation>El mismo día</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>El último día</translation>
    </message>
    <message>
        <source>The same weekday</source>
        <translation>El mismo día de la semana</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>On a date</source>
        <translation>En una fecha</translation>
    </message>
    <message>
        <source>After a number of times</source>
        <translation>Tras un número de veces</translation>
    </message>
    <message>
        <source>On these &amp;weekdays</source>
        <translation>En estos &amp;días de la semana</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acep&amp;tar</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Repeat every so many</source>
        <translation>Repetir cada tantos</translation>
    </message>
    <message>
        <source>Days, weeks, months or years</source>
        <translation>Días, semanas, meses o años</translation>
    </message>
    <message>
        <source>On these weekdays</source>
        <translation>En estos días de la semana</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Día del mes</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Number of times</source>
        <translation>Número de veces</translation>
    </message>
    <message>
        <source>Next due moments</source>
        <translation>Próximos vencimientos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Repeat &amp;every:</source>
        <translation>Repetir &amp;cada:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unidad:</translation>
    </message>
    <message>
        <source>Day of the &amp;month:</source>
        <translation>Día del &amp;mes:</translation>
    </message>
    <message>
        <source>E&amp;nd:</source>
        <translation>&amp;Fin:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>Últ&amp;imo día:</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>&amp;Veces:</translation>
    </message>
    <message>
        <source>Ne&amp;xt due moments:</source>
        <translation>&amp;Próximos vencimientos:</translation>
    </message>
</context>
<context>
    <name>frmTaskDetails</name>
    <message>
        <source>Task Details</source>
        <translation>Detalles de la tarea</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>La tarea ya no existe.</translation>
    </message>
    <message>
        <source>Executable Files (*.exe;*.bat;)|*.exe;*.bat</source>
        <translation>Archivos ejecutables (*.exe;*.bat;)|*.exe;*.bat</translation>
    </message>
    <message>
        <source>Wave Files (*.wav)|*.wav</source>
        <translation>Archivos Wave (*.wav)|*.wav</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>&amp;Enable reminder</source>
        <translation>&amp;Activar recordatorio</translation>
    </message>
    <message>
        <source>Reminder sou&amp;nd</source>
        <translation>&amp;Sonido del recordatorio</translation>
    </message>
    <message>
        <source>Reminder &amp;file</source>
        <translation>Archi&amp;vo del recordatorio</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Exa&amp;minar…</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acep&amp;tar</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nombre de la tarea</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fecha de vencimiento</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Hora de vencimiento</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Enable reminder</source>
        <translation>Activar recordatorio</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>Fecha del recordatorio</translation>
    </message>
    <message>
        <source>Reminder time</source>
        <translation>Hora del recordatorio</translation>
    </message>
    <message>
        <source>Reminder sound</source>
        <translation>Sonido del recordatorio</translation>
    </message>
    <message>
        <source>Reminder sound file</source>
        <translation>Archivo de sonido del recordatorio</translation>
    </message>
    <message>
        <source>Browse for a reminder sound</source>
        <translation>Buscar un sonido de recordatorio</translation>
    </message>
    <message>
        <source>Reminder file</source>
        <translation>Archivo del recordatorio</translation>
    </message>
    <message>
        <source>Program or batch file</source>
        <translation>Programa o archivo por lotes</translation>
    </message>
    <message>
        <source>Browse for a reminder file</source>
        <translation>Buscar un archivo de recordatorio</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Task name:</source>
        <translation>&amp;Nombre de la tarea:</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Categoría:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>&amp;Fecha de vencimiento:</translation>
    </message>
    <message>
        <source>Due ti&amp;me:</source>
        <translation>&amp;Hora de vencimiento:</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>&amp;Estado:</translation>
    </message>
    <message>
        <source>&amp;Priority:</source>
        <translation>&amp;Prioridad:</translation>
    </message>
    <message>
        <source>&amp;Reminder date:</source>
        <translation>Fecha del &amp;recordatorio:</translation>
    </message>
    <message>
        <source>Reminder t&amp;ime:</source>
        <translation>H&amp;ora del recordatorio:</translation>
    </message>
    <message>
        <source>Wa&amp;ve:</source>
        <translation>&amp;Wave:</translation>
    </message>
    <message>
        <source>Pro&amp;gram:</source>
        <translation>Pro&amp;grama:</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Establecer en</translation>
    </message>
    <message>
        <source>Set the due moment to</source>
        <translation>Establecer el vencimiento en</translation>
    </message>
    <message>
        <source>Set the reminder to</source>
        <translation>Establecer el recordatorio en</translation>
    </message>
    <message>
        <source>Switches the reminder on; it follows the due moment until it is changed</source>
        <translation>Activa el recordatorio, que sigue al vencimiento hasta que se cambie</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Repeat tas&amp;k:</source>
        <translation>Repet&amp;ir tarea:</translation>
    </message>
</context>
<context>
    <name>modAmbertaks</name>
    <message>
        <source>The program folder could not be made.
%1</source>
        <translation>No se pudo crear la carpeta del programa.
%1</translation>
    </message>
    <message>
        <source>The program folder could not be kept from a second copy of the program.
%1</source>
        <translation>No se ha podido proteger la carpeta del programa de una segunda copia del programa.
%1</translation>
    </message>
</context>
</TS>
