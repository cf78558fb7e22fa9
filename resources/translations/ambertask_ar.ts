<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AlertActions</name>
    <message>
        <source>&amp;Complete</source>
        <translation>إ&amp;كمال</translation>
    </message>
    <message>
        <source>&amp;Open Item</source>
        <translation>&amp;فتح المهمة</translation>
    </message>
    <message>
        <source>&amp;Remind me later</source>
        <translation>&amp;ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>ت&amp;جاهل</translation>
    </message>
</context>
<context>
    <name>AlertListModel</name>
    <message>
        <source>id</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>الفئة: %1</translation>
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
        <translation>فتح</translation>
    </message>
    <message>
        <source>Later (15 minutes)</source>
        <translation>لاحقًا (15 دقيقة)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>تجاهل</translation>
    </message>
</context>
<context>
    <name>Cancelled</name>
    <message>
        <source>The operation was cancelled.</source>
        <translation>أُلغيت العملية.</translation>
    </message>
</context>
<context>
    <name>CategoriesPage</name>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تح&amp;رير</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>الفئات</translation>
    </message>
    <message>
        <source>Add a category</source>
        <translation>إضافة فئة</translation>
    </message>
    <message>
        <source>Edit the selected category</source>
        <translation>تحرير الفئة المحددة</translation>
    </message>
    <message>
        <source>Delete the selected category</source>
        <translation>حذف الفئة المحددة</translation>
    </message>
    <message>
        <source>Help on categories</source>
        <translation>مساعدة حول الفئات</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos; category, all tasks under this category will be deleted?</source>
        <translation>هل تريد بالتأكيد حذف الفئة «%1»؟ ستُحذف معها كل المهام التابعة لها.</translation>
    </message>
    <message>
        <source>Category &quot;%1&quot; deleted with its tasks</source>
        <translation>حُذفت الفئة «%1» مع مهامها</translation>
    </message>
    <message>
        <source>There are no categories yet</source>
        <translation>لا توجد فئات بعد</translation>
    </message>
</context>
<context>
    <name>CategoryInput</name>
    <message>
        <source>The changes to the category are not saved.</source>
        <translation>لم تُحفظ التغييرات في الفئة.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>لم تُحفظ التغييرات في «%1».</translation>
    </message>
</context>
<context>
    <name>CategoryPictures</name>
    <message>
        <source>Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>التسوق</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>البريد</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>المال</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>السفر</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>الدراسة</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>العائلة</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>أفكار</translation>
    </message>
</context>
<context>
    <name>ChangeTexts</name>
    <message>
        <source>1 task deleted</source>
        <translation>تم حذف مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted</source>
        <translation>
            <numerusform>لم يتم حذف أي مهمة</numerusform>
            <numerusform>تم حذف مهمة واحدة</numerusform>
            <numerusform>تم حذف مهمتين</numerusform>
            <numerusform>تم حذف %n مهام</numerusform>
            <numerusform>تم حذف %n مهمة</numerusform>
            <numerusform>تم حذف %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task duplicated</source>
        <translation>تم نسخ مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks duplicated</source>
        <translation>
            <numerusform>لم يتم نسخ أي مهمة</numerusform>
            <numerusform>تم نسخ مهمة واحدة</numerusform>
            <numerusform>تم نسخ مهمتين</numerusform>
            <numerusform>تم نسخ %n مهام</numerusform>
            <numerusform>تم نسخ %n مهمة</numerusform>
            <numerusform>تم نسخ %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task completed</source>
        <translation>تم إكمال مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks completed</source>
        <translation>
            <numerusform>لم يتم إكمال أي مهمة</numerusform>
            <numerusform>تم إكمال مهمة واحدة</numerusform>
            <numerusform>تم إكمال مهمتين</numerusform>
            <numerusform>تم إكمال %n مهام</numerusform>
            <numerusform>تم إكمال %n مهمة</numerusform>
            <numerusform>تم إكمال %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task set back to &quot;Not Started&quot;</source>
        <translation>تمت إعادة مهمة واحدة إلى «لم تبدأ»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks set back to &quot;Not Started&quot;</source>
        <translation>
            <numerusform>لم تتم إعادة أي مهمة إلى «لم تبدأ»</numerusform>
            <numerusform>تمت إعادة مهمة واحدة إلى «لم تبدأ»</numerusform>
            <numerusform>تمت إعادة مهمتين إلى «لم تبدأ»</numerusform>
            <numerusform>تمت إعادة %n مهام إلى «لم تبدأ»</numerusform>
            <numerusform>تمت إعادة %n مهمة إلى «لم تبدأ»</numerusform>
            <numerusform>تمت إعادة %n مهمة إلى «لم تبدأ»</numerusform>
        </translation>
    </message>
    <message>
        <source>Status of 1 task changed</source>
        <translation>تم تغيير حالة مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>Status of %n tasks changed</source>
        <translation>
            <numerusform>لم يتم تغيير حالة أي مهمة</numerusform>
            <numerusform>تم تغيير حالة مهمة واحدة</numerusform>
            <numerusform>تم تغيير حالة مهمتين</numerusform>
            <numerusform>تم تغيير حالة %n مهام</numerusform>
            <numerusform>تم تغيير حالة %n مهمة</numerusform>
            <numerusform>تم تغيير حالة %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>Priority of 1 task changed</source>
        <translation>تم تغيير أولوية مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>Priority of %n tasks changed</source>
        <translation>
            <numerusform>لم يتم تغيير أولوية أي مهمة</numerusform>
            <numerusform>تم تغيير أولوية مهمة واحدة</numerusform>
            <numerusform>تم تغيير أولوية مهمتين</numerusform>
            <numerusform>تم تغيير أولوية %n مهام</numerusform>
            <numerusform>تم تغيير أولوية %n مهمة</numerusform>
            <numerusform>تم تغيير أولوية %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>Category of 1 task changed</source>
        <translation>تم تغيير فئة مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>Category of %n tasks changed</source>
        <translation>
            <numerusform>لم يتم تغيير فئة أي مهمة</numerusform>
            <numerusform>تم تغيير فئة مهمة واحدة</numerusform>
            <numerusform>تم تغيير فئة مهمتين</numerusform>
            <numerusform>تم تغيير فئة %n مهام</numerusform>
            <numerusform>تم تغيير فئة %n مهمة</numerusform>
            <numerusform>تم تغيير فئة %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder dismissed</source>
        <translation>تم تجاهل تذكير واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders dismissed</source>
        <translation>
            <numerusform>لم يتم تجاهل أي تذكير</numerusform>
            <numerusform>تم تجاهل تذكير واحد</numerusform>
            <numerusform>تم تجاهل تذكيرين</numerusform>
            <numerusform>تم تجاهل %n تذكيرات</numerusform>
            <numerusform>تم تجاهل %n تذكيرًا</numerusform>
            <numerusform>تم تجاهل %n تذكير</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder postponed</source>
        <translation>تم تأجيل تذكير واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders postponed</source>
        <translation>
            <numerusform>لم يتم تأجيل أي تذكير</numerusform>
            <numerusform>تم تأجيل تذكير واحد</numerusform>
            <numerusform>تم تأجيل تذكيرين</numerusform>
            <numerusform>تم تأجيل %n تذكيرات</numerusform>
            <numerusform>تم تأجيل %n تذكيرًا</numerusform>
            <numerusform>تم تأجيل %n تذكير</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task imported</source>
        <translation>تم استيراد مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks imported</source>
        <translation>
            <numerusform>لم يتم استيراد أي مهمة</numerusform>
            <numerusform>تم استيراد مهمة واحدة</numerusform>
            <numerusform>تم استيراد مهمتين</numerusform>
            <numerusform>تم استيراد %n مهام</numerusform>
            <numerusform>تم استيراد %n مهمة</numerusform>
            <numerusform>تم استيراد %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>No copy was kept: %1</source>
        <translation>لم تُحفظ نسخة: %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>1 task moved on to its next time</source>
        <translation>تم نقل مهمة واحدة إلى مرتها القادمة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted this time</source>
        <translation>
            <numerusform>لم يتم حذف أي مهمة هذه المرة</numerusform>
            <numerusform>تم حذف مهمة واحدة هذه المرة</numerusform>
            <numerusform>تم حذف مهمتين هذه المرة</numerusform>
            <numerusform>تم حذف %n مهام هذه المرة</numerusform>
            <numerusform>تم حذف %n مهمة هذه المرة</numerusform>
            <numerusform>تم حذف %n مهمة هذه المرة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClsTask</name>
    <message>
        <source>The statement is unfinished: %1</source>
        <translation>العبارة غير مكتملة: %1</translation>
    </message>
    <message>
        <source>The task was not stored: there is no number left for a new one. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>لم تُحفظ المهمة: لم يبقَ رقم لمهمة جديدة. احذف المهام التي لم تعد بحاجة إليها، ثم أنهِ Ambertask وشغّله من جديد.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>لا يوجد خيار «‎%1».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value.</source>
        <translation>الخيار «‎%1» يحتاج إلى قيمة.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value.</source>
        <translation>الخيار «‎%1» لا يقبل قيمة.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;; the formats are &quot;ics&quot; and &quot;csv&quot;.</source>
        <translation>لا توجد صيغة «%1»؛ الصيغتان هما «ics» و«csv».</translation>
    </message>
    <message>
        <source>With &quot;-&quot; the format has to be said, by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>مع «-» يجب تحديد الصيغة بالخيار «‎--format ics» أو «‎--format csv».</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; ends neither in &quot;.ics&quot; nor in &quot;.csv&quot;; say the format by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>الاسم «%1» لا ينتهي بـ «‎.ics» ولا بـ «‎.csv»؛ حدّد الصيغة بالخيار «‎--format ics» أو «‎--format csv».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes with &quot;%2&quot; only.</source>
        <translation>لا يُستخدم الخيار «‎%1» إلا مع «‎%2».</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; do not go together.</source>
        <translation>لا يمكن استخدام الخيارين «‎%1» و«‎%2» معًا.</translation>
    </message>
    <message>
        <source>The word &quot;%1&quot; is one too many.</source>
        <translation>الكلمة «‎%1» زائدة.</translation>
    </message>
    <message>
        <source>Ambertask --export FILE [--format ics|csv]</source>
        <translation>Ambertask --export FILE [--format ics|csv]</translation>
    </message>
    <message>
        <source>Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]</source>
        <translation>Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]</translation>
    </message>
    <message>
        <source>Without an option the organizer starts with its window. With one of these it does what it is told and ends, without a window, also while a copy runs:</source>
        <translation>من دون خيار يبدأ المنظّم بنافذته. ومع أحد الخيارات التالية ينفّذ المطلوب وينتهي من دون نافذة، حتى أثناء تشغيل نسخة أخرى من البرنامج:</translation>
    </message>
    <message>
        <source>Writes all tasks, each on a line, with tabs between the fields, which the first line names. In texts \t stands for a tab, \n for a line break and \\ for \.</source>
        <translation>يكتب كل المهام، كل مهمة في سطر، مع علامات جدولة بين الحقول التي يسمّيها السطر الأول. في النصوص ‎\t تعني علامة جدولة، و‎\n تعني فاصل أسطر، و‎\\‎ تعني ‎\‎.</translation>
    </message>
    <message>
        <source>Writes all tasks as an array of JSON objects.</source>
        <translation>يكتب كل المهام كمصفوفة من كائنات JSON.</translation>
    </message>
    <message>
        <source>--export FILE</source>
        <translation>--export FILE</translation>
    </message>
    <message>
        <source>Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv).</source>
        <translation>يكتب كل المهام في FILE بصيغة iCalendar‎ (.ics)‎ أو CSV‎ (.csv)‎.</translation>
    </message>
    <message>
        <source>--import FILE</source>
        <translation>--import FILE</translation>
    </message>
    <message>
        <source>Says what an import of FILE would do and imports nothing; the status is 1.</source>
        <translation>يبيّن ما سيفعله استيراد FILE ولا يستورد شيئًا؛ وتكون حالة الخروج 1.</translation>
    </message>
    <message>
        <source>--import FILE --yes</source>
        <translation>--import FILE --yes</translation>
    </message>
    <message>
        <source>Imports FILE, without the programs that its tasks would start; it names them.</source>
        <translation>يستورد FILE من دون البرامج التي كانت مهامه ستشغّلها؛ ويذكر أسماءها.</translation>
    </message>
    <message>
        <source>--import FILE --yes --with-programs</source>
        <translation>--import FILE --yes --with-programs</translation>
    </message>
    <message>
        <source>Imports these programs as well.</source>
        <translation>يستورد هذه البرامج أيضًا.</translation>
    </message>
    <message>
        <source>The format of FILE, where its name does not tell. FILE can be &quot;-&quot; then, for standard output or standard input.</source>
        <translation>صيغة FILE إذا لم يدلّ عليها اسمه. ويمكن عندئذ أن يكون FILE هو «-» للإخراج القياسي أو الإدخال القياسي.</translation>
    </message>
    <message>
        <source>Writes this text.</source>
        <translation>يكتب هذا النص.</translation>
    </message>
    <message>
        <source>Writes the version.</source>
        <translation>يكتب رقم الإصدار.</translation>
    </message>
    <message>
        <source>The status is 0, 1 when something has failed, and 2 when the command line is wrong.</source>
        <translation>حالة الخروج هي 0، أو 1 عند فشل شيء ما، أو 2 عند وجود خطأ في سطر الأوامر.</translation>
    </message>
    <message>
        <source>--format ics|csv</source>
        <translation>‎--format ics|csv</translation>
    </message>
</context>
<context>
    <name>CommandRun</name>
    <message>
        <source>1 record cannot be read and is left out. %1</source>
        <translation>سجل واحد تتعذّر قراءته ويُستبعد. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n records cannot be read and are left out. The first: %1</source>
        <translation>
            <numerusform>لا سجلات تتعذّر قراءتها. الأول: %1</numerusform>
            <numerusform>سجل واحد تتعذّر قراءته ويُستبعد. الأول: %1</numerusform>
            <numerusform>سجلان تتعذّر قراءتهما ويُستبعدان. الأول: %1</numerusform>
            <numerusform>%n سجلات تتعذّر قراءتها وتُستبعد. الأول: %1</numerusform>
            <numerusform>%n سجلًا تتعذّر قراءتها وتُستبعد. الأول: %1</numerusform>
            <numerusform>%n سجل تتعذّر قراءتها وتُستبعد. الأول: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>تعذّرت كتابة المخرجات: %1.</translation>
    </message>
    <message>
        <source>See &quot;Ambertask --help&quot;.</source>
        <translation>راجع «Ambertask --help».</translation>
    </message>
    <message>
        <source>Nothing was imported; the option &quot;--yes&quot; imports it.</source>
        <translation>لم يُستورد شيء؛ الخيار «‎--yes» ينفّذ الاستيراد.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>لا يوجد ما يُستورد.</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>تم الاستيراد.</translation>
    </message>
    <message>
        <source>What cannot be read in the file was left out.</source>
        <translation>استُبعد ما تتعذّر قراءته في الملف.</translation>
    </message>
    <message>
        <source>New: %1</source>
        <translation>جديدة: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>متغيّرة: %1</translation>
    </message>
    <message>
        <source>New category: %1</source>
        <translation>فئة جديدة: %1</translation>
    </message>
    <message>
        <source>Starts a program, &quot;%1&quot;: %2</source>
        <translation>تشغّل برنامجًا، «%1»: %2</translation>
    </message>
    <message>
        <source>Left out, a program that &quot;%1&quot; would start: %2</source>
        <translation>استُبعد برنامج كانت «%1» ستشغّله: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1: %2</source>
        <translation>غير مقروء، السطر %1: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1, &quot;%2&quot;: %3</source>
        <translation>غير مقروء، السطر %1، «%2»: %3</translation>
    </message>
    <message>
        <source>There are no tasks yet: the program folder &quot;%1&quot; does not exist. The first start makes it, and so does an import.</source>
        <translation>لا توجد مهام بعد: مجلد البرنامج «%1» غير موجود. يُنشأ عند أول تشغيل أو عند الاستيراد.</translation>
    </message>
    <message>
        <source>There are no tasks yet. The first start makes the data file, and so does an import.</source>
        <translation>لا توجد مهام بعد. يُنشأ ملف البيانات عند أول تشغيل أو عند الاستيراد.</translation>
    </message>
</context>
<context>
    <name>CompiledHelpWindow</name>
    <message>
        <source>Ambertask Help</source>
        <translation>مساعدة Ambertask</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>الموضوع</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;رجوع</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;تقدم</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>ال&amp;صفحة الرئيسية</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>نص أص&amp;غر</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>ال&amp;محتويات</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>ال&amp;فهرس</translation>
    </message>
    <message>
        <source>S&amp;earch</source>
        <translation>ال&amp;بحث</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>تعذّر عرض المساعدة</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read. Installing the program again brings it back; your tasks are kept.</source>
        <translation>ملف المساعدة «%1» تالف أو تتعذّر قراءته. إعادة تثبيت البرنامج تعيده؛ وتبقى مهامك محفوظة.</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is not in the program&apos;s folder. Installing the program again brings it back; your tasks are kept.</source>
        <translation>ملف المساعدة «%1» غير موجود في مجلد البرنامج. إعادة تثبيت البرنامج تعيده؛ وتبقى مهامك محفوظة.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>تعذّر عرض هذه الصفحة</translation>
    </message>
    <message>
        <source>The help file has no topic number %1.</source>
        <translation>لا يحتوي ملف المساعدة على الموضوع رقم %1.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعة…</translation>
    </message>
    <message>
        <source>La&amp;rger text</source>
        <translation>نص أ&amp;كبر</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. Do you want to write this topic to a PDF file instead?</source>
        <translation>لا توجد طابعة مُعدّة على هذا الحاسوب. هل تريد كتابة هذا الموضوع في ملف PDF بدلًا من ذلك؟</translation>
    </message>
    <message>
        <source>The topic could not be printed.</source>
        <translation>تعذّرت طباعة الموضوع.</translation>
    </message>
    <message>
        <source>The topic could not be written to &quot;%1&quot;: %2.</source>
        <translation>تعذّرت كتابة الموضوع في «%1»: %2.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>حُفظ ملف PDF في «%1»</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>The connection is open already.</source>
        <translation>الاتصال مفتوح بالفعل.</translation>
    </message>
    <message>
        <source>The data file knows no users and no passwords.</source>
        <translation>لا يعرف ملف البيانات مستخدمين ولا كلمات مرور.</translation>
    </message>
    <message>
        <source>The connection string &quot;%1&quot; names no data file.</source>
        <translation>سلسلة الاتصال «%1» لا تحدد أي ملف بيانات.</translation>
    </message>
    <message>
        <source>The connection to the data file is not open.</source>
        <translation>الاتصال بملف البيانات غير مفتوح.</translation>
    </message>
</context>
<context>
    <name>ContentsPane</name>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
</context>
<context>
    <name>CopyListModel</name>
    <message>
        <source>First change of the day</source>
        <translation>أول تغيير في اليوم</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>الاستعادة</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>الاستيراد</translation>
    </message>
    <message>
        <source>Deletion of tasks</source>
        <translation>حذف المهام</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>الترقية</translation>
    </message>
    <message>
        <source>1 task added</source>
        <translation>أُضيفت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks added</source>
        <translation>
            <numerusform>لم تُضف أي مهمة</numerusform>
            <numerusform>أُضيفت مهمة واحدة</numerusform>
            <numerusform>أُضيفت مهمتان</numerusform>
            <numerusform>أُضيفت %n مهام</numerusform>
            <numerusform>أُضيفت %n مهمة</numerusform>
            <numerusform>أُضيفت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task changed</source>
        <translation>تغيّرت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks changed</source>
        <translation>
            <numerusform>لم تتغيّر أي مهمة</numerusform>
            <numerusform>تغيّرت مهمة واحدة</numerusform>
            <numerusform>تغيّرت مهمتان</numerusform>
            <numerusform>تغيّرت %n مهام</numerusform>
            <numerusform>تغيّرت %n مهمة</numerusform>
            <numerusform>تغيّرت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task gone</source>
        <translation>حُذفت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks gone</source>
        <translation>
            <numerusform>لم تُحذف أي مهمة</numerusform>
            <numerusform>حُذفت مهمة واحدة</numerusform>
            <numerusform>حُذفت مهمتان</numerusform>
            <numerusform>حُذفت %n مهام</numerusform>
            <numerusform>حُذفت %n مهمة</numerusform>
            <numerusform>حُذفت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>other categories</source>
        <translation>فئات مختلفة</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>لم يتغيّر شيء</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>أُنشئت</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>قبل</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>Since then</source>
        <translation>منذ ذلك الحين</translation>
    </message>
    <message>
        <source>is being compared...</source>
        <translation>جارٍ المقارنة…</translation>
    </message>
</context>
<context>
    <name>CustomIcons</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: this is not a plain file name.</source>
        <translation>تعذّر استخدام الصورة «%1»: ليس اسم ملف مجردًا.</translation>
    </message>
</context>
<context>
    <name>DataFileCopies</name>
    <message>
        <source>&quot;%1&quot; belongs to the data file.</source>
        <translation>«%1» تابع لملف البيانات.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the data file itself.</source>
        <translation>«%1» هو ملف البيانات نفسه.</translation>
    </message>
    <message>
        <source>An operation on &quot;%1&quot; is not finished.</source>
        <translation>لم تكتمل عملية على «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no data file.</source>
        <translation>«%1» ليس ملف بيانات.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>الملف تالف.</translation>
    </message>
</context>
<context>
    <name>DataFileRoad</name>
    <message>
        <source>The data file was made by a later version of Ambertask; this version cannot use it.</source>
        <translation>أُنشئ ملف البيانات بإصدار أحدث من Ambertask؛ ولا يمكن لهذا الإصدار استخدامه.</translation>
    </message>
</context>
<context>
    <name>Dialect</name>
    <message>
        <source>The date literal %1 is not of the form #month/day/year hours:minutes#.</source>
        <translation>قيمة التاريخ %1 ليست على الصيغة #شهر/يوم/سنة ساعات:دقائق#.</translation>
    </message>
    <message>
        <source>The date literal %1 names no existing day and time.</source>
        <translation>قيمة التاريخ %1 لا تدل على يوم ووقت موجودين.</translation>
    </message>
    <message>
        <source>The statement holds a zero character.</source>
        <translation>تحتوي العبارة على حرف صفري.</translation>
    </message>
    <message>
        <source>The date literal %1 is not closed.</source>
        <translation>قيمة التاريخ %1 غير مغلقة.</translation>
    </message>
</context>
<context>
    <name>DisplayGate</name>
    <message>
        <source>Ambertask needs a graphical desktop, and none could be reached from here.</source>
        <translation>يحتاج Ambertask إلى سطح مكتب رسومي، ولم يمكن الوصول إلى أي سطح مكتب من هنا.</translation>
    </message>
</context>
<context>
    <name>Draft</name>
    <message>
        <source>The input is too large. Nothing was stored.</source>
        <translation>المُدخل كبير جدًا. لم يُحفظ شيء.</translation>
    </message>
</context>
<context>
    <name>EmptyListNote</name>
    <message>
        <source>%1 of 1 task</source>
        <translation>%1 من مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n tasks</source>
        <translation>
            <numerusform>%1 من دون مهام</numerusform>
            <numerusform>%1 من مهمة واحدة</numerusform>
            <numerusform>%1 من مهمتين</numerusform>
            <numerusform>%1 من %n مهام</numerusform>
            <numerusform>%1 من %n مهمة</numerusform>
            <numerusform>%1 من %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show all</source>
        <translation>إ&amp;ظهار الكل</translation>
    </message>
    <message>
        <source>There are no tasks yet</source>
        <translation>لا توجد مهام بعد</translation>
    </message>
    <message>
        <source>No task matches the filters</source>
        <translation>لا توجد مهمة توافق المرشّحات</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;</source>
        <translation>لم يُعثر على شيء عن «%1»</translation>
    </message>
</context>
<context>
    <name>ExchangeTexts</name>
    <message>
        <source>The file could not be read: %1.</source>
        <translation>تعذّرت قراءة الملف: %1.</translation>
    </message>
    <message>
        <source>The file is no iCalendar file.</source>
        <translation>الملف ليس ملف iCalendar.</translation>
    </message>
    <message>
        <source>It has no end.</source>
        <translation>بلا نهاية.</translation>
    </message>
    <message>
        <source>Its parts are nested too deeply.</source>
        <translation>أجزاؤه متداخلة بعمق زائد.</translation>
    </message>
    <message>
        <source>The file ends in the middle of it.</source>
        <translation>ينتهي الملف في وسط هذا العنصر.</translation>
    </message>
    <message>
        <source>One of its parts has no end.</source>
        <translation>أحد أجزائه بلا نهاية.</translation>
    </message>
    <message>
        <source>One of its lines is too long.</source>
        <translation>أحد أسطره طويل جدًا.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>الحجم كبير جدًا.</translation>
    </message>
    <message>
        <source>It has too many columns.</source>
        <translation>عدد الأعمدة كبير جدًا.</translation>
    </message>
    <message>
        <source>One of its quotes has no end.</source>
        <translation>إحدى علامات الاقتباس غير مغلقة.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; cannot be read: %2</source>
        <translation>تتعذّر قراءة العمود «%1»: %2</translation>
    </message>
    <message>
        <source>The file is no list of tasks: its first line has no column &quot;%1&quot;.</source>
        <translation>الملف ليس قائمة مهام: لا يحتوي سطره الأول على العمود «%1».</translation>
    </message>
    <message>
        <source>It holds bytes that are no text in UTF-8.</source>
        <translation>يوجد فيه بايتات ليست نصًا بترميز UTF-8.</translation>
    </message>
    <message>
        <source>1 task is new.</source>
        <translation>مهمة واحدة جديدة.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are new.</source>
        <translation>
            <numerusform>لا مهام جديدة.</numerusform>
            <numerusform>مهمة واحدة جديدة.</numerusform>
            <numerusform>مهمتان جديدتان.</numerusform>
            <numerusform>%n مهام جديدة.</numerusform>
            <numerusform>%n مهمة جديدة.</numerusform>
            <numerusform>%n مهمة جديدة.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is changed.</source>
        <translation>مهمة واحدة متغيّرة.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are changed.</source>
        <translation>
            <numerusform>لا مهام متغيّرة.</numerusform>
            <numerusform>مهمة واحدة متغيّرة.</numerusform>
            <numerusform>مهمتان متغيّرتان.</numerusform>
            <numerusform>%n مهام متغيّرة.</numerusform>
            <numerusform>%n مهمة متغيّرة.</numerusform>
            <numerusform>%n مهمة متغيّرة.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is the same.</source>
        <translation>مهمة واحدة مطابقة.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are the same.</source>
        <translation>
            <numerusform>لا مهام مطابقة.</numerusform>
            <numerusform>مهمة واحدة مطابقة.</numerusform>
            <numerusform>مهمتان مطابقتان.</numerusform>
            <numerusform>%n مهام مطابقة.</numerusform>
            <numerusform>%n مهمة مطابقة.</numerusform>
            <numerusform>%n مهمة مطابقة.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file holds no task.</source>
        <translation>لا يحتوي الملف على أي مهمة.</translation>
    </message>
    <message>
        <source>1 category is made.</source>
        <translation>فئة واحدة جديدة.</translation>
    </message>
    <message numerus="yes">
        <source>%n categories are made.</source>
        <translation>
            <numerusform>لا فئات جديدة.</numerusform>
            <numerusform>فئة واحدة جديدة.</numerusform>
            <numerusform>فئتان جديدتان.</numerusform>
            <numerusform>%n فئات جديدة.</numerusform>
            <numerusform>%n فئة جديدة.</numerusform>
            <numerusform>%n فئة جديدة.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task cannot be read and stays out.</source>
        <translation>مهمة واحدة تتعذّر قراءتها وتُستبعد.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks cannot be read and stay out.</source>
        <translation>
            <numerusform>لا مهام تتعذّر قراءتها.</numerusform>
            <numerusform>مهمة واحدة تتعذّر قراءتها وتُستبعد.</numerusform>
            <numerusform>مهمتان تتعذّر قراءتهما وتُستبعدان.</numerusform>
            <numerusform>%n مهام تتعذّر قراءتها وتُستبعد.</numerusform>
            <numerusform>%n مهمة تتعذّر قراءتها وتُستبعد.</numerusform>
            <numerusform>%n مهمة تتعذّر قراءتها وتُستبعد.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry is no task and stays out.</source>
        <translation>عنصر واحد ليس مهمة ويُستبعد.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are no tasks and stay out.</source>
        <translation>
            <numerusform>لا عناصر سوى المهام.</numerusform>
            <numerusform>عنصر واحد ليس مهمة ويُستبعد.</numerusform>
            <numerusform>عنصران ليسا مهمتين ويُستبعدان.</numerusform>
            <numerusform>%n عناصر ليست مهام وتُستبعد.</numerusform>
            <numerusform>%n عنصرًا ليست مهام وتُستبعد.</numerusform>
            <numerusform>%n عنصر ليست مهام وتُستبعد.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder is past and comes in as dismissed.</source>
        <translation>تذكير واحد فات موعده ويُستورد متجاهَلًا.</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders are past and come in as dismissed.</source>
        <translation>
            <numerusform>لا تذكيرات فات موعدها.</numerusform>
            <numerusform>تذكير واحد فات موعده ويُستورد متجاهَلًا.</numerusform>
            <numerusform>تذكيران فات موعدهما ويُستوردان متجاهَلين.</numerusform>
            <numerusform>%n تذكيرات فات موعدها وتُستورد متجاهَلة.</numerusform>
            <numerusform>%n تذكيرًا فات موعدها وتُستورد متجاهَلة.</numerusform>
            <numerusform>%n تذكير فات موعدها وتُستورد متجاهَلة.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task repeats and comes in once.</source>
        <translation>مهمة واحدة متكررة وتُستورد مرة واحدة.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks repeat and come in once.</source>
        <translation>
            <numerusform>لا مهام متكررة.</numerusform>
            <numerusform>مهمة واحدة متكررة وتُستورد مرة واحدة.</numerusform>
            <numerusform>مهمتان متكررتان وتُستورد كل منهما مرة واحدة.</numerusform>
            <numerusform>%n مهام متكررة وتُستورد كل منها مرة واحدة.</numerusform>
            <numerusform>%n مهمة متكررة وتُستورد كل منها مرة واحدة.</numerusform>
            <numerusform>%n مهمة متكررة وتُستورد كل منها مرة واحدة.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task has no due date and is due today.</source>
        <translation>مهمة واحدة بلا تاريخ استحقاق وتصبح مستحقة اليوم.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks have no due date and are due today.</source>
        <translation>
            <numerusform>لا مهام بلا تاريخ استحقاق.</numerusform>
            <numerusform>مهمة واحدة بلا تاريخ استحقاق وتصبح مستحقة اليوم.</numerusform>
            <numerusform>مهمتان بلا تاريخ استحقاق وتصبحان مستحقتين اليوم.</numerusform>
            <numerusform>%n مهام بلا تاريخ استحقاق وتصبح مستحقة اليوم.</numerusform>
            <numerusform>%n مهمة بلا تاريخ استحقاق وتصبح مستحقة اليوم.</numerusform>
            <numerusform>%n مهمة بلا تاريخ استحقاق وتصبح مستحقة اليوم.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further reminder is kept, but does not remind.</source>
        <translation>تذكير إضافي واحد يُحتفظ به لكنه لا يذكّر.</translation>
    </message>
    <message numerus="yes">
        <source>%n further reminders are kept, but do not remind.</source>
        <translation>
            <numerusform>لا تذكيرات إضافية.</numerusform>
            <numerusform>تذكير إضافي واحد يُحتفظ به لكنه لا يذكّر.</numerusform>
            <numerusform>تذكيران إضافيان يُحتفظ بهما لكنهما لا يذكّران.</numerusform>
            <numerusform>%n تذكيرات إضافية يُحتفظ بها لكنها لا تذكّر.</numerusform>
            <numerusform>%n تذكيرًا إضافيًا يُحتفظ بها لكنها لا تذكّر.</numerusform>
            <numerusform>%n تذكير إضافي يُحتفظ بها لكنها لا تذكّر.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is in an unknown time zone and is taken as local time.</source>
        <translation>مهمة واحدة في منطقة زمنية غير معروفة ويُعدّ وقتها محليًا.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are in unknown time zones and are taken as local time.</source>
        <translation>
            <numerusform>لا مهام في مناطق زمنية غير معروفة.</numerusform>
            <numerusform>مهمة واحدة في منطقة زمنية غير معروفة ويُعدّ وقتها محليًا.</numerusform>
            <numerusform>مهمتان في مناطق زمنية غير معروفة ويُعدّ وقتهما محليًا.</numerusform>
            <numerusform>%n مهام في مناطق زمنية غير معروفة ويُعدّ وقتها محليًا.</numerusform>
            <numerusform>%n مهمة في مناطق زمنية غير معروفة ويُعدّ وقتها محليًا.</numerusform>
            <numerusform>%n مهمة في مناطق زمنية غير معروفة ويُعدّ وقتها محليًا.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tasks cannot be exported or imported: the module &quot;ambertask_exchange&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>تعذّر تصدير المهام أو استيرادها: الوحدة «ambertask_exchange» مفقودة من مجلد البرنامج أو تالفة.</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>مستوردة</translation>
    </message>
    <message>
        <source>A task before it has the same UID.</source>
        <translation>توجد قبلها مهمة لها UID نفسه.</translation>
    </message>
    <message>
        <source>The file holds more than %1 tasks that are new. Nothing was stored.</source>
        <translation>يحتوي الملف على أكثر من %1 مهمة جديدة. لم يُحفظ شيء.</translation>
    </message>
    <message>
        <source>The file is too large. Nothing was stored.</source>
        <translation>الملف كبير جدًا. لم يُحفظ شيء.</translation>
    </message>
    <message>
        <source>The file holds %1 tasks that are new, and there is room for %2. Nothing was stored. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>عدد المهام الجديدة في الملف %1، ولا يتسع المكان إلا لعدد %2. لم يُحفظ شيء. احذف المهام التي لم تعد بحاجة إليها، ثم أنهِ Ambertask وشغّله من جديد.</translation>
    </message>
    <message>
        <source>The tasks could not be written: %1.</source>
        <translation>تعذّرت كتابة المهام: %1.</translation>
    </message>
    <message>
        <source>Its due date cannot be read: %1</source>
        <translation>تتعذّر قراءة تاريخ استحقاقها: %1</translation>
    </message>
    <message>
        <source>Nothing was stored: another program has changed the tasks meanwhile.</source>
        <translation>لم يُحفظ شيء: غيّر برنامج آخر المهام في هذه الأثناء.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>جميع الملفات (*)</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it is not a file</source>
        <translation>ليس ملفًا</translation>
    </message>
    <message>
        <source>there is no file name</source>
        <translation>اسم الملف غير موجود</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>سيكون الملف كبيرًا جدًا</translation>
    </message>
    <message>
        <source>there is no permission for that</source>
        <translation>لا توجد صلاحية لذلك</translation>
    </message>
    <message>
        <source>nothing can be written to that disk</source>
        <translation>لا يمكن الكتابة على هذا القرص</translation>
    </message>
    <message>
        <source>the file or its folder does not exist</source>
        <translation>الملف أو مجلده غير موجود</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>الاسم طويل جدًا</translation>
    </message>
    <message>
        <source>the disk failed or was taken out</source>
        <translation>تعطّل القرص أو أُزيل</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>يستخدمه برنامج آخر</translation>
    </message>
</context>
<context>
    <name>FileExchange</name>
    <message>
        <source>iCalendar Files (*.ics)|*.ics</source>
        <translation>ملفات iCalendar (*.ics)|*.ics</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv</source>
        <translation>ملفات CSV (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>the name of the file ends neither with .ics nor with .csv</source>
        <translation>اسم الملف لا ينتهي بـ ‎.ics ولا بـ ‎.csv</translation>
    </message>
    <message>
        <source>1 task was exported to &quot;%1&quot;</source>
        <translation>تم تصدير مهمة واحدة إلى «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were exported to &quot;%1&quot;</source>
        <translation>
            <numerusform>لم يتم تصدير أي مهمة إلى «%1»</numerusform>
            <numerusform>تم تصدير مهمة واحدة إلى «%1»</numerusform>
            <numerusform>تم تصدير مهمتين إلى «%1»</numerusform>
            <numerusform>تم تصدير %n مهام إلى «%1»</numerusform>
            <numerusform>تم تصدير %n مهمة إلى «%1»</numerusform>
            <numerusform>تم تصدير %n مهمة إلى «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was added</source>
        <translation>أُضيفت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were added</source>
        <translation>
            <numerusform>لم تُضف أي مهمة</numerusform>
            <numerusform>أُضيفت مهمة واحدة</numerusform>
            <numerusform>أُضيفت مهمتان</numerusform>
            <numerusform>أُضيفت %n مهام</numerusform>
            <numerusform>أُضيفت %n مهمة</numerusform>
            <numerusform>أُضيفت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was changed</source>
        <translation>تغيّرت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were changed</source>
        <translation>
            <numerusform>لم تتغيّر أي مهمة</numerusform>
            <numerusform>تغيّرت مهمة واحدة</numerusform>
            <numerusform>تغيّرت مهمتان</numerusform>
            <numerusform>تغيّرت %n مهام</numerusform>
            <numerusform>تغيّرت %n مهمة</numerusform>
            <numerusform>تغيّرت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv</source>
        <translation>ملفات iCalendar وCSV (*.ics;*.csv)|*.ics;*.csv</translation>
    </message>
    <message>
        <source>Exporting the tasks...</source>
        <translation>جارٍ تصدير المهام…</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>لم يُصدَّر شيء: %1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>جارٍ قراءة الملف…</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>لم يُستورد شيء: %1</translation>
    </message>
    <message>
        <source>Importing the tasks...</source>
        <translation>جارٍ استيراد المهام…</translation>
    </message>
    <message>
        <source>Nothing was imported.
%1</source>
        <translation>لم يُستورد شيء.
%1</translation>
    </message>
    <message>
        <source>Nothing was imported yet: the tasks or the file have been changed meanwhile.
The window shows what the import would do now.</source>
        <translation>لم يُستورد شيء بعد: تغيّرت المهام أو الملف في هذه الأثناء.
تعرض النافذة ما سيفعله الاستيراد الآن.</translation>
    </message>
</context>
<context>
    <name>FilterFold</name>
    <message>
        <source>Unfold the filters</source>
        <translation>إظهار عوامل التصفية</translation>
    </message>
    <message>
        <source>Fold the filters away</source>
        <translation>طيّ عوامل التصفية</translation>
    </message>
</context>
<context>
    <name>FindField</name>
    <message>
        <source>Find tasks</source>
        <translation>البحث في المهام</translation>
    </message>
</context>
<context>
    <name>GridView</name>
    <message>
        <source>Sorts the list</source>
        <translation>يرتّب القائمة</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>مرتّب تصاعديًا</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>مرتّب تنازليًا</translation>
    </message>
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>نافذة المساعدة غير موجودة في هذا التثبيت.</translation>
    </message>
</context>
<context>
    <name>ImportListModel</name>
    <message>
        <source>New</source>
        <translation>جديدة</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>متغيّرة</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>مطابقة</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>الاستيراد</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
</context>
<context>
    <name>IndexPane</name>
    <message>
        <source>First letters of a keyword</source>
        <translation>الأحرف الأولى من كلمة مفتاحية</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>الفهرس</translation>
    </message>
    <message>
        <source>&amp;Keyword</source>
        <translation>الكلمة المفتا&amp;حية</translation>
    </message>
</context>
<context>
    <name>KeptCopies</name>
    <message>
        <source>it is not a folder</source>
        <translation>ليس مجلدًا</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>القرص شبه ممتلئ</translation>
    </message>
</context>
<context>
    <name>Lateness</name>
    <message>
        <source>due now</source>
        <translation>مستحق الآن</translation>
    </message>
    <message>
        <source>1 minute late</source>
        <translation>متأخر دقيقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes late</source>
        <translation>
            <numerusform>مستحق الآن</numerusform>
            <numerusform>متأخر دقيقة واحدة</numerusform>
            <numerusform>متأخر دقيقتين</numerusform>
            <numerusform>متأخر %n دقائق</numerusform>
            <numerusform>متأخر %n دقيقة</numerusform>
            <numerusform>متأخر %n دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour late</source>
        <translation>متأخر ساعة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n hours late</source>
        <translation>
            <numerusform>مستحق الآن</numerusform>
            <numerusform>متأخر ساعة واحدة</numerusform>
            <numerusform>متأخر ساعتين</numerusform>
            <numerusform>متأخر %n ساعات</numerusform>
            <numerusform>متأخر %n ساعة</numerusform>
            <numerusform>متأخر %n ساعة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation>متأخر يومًا واحدًا</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>مستحق الآن</numerusform>
            <numerusform>متأخر يومًا واحدًا</numerusform>
            <numerusform>متأخر يومين</numerusform>
            <numerusform>متأخر %n أيام</numerusform>
            <numerusform>متأخر %n يومًا</numerusform>
            <numerusform>متأخر %n يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n times since %1</source>
        <translation>
            <numerusform>لا مرات منذ %1</numerusform>
            <numerusform>مرة واحدة منذ %1</numerusform>
            <numerusform>مرتان منذ %1</numerusform>
            <numerusform>%n مرات منذ %1</numerusform>
            <numerusform>%n مرة منذ %1</numerusform>
            <numerusform>%n مرة منذ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MaintenancePage</name>
    <message>
        <source>Ambertaks Backup Files (*.abk)|*.abk</source>
        <translation>ملفات النسخ الاحتياطي لـ Ambertask (*.abk)|*.abk</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Delete Tasks</source>
        <translation>حذف المهام</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>ال&amp;فئة</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>ال&amp;حالة</translation>
    </message>
    <message>
        <source>&amp;All tasks</source>
        <translation>&amp;كل المهام</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>المهام ال&amp;نشطة فقط</translation>
    </message>
    <message>
        <source>&amp;Expired tasks only</source>
        <translation>المهام المتأ&amp;خرة فقط</translation>
    </message>
    <message>
        <source>Date Range</source>
        <translation>نطاق التاريخ</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;من</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;إلى</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>نسخ احتيا&amp;طي</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>است&amp;عادة</translation>
    </message>
    <message>
        <source>Backup and Restore</source>
        <translation>النسخ الاحتياطي والاستعادة</translation>
    </message>
    <message>
        <source>There is no tasks according to the selected criteria!</source>
        <translation>لا توجد مهام مطابقة للمعايير المحددة!</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف مهمة واحدة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف مهمتين؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهام؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
        </translation>
    </message>
    <message>
        <source>Backing up the data...</source>
        <translation>جارٍ نسخ البيانات احتياطيًا…</translation>
    </message>
    <message>
        <source>Restoring the data...</source>
        <translation>جارٍ استعادة البيانات…</translation>
    </message>
    <message>
        <source>Deleting the tasks...</source>
        <translation>جارٍ حذف المهام…</translation>
    </message>
    <message>
        <source>1 task was deleted</source>
        <translation>حُذفت مهمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were deleted</source>
        <translation>
            <numerusform>لم تُحذف أي مهمة</numerusform>
            <numerusform>حُذفت مهمة واحدة</numerusform>
            <numerusform>حُذفت مهمتان</numerusform>
            <numerusform>حُذفت %n مهام</numerusform>
            <numerusform>حُذفت %n مهمة</numerusform>
            <numerusform>حُذفت %n مهمة</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored from &quot;%1&quot;</source>
        <translation>تمت الاستعادة من «%1»</translation>
    </message>
    <message>
        <source>Restored 1 task from &quot;%1&quot;; what was there before is in %2</source>
        <translation>استُعيدت مهمة واحدة من «%1»؛ ما كان موجودًا من قبل في %2</translation>
    </message>
    <message numerus="yes">
        <source>Restored %n tasks from &quot;%1&quot;; what was there before is in %2</source>
        <translation>
            <numerusform>لا توجد مهام في «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
            <numerusform>استُعيدت مهمة واحدة من «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
            <numerusform>استُعيدت مهمتان من «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
            <numerusform>استُعيدت %n مهام من «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
            <numerusform>استُعيدت %n مهمة من «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
            <numerusform>استُعيدت %n مهمة من «%1»؛ ما كان موجودًا من قبل في %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup saved to &quot;%1&quot;</source>
        <translation>حُفظت النسخة الاحتياطية في «%1»</translation>
    </message>
    <message>
        <source>The backup could not be written: %1</source>
        <translation>تعذّرت كتابة النسخة الاحتياطية: %1</translation>
    </message>
    <message>
        <source>Nothing was restored: %1</source>
        <translation>لم يُستعد شيء: %1</translation>
    </message>
    <message>
        <source>Restore from a c&amp;opy...</source>
        <translation>استعا&amp;دة من نسخة…</translation>
    </message>
    <message>
        <source>Shows the copies of your data that the program has made by itself</source>
        <translation>يعرض نسخ بياناتك التي أنشأها البرنامج تلقائيًا</translation>
    </message>
    <message>
        <source>Exchange with other programs</source>
        <translation>التبادل مع برامج أخرى</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>ت&amp;صدير…</translation>
    </message>
    <message>
        <source>Saves all tasks as iCalendar or CSV, for other programs</source>
        <translation>يحفظ كل المهام بصيغة iCalendar أو CSV لبرامج أخرى</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>استي&amp;راد…</translation>
    </message>
    <message>
        <source>Adds the tasks of an iCalendar or CSV file; shows first what would happen</source>
        <translation>يضيف مهام ملف iCalendar أو CSV؛ ويعرض أولًا ما سيحدث</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;نعم</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;لا</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;تجاهل</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>&amp;This Time</source>
        <translation>ه&amp;ذه المرة</translation>
    </message>
    <message>
        <source>&amp;All Times</source>
        <translation>&amp;كل المرات</translation>
    </message>
</context>
<context>
    <name>OverflowError</name>
    <message>
        <source>task id</source>
        <translation>معرّف المهمة</translation>
    </message>
    <message>
        <source>icon number</source>
        <translation>رقم الأيقونة</translation>
    </message>
    <message>
        <source>category id</source>
        <translation>معرّف الفئة</translation>
    </message>
    <message>
        <source>Overflow: the %1 %2 does not fit into 16 bits.</source>
        <translation>تجاوز السعة: %1 %2 لا يتسع في 16 بت.</translation>
    </message>
</context>
<context>
    <name>PdfFileChoice</name>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>ملفات PDF (*.pdf)|*.pdf</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it is neither a GIF nor a JPEG nor a PNG picture.</source>
        <translation>ليست صورة بتنسيق GIF أو JPEG أو PNG.</translation>
    </message>
    <message>
        <source>it is damaged or incomplete.</source>
        <translation>إنها تالفة أو غير مكتملة.</translation>
    </message>
    <message>
        <source>it is %1 x %2 pixels large, more than %3 x %3 are not accepted.</source>
        <translation>حجمها %1×%2 بكسل، ولا يُقبل أكثر من %3×%3.</translation>
    </message>
    <message>
        <source>there is no such file.</source>
        <translation>لا يوجد ملف بهذا الاسم.</translation>
    </message>
    <message>
        <source>it is not an ordinary file.</source>
        <translation>ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB.</source>
        <translation>حجمها أكبر من %1 ميبيبايت.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: %2</source>
        <translation>تعذّر استخدام الصورة «%1»: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعة…</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>ت&amp;صدير إلى PDF‏…</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>الأ&amp;ولى</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>ال&amp;سابقة</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>ال&amp;تالية</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>الأ&amp;خيرة</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>الور&amp;ق</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>الات&amp;جاه</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>الصفحة كاملة</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>عرض الصفحة</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom o&amp;ut</source>
        <translation>تص&amp;غير</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;نسبة التكبير</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>الص&amp;فحة</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> من %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>تعذّرت طباعة التقرير.</translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%1&quot;: %2.</source>
        <translation>تعذّرت كتابة التقرير في «%1»: %2.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer.</source>
        <translation>لا توجد طابعة مُعدّة على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>حُفظ ملف PDF في «%1»</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>جارٍ تحضير التقرير…</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>&amp;حفظ باسم…</translation>
    </message>
    <message>
        <source>Saves the tasks of the report as iCalendar or CSV, for other programs</source>
        <translation>يحفظ مهام التقرير بصيغة iCalendar أو CSV لبرامج أخرى</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Printing...</source>
        <translation>جارٍ الطباعة…</translation>
    </message>
    <message>
        <source>Writing the PDF file...</source>
        <translation>جارٍ كتابة ملف PDF…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The task &quot;%1&quot; was added; the filters do not show it</source>
        <translation>أُضيفت المهمة «%1»؛ المرشّحات لا تعرضها</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; was added; the search does not show it</source>
        <translation>أُضيفت المهمة «%1»؛ البحث لا يعرضها</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
</context>
<context>
    <name>RecordSet</name>
    <message>
        <source>The value of column &quot;%1&quot; is no whole number.</source>
        <translation>قيمة العمود «%1» ليست عددًا صحيحًا.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is out of range: %2.</source>
        <translation>قيمة العمود «%1» خارج النطاق: %2.</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>لا يوجد سجل حالي.</translation>
    </message>
    <message>
        <source>The field name &quot;%1&quot; is ambiguous.</source>
        <translation>اسم الحقل «%1» ملتبس.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>لا يوجد حقل «%1».</translation>
    </message>
    <message>
        <source>There is no field number %1.</source>
        <translation>لا يوجد حقل رقم %1.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is null.</source>
        <translation>قيمة العمود «%1» فارغة (NULL).</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no text.</source>
        <translation>قيمة العمود «%1» ليست نصًا.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; does not fit into memory.</source>
        <translation>قيمة العمود «%1» لا تتسع لها الذاكرة.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no date and time: %2.</source>
        <translation>قيمة العمود «%1» ليست تاريخًا ووقتًا: %2.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is empty.</source>
        <translation>قيمة العمود «%1» خالية.</translation>
    </message>
</context>
<context>
    <name>RepeatByHand</name>
    <message>
        <source>Custom ...</source>
        <translation>مخصص…</translation>
    </message>
</context>
<context>
    <name>RepeatChoices</name>
    <message>
        <source>Never</source>
        <translation>بلا تكرار</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>كل يوم</translation>
    </message>
    <message>
        <source>Every weekday</source>
        <translation>كل يوم عمل</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>كل أسبوع</translation>
    </message>
    <message>
        <source>Every 2 weeks</source>
        <translation>كل أسبوعين</translation>
    </message>
    <message>
        <source>Every month on the same day</source>
        <translation>كل شهر في اليوم نفسه</translation>
    </message>
    <message>
        <source>Every month on the last day</source>
        <translation>كل شهر في اليوم الأخير</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>كل سنة</translation>
    </message>
</context>
<context>
    <name>RepeatInput</name>
    <message>
        <source>Please tick a weekday.</source>
        <translation>يُرجى تحديد يوم من أيام الأسبوع.</translation>
    </message>
    <message>
        <source>The last day should not be earlier than the due date.</source>
        <translation>يجب ألا يسبق اليوم الأخير تاريخ الاستحقاق.</translation>
    </message>
</context>
<context>
    <name>RepeatTexts</name>
    <message>
        <source>%1 until %2</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;, and %2 the last day</extracomment>
        <translation>%1 حتى %2</translation>
    </message>
    <message>
        <source>%1, once</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;</extracomment>
        <translation>%1، مرة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times</source>
        <translation>
            <numerusform>%1، %n مرة</numerusform>
            <numerusform>%1، مرة واحدة</numerusform>
            <numerusform>%1، مرتين</numerusform>
            <numerusform>%1، %n مرات</numerusform>
            <numerusform>%1، %n مرة</numerusform>
            <numerusform>%1، %n مرة</numerusform>
        </translation>
    </message>
    <message>
        <source>by a rule of another program</source>
        <translation>وفق قاعدة من برنامج آخر</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>كل يوم</translation>
    </message>
    <message numerus="yes">
        <source>every %n days</source>
        <translation>
            <numerusform>كل %n يوم</numerusform>
            <numerusform>كل يوم</numerusform>
            <numerusform>كل يومين</numerusform>
            <numerusform>كل %n أيام</numerusform>
            <numerusform>كل %n يومًا</numerusform>
            <numerusform>كل %n يوم</numerusform>
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
        <translation>كل سنة في %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n years on %1</source>
        <translation>
            <numerusform>كل %n سنة في %1</numerusform>
            <numerusform>كل سنة في %1</numerusform>
            <numerusform>كل سنتين في %1</numerusform>
            <numerusform>كل %n سنوات في %1</numerusform>
            <numerusform>كل %n سنة في %1</numerusform>
            <numerusform>كل %n سنة في %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every weekday</source>
        <extracomment>on each day of the working week, as from Monday to Friday</extracomment>
        <translation>كل يوم عمل</translation>
    </message>
    <message>
        <source>every week on %1</source>
        <extracomment>%1 is a weekday or several: &quot;Monday and Thursday&quot;</extracomment>
        <translation>كل أسبوع يوم %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n weeks on %1</source>
        <translation>
            <numerusform>كل %n أسبوع يوم %1</numerusform>
            <numerusform>كل أسبوع يوم %1</numerusform>
            <numerusform>كل أسبوعين يوم %1</numerusform>
            <numerusform>كل %n أسابيع يوم %1</numerusform>
            <numerusform>كل %n أسبوعًا يوم %1</numerusform>
            <numerusform>كل %n أسبوع يوم %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on day %1</source>
        <extracomment>%1 is the number of a day</extracomment>
        <translation>كل شهر في اليوم %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on day %1</source>
        <translation>
            <numerusform>كل %n شهر في اليوم %1</numerusform>
            <numerusform>كل شهر في اليوم %1</numerusform>
            <numerusform>كل شهرين في اليوم %1</numerusform>
            <numerusform>كل %n أشهر في اليوم %1</numerusform>
            <numerusform>كل %n شهرًا في اليوم %1</numerusform>
            <numerusform>كل %n شهر في اليوم %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last day</source>
        <translation>كل شهر في اليوم الأخير</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last day</source>
        <translation>
            <numerusform>كل %n شهر في اليوم الأخير</numerusform>
            <numerusform>كل شهر في اليوم الأخير</numerusform>
            <numerusform>كل شهرين في اليوم الأخير</numerusform>
            <numerusform>كل %n أشهر في اليوم الأخير</numerusform>
            <numerusform>كل %n شهرًا في اليوم الأخير</numerusform>
            <numerusform>كل %n شهر في اليوم الأخير</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the first %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>كل شهر يوم %1 الأول</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the first %1</source>
        <translation>
            <numerusform>كل %n شهر يوم %1 الأول</numerusform>
            <numerusform>كل شهر يوم %1 الأول</numerusform>
            <numerusform>كل شهرين يوم %1 الأول</numerusform>
            <numerusform>كل %n أشهر يوم %1 الأول</numerusform>
            <numerusform>كل %n شهرًا يوم %1 الأول</numerusform>
            <numerusform>كل %n شهر يوم %1 الأول</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the second %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>كل شهر يوم %1 الثاني</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the second %1</source>
        <translation>
            <numerusform>كل %n شهر يوم %1 الثاني</numerusform>
            <numerusform>كل شهر يوم %1 الثاني</numerusform>
            <numerusform>كل شهرين يوم %1 الثاني</numerusform>
            <numerusform>كل %n أشهر يوم %1 الثاني</numerusform>
            <numerusform>كل %n شهرًا يوم %1 الثاني</numerusform>
            <numerusform>كل %n شهر يوم %1 الثاني</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the third %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>كل شهر يوم %1 الثالث</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the third %1</source>
        <translation>
            <numerusform>كل %n شهر يوم %1 الثالث</numerusform>
            <numerusform>كل شهر يوم %1 الثالث</numerusform>
            <numerusform>كل شهرين يوم %1 الثالث</numerusform>
            <numerusform>كل %n أشهر يوم %1 الثالث</numerusform>
            <numerusform>كل %n شهرًا يوم %1 الثالث</numerusform>
            <numerusform>كل %n شهر يوم %1 الثالث</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the fourth %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>كل شهر يوم %1 الرابع</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the fourth %1</source>
        <translation>
            <numerusform>كل %n شهر يوم %1 الرابع</numerusform>
            <numerusform>كل شهر يوم %1 الرابع</numerusform>
            <numerusform>كل شهرين يوم %1 الرابع</numerusform>
            <numerusform>كل %n أشهر يوم %1 الرابع</numerusform>
            <numerusform>كل %n شهرًا يوم %1 الرابع</numerusform>
            <numerusform>كل %n شهر يوم %1 الرابع</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>كل شهر يوم %1 الأخير</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last %1</source>
        <translation>
            <numerusform>كل %n شهر يوم %1 الأخير</numerusform>
            <numerusform>كل شهر يوم %1 الأخير</numerusform>
            <numerusform>كل شهرين يوم %1 الأخير</numerusform>
            <numerusform>كل %n أشهر يوم %1 الأخير</numerusform>
            <numerusform>كل %n شهرًا يوم %1 الأخير</numerusform>
            <numerusform>كل %n شهر يوم %1 الأخير</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Rest</name>
    <message>
        <source>Only the beginning is shown. The &quot;⋯&quot; stands for the rest.</source>
        <translation>تظهر البداية فقط. علامة «⋯» تقوم مقام الباقي.</translation>
    </message>
</context>
<context>
    <name>ScreenErrorReport</name>
    <message>
        <source>Close &amp;program</source>
        <translation>إغلاق ال&amp;برنامج</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>م&amp;تابعة</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
</context>
<context>
    <name>SearchPane</name>
    <message>
        <source>List &amp;topics</source>
        <translation>&amp;عرض المواضيع</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>الكلمات المطلوب البحث عنها</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>المواضيع التي عُثر عليها</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>الك&amp;لمات</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>لا يوجد موضوع يحتوي على كل هذه الكلمات.</translation>
    </message>
    <message>
        <source>1 topic found.</source>
        <translation>عُثر على موضوع واحد.</translation>
    </message>
    <message numerus="yes">
        <source>%n topics found.</source>
        <translation>
            <numerusform>لم يُعثر على أي موضوع.</numerusform>
            <numerusform>عُثر على موضوع واحد.</numerusform>
            <numerusform>عُثر على موضوعين.</numerusform>
            <numerusform>عُثر على %n مواضيع.</numerusform>
            <numerusform>عُثر على %n موضوعًا.</numerusform>
            <numerusform>عُثر على %n موضوع.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>it does not exist</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>إنه مجلد</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>إنه فارغ</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>الذاكرة غير كافية</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; the statement was not run: %2</source>
        <translation>حدث خطأ سابق في ملف البيانات «%1»؛ لم تُنفَّذ العبارة: %2</translation>
    </message>
    <message>
        <source>The statement is too long (%1 bytes): %2</source>
        <translation>العبارة طويلة جدًا (%1 بايت): %2</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>العبارة فارغة.</translation>
    </message>
    <message>
        <source>The text holds more than one statement: %1</source>
        <translation>يحتوي النص على أكثر من عبارة: %1</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written: %2.</source>
        <translation>تعذّرت الكتابة في ملف البيانات «%1»: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; nothing was stored.</source>
        <translation>حدث خطأ سابق في ملف البيانات «%1»؛ لم يُحفظ شيء.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written; nothing was stored: %2.</source>
        <translation>تعذّرت الكتابة في ملف البيانات «%1»؛ لم يُحفظ شيء: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be opened: %2.</source>
        <translation>تعذّر فتح ملف البيانات «%1»: %2.</translation>
    </message>
    <message>
        <source>The statement failed: %1.
%2</source>
        <translation>فشلت العبارة: %1.
%2</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed at the statement
%2
: %3.</source>
        <translation>حدث خطأ في ملف البيانات «%1» عند العبارة
%2
: %3.</translation>
    </message>
    <message>
        <source>another program is using it (%1)</source>
        <translation>يستخدمه برنامج آخر (%1)</translation>
    </message>
    <message>
        <source>a rule in its table &quot;%1&quot; could remove records</source>
        <translation>قد تحذف قاعدة في جدوله «%1» سجلات</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>لقد تغيّر منذ ذلك الحين.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>&amp;Save Settings</source>
        <translation>&amp;حفظ الإعدادات</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Show &amp;grid</source>
        <translation>إظهار خطوط ال&amp;شبكة</translation>
    </message>
    <message>
        <source>Show &amp;today&apos;s tasks on start</source>
        <translation>إظهار مهام ال&amp;يوم عند البدء</translation>
    </message>
    <message>
        <source>Start with &amp;windows</source>
        <translation>البدء مع &amp;تسجيل الدخول</translation>
    </message>
    <message>
        <source>Always on to&amp;p</source>
        <translation>&amp;دائمًا في المقدمة</translation>
    </message>
    <message>
        <source>&amp;Minimize on start</source>
        <translation>البدء م&amp;صغرًا</translation>
    </message>
    <message>
        <source>Show tray &amp;balloon when closed</source>
        <translation>إظهار إشعار في منطقة الإشعارات عند الإ&amp;غلاق</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Task p&amp;riority</source>
        <translation>الأ&amp;ولوية</translation>
    </message>
    <message>
        <source>Task &amp;due date</source>
        <translation>تاريخ الاستح&amp;قاق</translation>
    </message>
    <message>
        <source>Task r&amp;eminder</source>
        <translation>التذ&amp;كير</translation>
    </message>
    <message>
        <source>Task stat&amp;us</source>
        <translation>الحا&amp;لة</translation>
    </message>
    <message>
        <source>Show Columns</source>
        <translation>الأعمدة الظاهرة</translation>
    </message>
    <message>
        <source>Current s&amp;kin</source>
        <translation>ال&amp;مظهر الحالي</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
    <message>
        <source>Add &amp;new skin</source>
        <translation>إ&amp;ضافة مظهر جديد</translation>
    </message>
    <message>
        <source>Add new skin</source>
        <translation>إضافة مظهر جديد</translation>
    </message>
    <message>
        <source>Download More Skins</source>
        <translation>تنزيل المزيد من المظاهر</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>المظاهر</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Skin Files (*.skf)|*.skf</source>
        <translation>ملفات المظاهر (*.skf)|*.skf</translation>
    </message>
    <message>
        <source>The new skin is now available in the skins list.</source>
        <translation>أصبح المظهر الجديد متاحًا الآن في قائمة المظاهر.</translation>
    </message>
    <message>
        <source>The skin was not added: %1</source>
        <translation>لم يُضف المظهر: %1</translation>
    </message>
    <message>
        <source>The skin &quot;%1&quot; was added; to wear it, choose it in the list and save the settings</source>
        <translation>أُضيف المظهر «%1»؛ لاستخدامه اختره من القائمة ثم احفظ الإعدادات</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its windows on top. The menu of a title bar may offer it.</source>
        <translation>سطح المكتب هذا لا يسمح لأي برنامج بإبقاء نوافذه في المقدمة. قد تتيح قائمة شريط العنوان ذلك.</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The row of the table &quot;settings&quot; is missing in the data file.</source>
        <translation>سطر الجدول «settings» مفقود من ملف البيانات.</translation>
    </message>
</context>
<context>
    <name>SkinFile</name>
    <message>
        <source>%1: the file is not a text in UTF-8</source>
        <translation>%1: الملف ليس نصًا بترميز UTF-8</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1: الملف غير موجود</translation>
    </message>
    <message>
        <source>%1: it is not a file</source>
        <translation>%1: ليس ملفًا</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: the file is larger than 1 MiB</source>
        <translation>%1: حجم الملف أكبر من 1 ميبيبايت</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1، السطر %2: %3</translation>
    </message>
</context>
<context>
    <name>SkinHeader</name>
    <message>
        <source>the file does not begin with a comment block</source>
        <translation>لا يبدأ الملف بكتلة تعليق</translation>
    </message>
    <message>
        <source>the comment block has no end</source>
        <translation>كتلة التعليق بلا نهاية</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be the name of a file</source>
        <translation>لا يمكن أن يكون «%1» اسم ملف</translation>
    </message>
    <message>
        <source>unknown keyword &quot;%1&quot;</source>
        <translation>كلمة مفتاحية غير معروفة «%1»</translation>
    </message>
    <message>
        <source>a second &quot;%1&quot;</source>
        <translation>«%1» مكرر</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing</source>
        <translation>«%1» بلا محتوى</translation>
    </message>
    <message>
        <source>expected &quot;@color token #rrggbb&quot;</source>
        <translation>المتوقع «@color token #rrggbb»</translation>
    </message>
    <message>
        <source>a second colour &quot;%1&quot;</source>
        <translation>اللون «%1» مكرر</translation>
    </message>
    <message>
        <source>expected &quot;@disabled Role $token&quot;</source>
        <translation>المتوقع «@disabled Role $token»</translation>
    </message>
    <message>
        <source>expected &quot;@palette Role $token&quot;</source>
        <translation>المتوقع «@palette Role $token»</translation>
    </message>
    <message>
        <source>unknown palette role &quot;%1&quot;</source>
        <translation>دور لوحة ألوان غير معروف «%1»</translation>
    </message>
    <message>
        <source>the comment block has no &quot;@name&quot;</source>
        <translation>لا تحتوي كتلة التعليق على «@name»</translation>
    </message>
    <message>
        <source>unknown colour &quot;$%1&quot;</source>
        <translation>لون غير معروف «$%1»</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The skin could not be used.
%1</source>
        <translation>تعذّر استخدام المظهر.
%1</translation>
    </message>
    <message>
        <source>%1: the file has to be named &quot;%2&quot;, as its skin is</source>
        <translation>%1: يجب أن يكون اسم الملف «%2» مثل اسم مظهره</translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>تح&amp;رير</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>إ&amp;كمال</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>ترا&amp;جع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>&amp;Postpone</source>
        <translation>&amp;تأجيل</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>إنشاء ن&amp;سخة</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>ال&amp;حالة</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>الأول&amp;وية</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>ال&amp;فئة</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>ترا&amp;جع: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>إ&amp;عادة: %1</translation>
    </message>
</context>
<context>
    <name>TaskChoices</name>
    <message>
        <source>Set Ba&amp;ck to &quot;Not Started&quot;</source>
        <translation>إعادة إلى «لم ت&amp;بدأ»</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>إ&amp;كمال</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>هل تريد بالتأكيد حذف هذه المهمة؟</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف مهمة واحدة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف مهمتين؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهام؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
            <numerusform>هل تريد بالتأكيد حذف %n مهمة؟</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Not Started</source>
        <translation>&amp;لم تبدأ</translation>
    </message>
    <message>
        <source>In &amp;Progress</source>
        <translation>&amp;قيد التنفيذ</translation>
    </message>
    <message>
        <source>&amp;Completed</source>
        <translation>&amp;مكتملة</translation>
    </message>
    <message>
        <source>&amp;Waiting on someone else</source>
        <translation>&amp;بانتظار شخص آخر</translation>
    </message>
    <message>
        <source>&amp;Deferred</source>
        <translation>مؤ&amp;جلة</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;عالية</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>عا&amp;دية</translation>
    </message>
    <message>
        <source>&amp;Low</source>
        <translation>&amp;منخفضة</translation>
    </message>
    <message>
        <source>This task repeats. Do you want to delete it this time, or all times?</source>
        <translation>هذه المهمة متكررة. هل تريد حذفها هذه المرة فقط أم كل المرات؟</translation>
    </message>
    <message>
        <source>These tasks repeat. Do you want to delete them this time, or all times?</source>
        <translation>هذه المهام متكررة. هل تريد حذفها هذه المرة فقط أم كل المرات؟</translation>
    </message>
    <message>
        <source>Some of the tasks repeat. Do you want to delete those this time, or all times?
The others are deleted.</source>
        <translation>بعض المهام متكررة. هل تريد حذفها هذه المرة فقط أم كل المرات؟
تُحذف المهام الأخرى.</translation>
    </message>
</context>
<context>
    <name>TaskFilters</name>
    <message>
        <source>A&amp;ll</source>
        <translation>ا&amp;لكل</translation>
    </message>
    <message>
        <source>Spec&amp;ific</source>
        <translation>فترة محد&amp;دة</translation>
    </message>
    <message>
        <source>All tas&amp;ks</source>
        <translation>&amp;كل المهام</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>المهام ال&amp;نشطة فقط</translation>
    </message>
    <message>
        <source>E&amp;xpired tasks only</source>
        <translation>المهام المتأ&amp;خرة فقط</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;من</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;إلى</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>ال&amp;فئة</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>ال&amp;حالة</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>ال&amp;ترتيب حسب</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>The same order chosen again is turned round</source>
        <translation>اختيار الترتيب نفسه مرة أخرى يعكسه</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>الفئة: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>الحالة: %1</translation>
    </message>
    <message>
        <source>Due from %1 to %2</source>
        <translation>مستحقة من %1 إلى %2</translation>
    </message>
    <message>
        <source>Active tasks only</source>
        <translation>المهام النشطة فقط</translation>
    </message>
    <message>
        <source>Expired tasks only</source>
        <translation>المهام المتأخرة فقط</translation>
    </message>
    <message>
        <source>No filter leaves a task out</source>
        <translation>لا يستبعد أي عامل تصفية أي مهمة</translation>
    </message>
</context>
<context>
    <name>TaskGridModel</name>
    <message>
        <source>Overdue</source>
        <translation>متأخرة</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>مستحقة اليوم</translation>
    </message>
</context>
<context>
    <name>TaskInput</name>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>يجب ألا يسبق تاريخ التذكير ووقته التاريخ والوقت الحاليين للنظام</translation>
    </message>
    <message>
        <source>Please enter task name.</source>
        <translation>يُرجى إدخال اسم المهمة.</translation>
    </message>
    <message>
        <source>Please select category.</source>
        <translation>يُرجى اختيار فئة.</translation>
    </message>
    <message>
        <source>Please select reminder sound.</source>
        <translation>يُرجى اختيار صوت للتذكير.</translation>
    </message>
    <message>
        <source>Please select reminder file.</source>
        <translation>يُرجى اختيار ملف للتذكير.</translation>
    </message>
    <message>
        <source>The changes to the task are not saved.</source>
        <translation>لم تُحفظ التغييرات في المهمة.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>لم تُحفظ التغييرات في «%1».</translation>
    </message>
</context>
<context>
    <name>TaskListModel</name>
    <message>
        <source>id</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>periority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>reminder</source>
        <translation>تذكير</translation>
    </message>
    <message>
        <source>Reminder on</source>
        <translation>التذكير مفعّل</translation>
    </message>
    <message>
        <source>Reminder off</source>
        <translation>التذكير معطّل</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>الفئة: %1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>تتكرر %1</translation>
    </message>
</context>
<context>
    <name>TaskMoments</name>
    <message>
        <source>1 &amp;day before</source>
        <translation>قبل ي&amp;وم واحد</translation>
    </message>
    <message>
        <source>&amp;At the due moment</source>
        <translation>في موعد الا&amp;ستحقاق</translation>
    </message>
    <message>
        <source>&amp;5 minutes before</source>
        <translation>قبل &amp;5 دقائق</translation>
    </message>
    <message>
        <source>&amp;15 minutes before</source>
        <translation>قبل &amp;15 دقيقة</translation>
    </message>
    <message>
        <source>&amp;30 minutes before</source>
        <translation>قبل &amp;30 دقيقة</translation>
    </message>
    <message>
        <source>1 &amp;hour before</source>
        <translation>قبل سا&amp;عة</translation>
    </message>
    <message>
        <source>To&amp;day, %1</source>
        <translation>ال&amp;يوم، %1</translation>
    </message>
    <message>
        <source>&amp;Tomorrow, %1</source>
        <translation>&amp;غدًا، %1</translation>
    </message>
    <message>
        <source>Next &amp;Monday, %1</source>
        <translation>الا&amp;ثنين القادم، %1</translation>
    </message>
</context>
<context>
    <name>TaskRepeats</name>
    <message>
        <source>Tasks cannot repeat in this data file, which is of an earlier version and could not be upgraded. The next start of Ambertask tries it again.</source>
        <translation>لا يمكن أن تتكرر المهام في ملف البيانات هذا، لأنه من إصدار سابق وتعذّرت ترقيته. سيعيد Ambertask المحاولة عند التشغيل التالي.</translation>
    </message>
</context>
<context>
    <name>TaskStoring</name>
    <message>
        <source>Nothing was stored: there is no number left for a new category.</source>
        <translation>لم يُحفظ شيء: لم يبقَ رقم لفئة جديدة.</translation>
    </message>
    <message>
        <source>Nothing was stored: there is no room for so many tasks.</source>
        <translation>لم يُحفظ شيء: لا يتسع المكان لهذا العدد من المهام.</translation>
    </message>
    <message>
        <source>Nothing was stored: the task &quot;%1&quot; has been deleted meanwhile. Choose the file again.</source>
        <translation>لم يُحفظ شيء: حُذفت المهمة «%1» في هذه الأثناء. اختر الملف من جديد.</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>Tasks</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تح&amp;رير</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;طباعة</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Please enter categories in the categories section first.</source>
        <translation>يُرجى أولًا إدخال فئات في صفحة «الفئات».</translation>
    </message>
</context>
<context>
    <name>TopicView</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>تعذّر عرض هذه الصفحة</translation>
    </message>
    <message>
        <source>The help file has no readable page &quot;%1&quot;.</source>
        <translation>لا يحتوي ملف المساعدة على صفحة مقروءة باسم «%1».</translation>
    </message>
</context>
<context>
    <name>TrayNews</name>
    <message numerus="yes">
        <source>%n due</source>
        <comment>reminders</comment>
        <translation>
            <numerusform>لا تذكيرات مستحقة</numerusform>
            <numerusform>تذكير واحد مستحق</numerusform>
            <numerusform>تذكيران مستحقان</numerusform>
            <numerusform>%n تذكيرات مستحقة</numerusform>
            <numerusform>%n تذكيرًا مستحقًا</numerusform>
            <numerusform>%n تذكير مستحق</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <comment>tasks</comment>
        <translation>
            <numerusform>لا مهام متأخرة</numerusform>
            <numerusform>مهمة واحدة متأخرة</numerusform>
            <numerusform>مهمتان متأخرتان</numerusform>
            <numerusform>%n مهام متأخرة</numerusform>
            <numerusform>%n مهمة متأخرة</numerusform>
            <numerusform>%n مهمة متأخرة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>2 due, 3 overdue</comment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>UnchangedFile</name>
    <message>
        <source>another program is using it</source>
        <translation>يستخدمه برنامج آخر</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>U&amp;ndo</source>
        <translation>ترا&amp;جع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>تم التراجع عن: %1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>تعذّر التراجع: %1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>تعذّرت الإعادة: %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>It would leave tasks without a category.</source>
        <translation>ستبقى مهام بلا فئة.</translation>
    </message>
</context>
<context>
    <name>UnreadableRecords</name>
    <message>
        <source>Category %1: %2</source>
        <translation>الفئة %1: %2</translation>
    </message>
    <message>
        <source>Category %1, &quot;%2&quot;: %3</source>
        <translation>الفئة %1، «%2»: %3</translation>
    </message>
    <message>
        <source>Task %1: %2</source>
        <translation>المهمة %1: %2</translation>
    </message>
    <message>
        <source>Task %1, &quot;%2&quot;: %3</source>
        <translation>المهمة %1، «%2»: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا شيء آخر</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>Some values in the data file cannot be read. For this reason these are not shown:</source>
        <translation>تتعذر قراءة بعض القيم في ملف البيانات. لهذا السبب لا يُعرض ما يلي:</translation>
    </message>
    <message>
        <source>The tasks of a category that is not shown are not shown either.</source>
        <translation>لا تُعرض أيضًا مهام الفئة التي لا تُعرض.</translation>
    </message>
    <message>
        <source>Everything stays in the data file as it is. To have it back, restore a backup that was made before (page Maintenance), or correct the values with another program.</source>
        <translation>يبقى كل شيء في ملف البيانات كما هو. لاسترجاعه، استعد نسخة احتياطية سابقة (صفحة الصيانة) أو صحّح القيم ببرنامج آخر.</translation>
    </message>
    <message>
        <source>Some settings cannot be read. They are for now what they are in a new data file:</source>
        <translation>تتعذر قراءة بعض الإعدادات. وهي الآن كما في ملف بيانات جديد:</translation>
    </message>
    <message>
        <source>To store them anew, press &quot;Save Settings&quot; on the page Settings.</source>
        <translation>لتخزينها من جديد، اضغط «حفظ الإعدادات» في صفحة الإعدادات.</translation>
    </message>
</context>
<context>
    <name>UnusableCopy</name>
    <message>
        <source>The file is damaged.</source>
        <translation>الملف تالف.</translation>
    </message>
</context>
<context>
    <name>UsualMoments</name>
    <message>
        <source>In &amp;5 minutes</source>
        <translation>بعد &amp;5 دقائق</translation>
    </message>
    <message>
        <source>In &amp;15 minutes</source>
        <translation>بعد &amp;15 دقيقة</translation>
    </message>
    <message>
        <source>In 1 &amp;hour</source>
        <translation>بعد &amp;ساعة</translation>
    </message>
    <message>
        <source>This &amp;evening</source>
        <translation>هذا ال&amp;مساء</translation>
    </message>
    <message>
        <source>&amp;Tomorrow morning</source>
        <translation>صباح ال&amp;غد</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>الأسبوع ال&amp;قادم</translation>
    </message>
</context>
<context>
    <name>clsGuiLoader</name>
    <message>
        <source>None</source>
        <translation>بلا ترتيب</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>All</source>
        <comment>statuses</comment>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Not Started</source>
        <translation>لم تبدأ</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>قيد التنفيذ</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>مكتملة</translation>
    </message>
    <message>
        <source>Waiting on someone else</source>
        <translation>بانتظار شخص آخر</translation>
    </message>
    <message>
        <source>Deferred</source>
        <translation>مؤجلة</translation>
    </message>
    <message>
        <source>All</source>
        <comment>categories</comment>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>منخفضة</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالية</translation>
    </message>
</context>
<context>
    <name>drTasks</name>
    <message>
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Tasks Report</source>
        <translation>تقرير المهام</translation>
    </message>
    <message>
        <source>The report cannot be shown: the module &quot;ambertask_report&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>تعذّر عرض التقرير: الوحدة «ambertask_report» مفقودة من مجلد البرنامج أو تالفة.</translation>
    </message>
    <message>
        <source>The tasks could not be saved.
%1</source>
        <translation>تعذّر حفظ المهام.
%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>تتكرر %1</translation>
    </message>
    <message>
        <source>Nothing was saved: the report shows tasks from before the restore.</source>
        <translation>لم يُحفظ شيء: يعرض التقرير مهامّ من قبل الاستعادة.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Ambertask</source>
        <translation>حول Ambertask</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>الإصدار 1.1</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
    <message>
        <source>Ambertask is a simple and powerful task management software program.</source>
        <translation>برنامج Ambertask أداة بسيطة وقوية لإدارة المهام.</translation>
    </message>
    <message>
        <source>Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what you would miss.</source>
        <translation>يُقدَّم Ambertask دون أي ضمان. تبقى مهامك على هذا الحاسوب؛ احتفظ بنسخة احتياطية مما لا تريد فقدانه.</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>معلومات النظام غير متاحة في الوقت الحالي</translation>
    </message>
</context>
<context>
    <name>frmAlerts</name>
    <message>
        <source>New reminder</source>
        <translation>تذكير جديد</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>Open Item</source>
        <translation>فتح المهمة</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Dismiss All</source>
        <translation>تجاهل الكل</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>التاريخ:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>الوقت:</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>التذكيرات المستحقة</translation>
    </message>
    <message>
        <source>New reminder date</source>
        <translation>تاريخ التذكير الجديد</translation>
    </message>
    <message>
        <source>New reminder time</source>
        <translation>وقت التذكير الجديد</translation>
    </message>
    <message>
        <source>Moves the selected reminder to the new date and time</source>
        <translation>ينقل التذكير المحدد إلى التاريخ والوقت الجديدين</translation>
    </message>
    <message>
        <source>Opens the task of the selected reminder</source>
        <translation>يفتح مهمة التذكير المحدد</translation>
    </message>
    <message>
        <source>Switches the selected reminder off</source>
        <translation>يوقف التذكير المحدد</translation>
    </message>
    <message>
        <source>Switches all due reminders off</source>
        <translation>يوقف كل التذكيرات المستحقة</translation>
    </message>
    <message>
        <source>1 Reminder</source>
        <translation>تذكير واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n Reminders</source>
        <translation>
            <numerusform>لا توجد تذكيرات</numerusform>
            <numerusform>تذكير واحد</numerusform>
            <numerusform>تذكيران</numerusform>
            <numerusform>%n تذكيرات</numerusform>
            <numerusform>%n تذكيرًا</numerusform>
            <numerusform>%n تذكير</numerusform>
        </translation>
    </message>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>يجب ألا يسبق تاريخ التذكير ووقته التاريخ والوقت الحاليين للنظام</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>تعيين إلى</translation>
    </message>
    <message>
        <source>Set date and time to</source>
        <translation>تعيين التاريخ والوقت إلى</translation>
    </message>
    <message>
        <source>Fills in a usual moment; &quot;Remind me later&quot; then puts the reminder off</source>
        <translation>يملأ وقتًا معتادًا؛ ثم يؤجل «ذكّرني لاحقًا» التذكير</translation>
    </message>
</context>
<context>
    <name>frmCategoryDetails</name>
    <message>
        <source>Icon %1 of %2</source>
        <translation>الأيقونة %1 من %2</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>De&amp;fault Icon</source>
        <translation>الأيقونة الافترا&amp;ضية</translation>
    </message>
    <message>
        <source>C&amp;ustom Icon</source>
        <translation>أيقونة &amp;مخصصة</translation>
    </message>
    <message>
        <source>Default icons</source>
        <translation>الأيقونات الافتراضية</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>أيقونة مخصصة</translation>
    </message>
    <message>
        <source>Custom icon preview</source>
        <translation>معاينة الأيقونة المخصصة</translation>
    </message>
    <message>
        <source>Prefered size 24*24 pixels</source>
        <translation>الحجم المفضّل 24×24 بكسل</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>ا&amp;ستعراض</translation>
    </message>
    <message>
        <source>Browse for a custom icon</source>
        <translation>استعراض بحثًا عن أيقونة مخصصة</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>الو&amp;صف</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>ال&amp;فئة</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>تفاصيل الفئة</translation>
    </message>
    <message>
        <source>The category no longer exists.</source>
        <translation>لم تعد الفئة موجودة.</translation>
    </message>
    <message>
        <source>Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</source>
        <translation>ملفات الصور (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>A category with the same name already exists</source>
        <translation>توجد فئة بالاسم نفسه بالفعل</translation>
    </message>
    <message>
        <source>Please enter category name.</source>
        <translation>يُرجى إدخال اسم الفئة.</translation>
    </message>
    <message>
        <source>Please browse for a custom icon</source>
        <translation>يُرجى اختيار أيقونة مخصصة</translation>
    </message>
</context>
<context>
    <name>frmCopies</name>
    <message>
        <source>&amp;Restore</source>
        <translation>است&amp;عادة</translation>
    </message>
    <message>
        <source>Restore from a Copy</source>
        <translation>الاستعادة من نسخة</translation>
    </message>
    <message>
        <source>Copies of your data</source>
        <translation>نسخ بياناتك</translation>
    </message>
    <message>
        <source>No copy has been made yet. The first one is made before the next change.</source>
        <translation>لم تُنشأ أي نسخة بعد. تُنشأ الأولى قبل التغيير القادم.</translation>
    </message>
    <message>
        <source>Puts the selected copy in the place of your data, which is kept as another copy</source>
        <translation>يضع النسخة المحددة مكان بياناتك؛ ويُحتفظ ببياناتك الحالية كنسخة أخرى</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Closes this list and changes nothing</source>
        <translation>يغلق هذه القائمة دون تغيير أي شيء</translation>
    </message>
    <message>
        <source>Co&amp;pies of your data that the program has made by itself</source>
        <translation>&amp;نسخ بياناتك التي أنشأها البرنامج تلقائيًا</translation>
    </message>
    <message>
        <source>The copies could not be compared: %1</source>
        <translation>تعذّرت مقارنة النسخ: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the copy of %1? Your data as it is now is kept as another copy.</source>
        <translation>هل تريد بالتأكيد استعادة نسخة %1؟ يُحتفظ ببياناتك الحالية كنسخة أخرى.</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>السطر %1، «%2»: %3</translation>
    </message>
    <message>
        <source>New categories: %1</source>
        <translation>فئات جديدة: %1</translation>
    </message>
    <message>
        <source>And more that cannot be read.</source>
        <translation>وغيرها مما تتعذّر قراءته.</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>استي&amp;راد</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Import Tasks</source>
        <translation>استيراد المهام</translation>
    </message>
    <message>
        <source>Tasks to import</source>
        <translation>المهام المراد استيرادها</translation>
    </message>
    <message>
        <source>Programs to start with the reminder</source>
        <translation>البرامج التي تُشغَّل مع التذكير</translation>
    </message>
    <message>
        <source>&amp;Programs to start with the reminder; tick those that you trust</source>
        <translation>ال&amp;برامج التي تُشغَّل مع التذكير؛ حدّد ما تثق به منها</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>الم&amp;لخص</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>ال&amp;مهام</translation>
    </message>
    <message>
        <source>From &quot;%1&quot;</source>
        <translation>من «%1»</translation>
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
        <translation>المهام</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>الفئات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>الصيانة</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>الإصدار 1.1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>منطقة الإشعارات</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>إرسال ملاحظات</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Ambertaks</source>
        <translation>Ambertask</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Ambertaks is still running..</source>
        <translation>لا يزال Ambertask قيد التشغيل.</translation>
    </message>
</context>
<context>
    <name>frmRepeat</name>
    <message>
        <source>Repeat</source>
        <translation>التكرار</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a weekday, %2 a date and a time</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>أيام</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>أسابيع</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>أشهر</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>سنوات</translation>
    </message>
    <message>
        <source>The same day</source>
        <translation>اليوم نفسه</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>اليوم الأخير</translation>
    </message>
    <message>
        <source>The same weekday</source>
        <translation>يوم الأسبوع نفسه</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>On a date</source>
        <translation>في تاريخ محدد</translation>
    </message>
    <message>
        <source>After a number of times</source>
        <translation>بعد عدد من المرات</translation>
    </message>
    <message>
        <source>On these &amp;weekdays</source>
        <translation>في أيام الأسبوع &amp;هذه</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Repeat every so many</source>
        <translation>فاصل التكرار</translation>
    </message>
    <message>
        <source>Days, weeks, months or years</source>
        <translation>أيام أو أسابيع أو أشهر أو سنوات</translation>
    </message>
    <message>
        <source>On these weekdays</source>
        <translation>في أيام الأسبوع هذه</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>يوم الشهر</translation>
    </message>
    <message>
        <source>End</source>
        <translation>الانتهاء</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>اليوم الأخير</translation>
    </message>
    <message>
        <source>Number of times</source>
        <translation>عدد المرات</translation>
    </message>
    <message>
        <source>Next due moments</source>
        <translation>مواعيد الاستحقاق القادمة</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Repeat &amp;every:</source>
        <translation>التكرار &amp;كل:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>الو&amp;حدة:</translation>
    </message>
    <message>
        <source>Day of the &amp;month:</source>
        <translation>يوم ال&amp;شهر:</translation>
    </message>
    <message>
        <source>E&amp;nd:</source>
        <translation>الا&amp;نتهاء:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>اليوم الأ&amp;خير:</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>عدد ال&amp;مرات:</translation>
    </message>
    <message>
        <source>Ne&amp;xt due moments:</source>
        <translation>مواعيد الاستحقاق ال&amp;قادمة:</translation>
    </message>
</context>
<context>
    <name>frmTaskDetails</name>
    <message>
        <source>Task Details</source>
        <translation>تفاصيل المهمة</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>لم تعد المهمة موجودة.</translation>
    </message>
    <message>
        <source>Executable Files (*.exe;*.bat;)|*.exe;*.bat</source>
        <translation>الملفات التنفيذية (*.exe;*.bat;)|*.exe;*.bat</translation>
    </message>
    <message>
        <source>Wave Files (*.wav)|*.wav</source>
        <translation>ملفات الصوت Wave (*.wav)|*.wav</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>التذكير</translation>
    </message>
    <message>
        <source>&amp;Enable reminder</source>
        <translation>&amp;تفعيل التذكير</translation>
    </message>
    <message>
        <source>Reminder sou&amp;nd</source>
        <translation>صوت التذ&amp;كير</translation>
    </message>
    <message>
        <source>Reminder &amp;file</source>
        <translation>&amp;ملف التذكير</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>ا&amp;ستعراض…</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>استعرا&amp;ض…</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>م&amp;وافق</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>اسم المهمة</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>تاريخ الاستحقاق</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>وقت الاستحقاق</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>الأولوية</translation>
    </message>
    <message>
        <source>Enable reminder</source>
        <translation>تفعيل التذكير</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>تاريخ التذكير</translation>
    </message>
    <message>
        <source>Reminder time</source>
        <translation>وقت التذكير</translation>
    </message>
    <message>
        <source>Reminder sound</source>
        <translation>صوت التذكير</translation>
    </message>
    <message>
        <source>Reminder sound file</source>
        <translation>ملف صوت التذكير</translation>
    </message>
    <message>
        <source>Browse for a reminder sound</source>
        <translation>استعراض بحثًا عن صوت للتذكير</translation>
    </message>
    <message>
        <source>Reminder file</source>
        <translation>ملف التذكير</translation>
    </message>
    <message>
        <source>Program or batch file</source>
        <translation>برنامج أو ملف دُفعي</translation>
    </message>
    <message>
        <source>Browse for a reminder file</source>
        <translation>استعراض بحثًا عن ملف للتذكير</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Task name:</source>
        <translation>اسم الم&amp;همة:</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>ال&amp;فئة:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>الو&amp;صف:</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>تاريخ الاست&amp;حقاق:</translation>
    </message>
    <message>
        <source>Due ti&amp;me:</source>
        <translation>وقت الاستح&amp;قاق:</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>الحا&amp;لة:</translation>
    </message>
    <message>
        <source>&amp;Priority:</source>
        <translation>الأولو&amp;ية:</translation>
    </message>
    <message>
        <source>&amp;Reminder date:</source>
        <translation>تا&amp;ريخ التذكير:</translation>
    </message>
    <message>
        <source>Reminder t&amp;ime:</source>
        <translation>وقت الت&amp;ذكير:</translation>
    </message>
    <message>
        <source>Wa&amp;ve:</source>
        <translation>المقط&amp;ع:</translation>
    </message>
    <message>
        <source>Pro&amp;gram:</source>
        <translation>ال&amp;برنامج:</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>تعيين إلى</translation>
    </message>
    <message>
        <source>Set the due moment to</source>
        <translation>تعيين موعد الاستحقاق إلى</translation>
    </message>
    <message>
        <source>Set the reminder to</source>
        <translation>تعيين التذكير إلى</translation>
    </message>
    <message>
        <source>Switches the reminder on; it follows the due moment until it is changed</source>
        <translation>يشغّل التذكير؛ ويتبع موعد الاستحقاق إلى أن يُغيَّر</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>التكرار</translation>
    </message>
    <message>
        <source>Repeat tas&amp;k:</source>
        <translation>تكر&amp;ار المهمة:</translation>
    </message>
</context>
<context>
    <name>modAmbertaks</name>
    <message>
        <source>The program folder could not be made.
%1</source>
        <translation>تعذّر إنشاء مجلد البرنامج.
%1</translation>
    </message>
    <message>
        <source>The program folder could not be kept from a second copy of the program.
%1</source>
        <translation>تعذّرت حماية مجلد البرنامج من نسخة ثانية من البرنامج.
%1</translation>
    </message>
</context>
</TS>
