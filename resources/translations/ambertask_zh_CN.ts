<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AlertActions</name>
    <message>
        <source>&amp;Complete</source>
        <translation>完成(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open Item</source>
        <translation>打开任务(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remind me later</source>
        <translation>稍后提醒(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>消除(&amp;D)</translation>
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
        <translation>名称</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>类别：%1</translation>
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
        <translation>打开</translation>
    </message>
    <message>
        <source>Later (15 minutes)</source>
        <translation>稍后（15 分钟）</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>消除</translation>
    </message>
</context>
<context>
    <name>Cancelled</name>
    <message>
        <source>The operation was cancelled.</source>
        <translation>操作已取消。</translation>
    </message>
</context>
<context>
    <name>CategoriesPage</name>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Add a category</source>
        <translation>添加类别</translation>
    </message>
    <message>
        <source>Edit the selected category</source>
        <translation>编辑所选类别</translation>
    </message>
    <message>
        <source>Delete the selected category</source>
        <translation>删除所选类别</translation>
    </message>
    <message>
        <source>Help on categories</source>
        <translation>类别帮助</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos; category, all tasks under this category will be deleted?</source>
        <translation>确定要删除类别“%1”吗？该类别下的所有任务也将被删除。</translation>
    </message>
    <message>
        <source>Category &quot;%1&quot; deleted with its tasks</source>
        <translation>已删除类别“%1”及其任务</translation>
    </message>
    <message>
        <source>There are no categories yet</source>
        <translation>还没有类别</translation>
    </message>
</context>
<context>
    <name>CategoryInput</name>
    <message>
        <source>The changes to the category are not saved.</source>
        <translation>对类别的更改尚未保存。</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>对“%1”的更改尚未保存。</translation>
    </message>
</context>
<context>
    <name>CategoryPictures</name>
    <message>
        <source>Home</source>
        <translation>家</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>购物</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>邮件</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>财务</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>学习</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>家庭</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>想法</translation>
    </message>
</context>
<context>
    <name>ChangeTexts</name>
    <message>
        <source>1 task deleted</source>
        <translation>已删除 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted</source>
        <translation>
            <numerusform>已删除 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task duplicated</source>
        <translation>已为 1 个任务创建副本</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks duplicated</source>
        <translation>
            <numerusform>已为 %n 个任务创建副本</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task completed</source>
        <translation>已完成 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks completed</source>
        <translation>
            <numerusform>已完成 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task set back to &quot;Not Started&quot;</source>
        <translation>已将 1 个任务恢复为“未开始”</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks set back to &quot;Not Started&quot;</source>
        <translation>
            <numerusform>已将 %n 个任务恢复为“未开始”</numerusform>
        </translation>
    </message>
    <message>
        <source>Status of 1 task changed</source>
        <translation>已更改 1 个任务的状态</translation>
    </message>
    <message numerus="yes">
        <source>Status of %n tasks changed</source>
        <translation>
            <numerusform>已更改 %n 个任务的状态</numerusform>
        </translation>
    </message>
    <message>
        <source>Priority of 1 task changed</source>
        <translation>已更改 1 个任务的优先级</translation>
    </message>
    <message numerus="yes">
        <source>Priority of %n tasks changed</source>
        <translation>
            <numerusform>已更改 %n 个任务的优先级</numerusform>
        </translation>
    </message>
    <message>
        <source>Category of 1 task changed</source>
        <translation>已更改 1 个任务的类别</translation>
    </message>
    <message numerus="yes">
        <source>Category of %n tasks changed</source>
        <translation>
            <numerusform>已更改 %n 个任务的类别</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder dismissed</source>
        <translation>已消除 1 个提醒</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders dismissed</source>
        <translation>
            <numerusform>已消除 %n 个提醒</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder postponed</source>
        <translation>已推迟 1 个提醒</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders postponed</source>
        <translation>
            <numerusform>已推迟 %n 个提醒</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task imported</source>
        <translation>已导入 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks imported</source>
        <translation>
            <numerusform>已导入 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>No copy was kept: %1</source>
        <translation>未保留副本：%1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>1 task moved on to its next time</source>
        <translation>已将 1 个任务移到下一次</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted this time</source>
        <translation>
            <numerusform>已删除 %n 个任务的这一次</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClsTask</name>
    <message>
        <source>The statement is unfinished: %1</source>
        <translation>语句不完整：%1</translation>
    </message>
    <message>
        <source>The task was not stored: there is no number left for a new one. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>任务未保存：已没有编号可用于新任务。请删除不再需要的任务，然后退出并重新启动 Ambertask。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>没有选项“%1”。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value.</source>
        <translation>选项“%1”需要一个值。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value.</source>
        <translation>选项“%1”不接受值。</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;; the formats are &quot;ics&quot; and &quot;csv&quot;.</source>
        <translation>没有格式“%1”；可用的格式为“ics”和“csv”。</translation>
    </message>
    <message>
        <source>With &quot;-&quot; the format has to be said, by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>使用“-”时必须用“--format ics”或“--format csv”指定格式。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; ends neither in &quot;.ics&quot; nor in &quot;.csv&quot;; say the format by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>文件名“%1”不以“.ics”或“.csv”结尾；请用“--format ics”或“--format csv”指定格式。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes with &quot;%2&quot; only.</source>
        <translation>选项“%1”只能与“%2”一起使用。</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; do not go together.</source>
        <translation>选项“%1”和“%2”不能一起使用。</translation>
    </message>
    <message>
        <source>The word &quot;%1&quot; is one too many.</source>
        <translation>“%1”是多余的参数。</translation>
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
        <translation>不带选项时，Ambertask 启动并打开窗口。使用下列选项之一时，它只执行指定的操作然后退出，不打开窗口，即使 Ambertask 已在运行也可使用：</translation>
    </message>
    <message>
        <source>Writes all tasks, each on a line, with tabs between the fields, which the first line names. In texts \t stands for a tab, \n for a line break and \\ for \.</source>
        <translation>输出所有任务，每行一个，字段之间用制表符分隔，第一行为字段名。文本中的 \t 表示制表符，\n 表示换行，\\ 表示 \。</translation>
    </message>
    <message>
        <source>Writes all tasks as an array of JSON objects.</source>
        <translation>以 JSON 对象数组的形式输出所有任务。</translation>
    </message>
    <message>
        <source>--export FILE</source>
        <translation>--export FILE</translation>
    </message>
    <message>
        <source>Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv).</source>
        <translation>将所有任务以 iCalendar (.ics) 或 CSV (.csv) 格式写入 FILE。</translation>
    </message>
    <message>
        <source>--import FILE</source>
        <translation>--import FILE</translation>
    </message>
    <message>
        <source>Says what an import of FILE would do and imports nothing; the status is 1.</source>
        <translation>说明导入 FILE 会做哪些更改，但不导入任何内容；退出状态为 1。</translation>
    </message>
    <message>
        <source>--import FILE --yes</source>
        <translation>--import FILE --yes</translation>
    </message>
    <message>
        <source>Imports FILE, without the programs that its tasks would start; it names them.</source>
        <translation>导入 FILE，但不导入其任务要启动的程序；会列出这些程序。</translation>
    </message>
    <message>
        <source>--import FILE --yes --with-programs</source>
        <translation>--import FILE --yes --with-programs</translation>
    </message>
    <message>
        <source>Imports these programs as well.</source>
        <translation>同时导入这些程序。</translation>
    </message>
    <message>
        <source>The format of FILE, where its name does not tell. FILE can be &quot;-&quot; then, for standard output or standard input.</source>
        <translation>FILE 的格式，用于无法从文件名判断格式时。此时 FILE 可以是“-”，表示标准输出或标准输入。</translation>
    </message>
    <message>
        <source>Writes this text.</source>
        <translation>显示此文本。</translation>
    </message>
    <message>
        <source>Writes the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The status is 0, 1 when something has failed, and 2 when the command line is wrong.</source>
        <translation>退出状态：成功为 0，操作失败为 1，命令行有误为 2。</translation>
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
        <translation>有 1 条记录无法读取，已略过。%1</translation>
    </message>
    <message numerus="yes">
        <source>%n records cannot be read and are left out. The first: %1</source>
        <translation>
            <numerusform>有 %n 条记录无法读取，已略过。第一条：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>无法写入输出：%1。</translation>
    </message>
    <message>
        <source>See &quot;Ambertask --help&quot;.</source>
        <translation>请参阅“Ambertask --help”。</translation>
    </message>
    <message>
        <source>Nothing was imported; the option &quot;--yes&quot; imports it.</source>
        <translation>未导入任何内容；要导入，请使用选项“--yes”。</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>没有可导入的内容。</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>已导入。</translation>
    </message>
    <message>
        <source>What cannot be read in the file was left out.</source>
        <translation>文件中无法读取的内容已略过。</translation>
    </message>
    <message>
        <source>New: %1</source>
        <translation>新增：%1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>更改：%1</translation>
    </message>
    <message>
        <source>New category: %1</source>
        <translation>新类别：%1</translation>
    </message>
    <message>
        <source>Starts a program, &quot;%1&quot;: %2</source>
        <translation>“%1”会启动程序：%2</translation>
    </message>
    <message>
        <source>Left out, a program that &quot;%1&quot; would start: %2</source>
        <translation>已略过“%1”要启动的程序：%2</translation>
    </message>
    <message>
        <source>Not readable, line %1: %2</source>
        <translation>无法读取，第 %1 行：%2</translation>
    </message>
    <message>
        <source>Not readable, line %1, &quot;%2&quot;: %3</source>
        <translation>无法读取，第 %1 行“%2”：%3</translation>
    </message>
    <message>
        <source>There are no tasks yet: the program folder &quot;%1&quot; does not exist. The first start makes it, and so does an import.</source>
        <translation>还没有任务：程序文件夹“%1”不存在。首次启动或导入时会创建它。</translation>
    </message>
    <message>
        <source>There are no tasks yet. The first start makes the data file, and so does an import.</source>
        <translation>还没有任务。首次启动或导入时会创建数据文件。</translation>
    </message>
</context>
<context>
    <name>CompiledHelpWindow</name>
    <message>
        <source>Ambertask Help</source>
        <translation>Ambertask 帮助</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后退(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>前进(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>主页(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>缩小文字(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>索引(&amp;I)</translation>
    </message>
    <message>
        <source>S&amp;earch</source>
        <translation>搜索(&amp;E)</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>无法显示帮助</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read. Installing the program again brings it back; your tasks are kept.</source>
        <translation>帮助文件“%1”已损坏或无法读取。重新安装程序即可恢复；您的任务会保留。</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is not in the program&apos;s folder. Installing the program again brings it back; your tasks are kept.</source>
        <translation>程序文件夹中没有帮助文件“%1”。重新安装程序即可恢复；您的任务会保留。</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>无法显示此页</translation>
    </message>
    <message>
        <source>The help file has no topic number %1.</source>
        <translation>帮助文件中没有编号为 %1 的主题。</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message>
        <source>La&amp;rger text</source>
        <translation>放大文字(&amp;R)</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. Do you want to write this topic to a PDF file instead?</source>
        <translation>此计算机上没有设置打印机。要将此主题写入 PDF 文件吗？</translation>
    </message>
    <message>
        <source>The topic could not be printed.</source>
        <translation>无法打印此主题。</translation>
    </message>
    <message>
        <source>The topic could not be written to &quot;%1&quot;: %2.</source>
        <translation>无法将此主题写入“%1”：%2。</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF 已保存到“%1”</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>The connection is open already.</source>
        <translation>连接已打开。</translation>
    </message>
    <message>
        <source>The data file knows no users and no passwords.</source>
        <translation>数据文件没有用户和密码。</translation>
    </message>
    <message>
        <source>The connection string &quot;%1&quot; names no data file.</source>
        <translation>连接字符串“%1”没有指明数据文件。</translation>
    </message>
    <message>
        <source>The connection to the data file is not open.</source>
        <translation>与数据文件的连接未打开。</translation>
    </message>
</context>
<context>
    <name>ContentsPane</name>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
</context>
<context>
    <name>CopyListModel</name>
    <message>
        <source>First change of the day</source>
        <translation>当天的首次更改</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Deletion of tasks</source>
        <translation>删除任务</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>1 task added</source>
        <translation>新增 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks added</source>
        <translation>
            <numerusform>新增 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task changed</source>
        <translation>更改 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks changed</source>
        <translation>
            <numerusform>更改 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task gone</source>
        <translation>减少 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks gone</source>
        <translation>
            <numerusform>减少 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>other categories</source>
        <translation>类别不同</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>没有变化</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>此操作之前</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Since then</source>
        <translation>此后的变化</translation>
    </message>
    <message>
        <source>is being compared...</source>
        <translation>正在比较…</translation>
    </message>
</context>
<context>
    <name>CustomIcons</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: this is not a plain file name.</source>
        <translation>无法使用图片“%1”：这不是单纯的文件名。</translation>
    </message>
</context>
<context>
    <name>DataFileCopies</name>
    <message>
        <source>&quot;%1&quot; belongs to the data file.</source>
        <translation>“%1”属于数据文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the data file itself.</source>
        <translation>“%1”就是数据文件本身。</translation>
    </message>
    <message>
        <source>An operation on &quot;%1&quot; is not finished.</source>
        <translation>对“%1”的操作尚未完成。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no data file.</source>
        <translation>“%1”不是数据文件。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>文件已损坏。</translation>
    </message>
</context>
<context>
    <name>DataFileRoad</name>
    <message>
        <source>The data file was made by a later version of Ambertask; this version cannot use it.</source>
        <translation>数据文件由更高版本的 Ambertask 创建；此版本无法使用。</translation>
    </message>
</context>
<context>
    <name>Dialect</name>
    <message>
        <source>The date literal %1 is not of the form #month/day/year hours:minutes#.</source>
        <translation>日期文字 %1 不符合 #月/日/年 时:分# 的形式。</translation>
    </message>
    <message>
        <source>The date literal %1 names no existing day and time.</source>
        <translation>日期文字 %1 不是有效的日期和时间。</translation>
    </message>
    <message>
        <source>The statement holds a zero character.</source>
        <translation>语句中含有空字符。</translation>
    </message>
    <message>
        <source>The date literal %1 is not closed.</source>
        <translation>日期文字 %1 没有结束。</translation>
    </message>
</context>
<context>
    <name>DisplayGate</name>
    <message>
        <source>Ambertask needs a graphical desktop, and none could be reached from here.</source>
        <translation>Ambertask 需要图形桌面环境，但在此处无法连接到任何桌面。</translation>
    </message>
</context>
<context>
    <name>Draft</name>
    <message>
        <source>The input is too large. Nothing was stored.</source>
        <translation>输入过大。未保存任何内容。</translation>
    </message>
</context>
<context>
    <name>EmptyListNote</name>
    <message>
        <source>%1 of 1 task</source>
        <translation>%1 / 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n tasks</source>
        <translation>
            <numerusform>%1 / %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show all</source>
        <translation>全部显示(&amp;S)</translation>
    </message>
    <message>
        <source>There are no tasks yet</source>
        <translation>还没有任务</translation>
    </message>
    <message>
        <source>No task matches the filters</source>
        <translation>没有符合筛选条件的任务</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;</source>
        <translation>未找到“%1”</translation>
    </message>
</context>
<context>
    <name>ExchangeTexts</name>
    <message>
        <source>The file could not be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>The file is no iCalendar file.</source>
        <translation>该文件不是 iCalendar 文件。</translation>
    </message>
    <message>
        <source>It has no end.</source>
        <translation>它没有结束。</translation>
    </message>
    <message>
        <source>Its parts are nested too deeply.</source>
        <translation>它的嵌套层数过多。</translation>
    </message>
    <message>
        <source>The file ends in the middle of it.</source>
        <translation>文件在该条目中途结束。</translation>
    </message>
    <message>
        <source>One of its parts has no end.</source>
        <translation>它的某个部分没有结束。</translation>
    </message>
    <message>
        <source>One of its lines is too long.</source>
        <translation>它的某一行过长。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>它过大。</translation>
    </message>
    <message>
        <source>It has too many columns.</source>
        <translation>它的列过多。</translation>
    </message>
    <message>
        <source>One of its quotes has no end.</source>
        <translation>它的某个引号没有结束。</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取列“%1”：%2</translation>
    </message>
    <message>
        <source>The file is no list of tasks: its first line has no column &quot;%1&quot;.</source>
        <translation>该文件不是任务列表：第一行中没有列“%1”。</translation>
    </message>
    <message>
        <source>It holds bytes that are no text in UTF-8.</source>
        <translation>它含有不是 UTF-8 文本的字节。</translation>
    </message>
    <message>
        <source>1 task is new.</source>
        <translation>新增 1 个任务。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are new.</source>
        <translation>
            <numerusform>新增 %n 个任务。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is changed.</source>
        <translation>更改 1 个任务。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are changed.</source>
        <translation>
            <numerusform>更改 %n 个任务。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is the same.</source>
        <translation>1 个任务相同。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are the same.</source>
        <translation>
            <numerusform>%n 个任务相同。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file holds no task.</source>
        <translation>文件中没有任务。</translation>
    </message>
    <message>
        <source>1 category is made.</source>
        <translation>创建 1 个类别。</translation>
    </message>
    <message numerus="yes">
        <source>%n categories are made.</source>
        <translation>
            <numerusform>创建 %n 个类别。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task cannot be read and stays out.</source>
        <translation>1 个任务无法读取，不会导入。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks cannot be read and stay out.</source>
        <translation>
            <numerusform>%n 个任务无法读取，不会导入。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry is no task and stays out.</source>
        <translation>1 个条目不是任务，不会导入。</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are no tasks and stay out.</source>
        <translation>
            <numerusform>%n 个条目不是任务，不会导入。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder is past and comes in as dismissed.</source>
        <translation>1 个提醒的时间已过，导入后为已消除状态。</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders are past and come in as dismissed.</source>
        <translation>
            <numerusform>%n 个提醒的时间已过，导入后为已消除状态。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task repeats and comes in once.</source>
        <translation>1 个任务会重复，只导入一次。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks repeat and come in once.</source>
        <translation>
            <numerusform>%n 个任务会重复，各只导入一次。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task has no due date and is due today.</source>
        <translation>1 个任务没有截止日期，将设为今天到期。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks have no due date and are due today.</source>
        <translation>
            <numerusform>%n 个任务没有截止日期，将设为今天到期。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further reminder is kept, but does not remind.</source>
        <translation>另外 1 个提醒会保留，但不会发出提醒。</translation>
    </message>
    <message numerus="yes">
        <source>%n further reminders are kept, but do not remind.</source>
        <translation>
            <numerusform>另外 %n 个提醒会保留，但不会发出提醒。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is in an unknown time zone and is taken as local time.</source>
        <translation>1 个任务使用未知的时区，将按本地时间处理。</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are in unknown time zones and are taken as local time.</source>
        <translation>
            <numerusform>%n 个任务使用未知的时区，将按本地时间处理。</numerusform>
        </translation>
    </message>
    <message>
        <source>Tasks cannot be exported or imported: the module &quot;ambertask_exchange&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>无法导出或导入任务：程序文件夹中缺少模块“ambertask_exchange”，或该模块已损坏。</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>已导入</translation>
    </message>
    <message>
        <source>A task before it has the same UID.</source>
        <translation>前面已有任务使用相同的 UID。</translation>
    </message>
    <message>
        <source>The file holds more than %1 tasks that are new. Nothing was stored.</source>
        <translation>文件包含超过 %1 个新任务。未保存任何内容。</translation>
    </message>
    <message>
        <source>The file is too large. Nothing was stored.</source>
        <translation>文件过大。未保存任何内容。</translation>
    </message>
    <message>
        <source>The file holds %1 tasks that are new, and there is room for %2. Nothing was stored. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>文件包含 %1 个新任务，但只能再容纳 %2 个。未保存任何内容。请删除不再需要的任务，然后退出并重新启动 Ambertask。</translation>
    </message>
    <message>
        <source>The tasks could not be written: %1.</source>
        <translation>无法写入任务：%1。</translation>
    </message>
    <message>
        <source>Its due date cannot be read: %1</source>
        <translation>无法读取其截止日期：%1</translation>
    </message>
    <message>
        <source>Nothing was stored: another program has changed the tasks meanwhile.</source>
        <translation>未保存任何内容：另一个程序在此期间更改了任务。</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>there is no file name</source>
        <translation>没有文件名</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>文件会过大</translation>
    </message>
    <message>
        <source>there is no permission for that</source>
        <translation>没有相应的权限</translation>
    </message>
    <message>
        <source>nothing can be written to that disk</source>
        <translation>该磁盘不可写入</translation>
    </message>
    <message>
        <source>the file or its folder does not exist</source>
        <translation>文件或其文件夹不存在</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>名称过长</translation>
    </message>
    <message>
        <source>the disk failed or was taken out</source>
        <translation>磁盘出现故障或已被移除</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>另一个程序正在使用它</translation>
    </message>
</context>
<context>
    <name>FileExchange</name>
    <message>
        <source>iCalendar Files (*.ics)|*.ics</source>
        <translation>iCalendar 文件 (*.ics)|*.ics</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv</source>
        <translation>CSV 文件 (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>the name of the file ends neither with .ics nor with .csv</source>
        <translation>文件名不以 .ics 或 .csv 结尾</translation>
    </message>
    <message>
        <source>1 task was exported to &quot;%1&quot;</source>
        <translation>已将 1 个任务导出到“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were exported to &quot;%1&quot;</source>
        <translation>
            <numerusform>已将 %n 个任务导出到“%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was added</source>
        <translation>已添加 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were added</source>
        <translation>
            <numerusform>已添加 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was changed</source>
        <translation>已更改 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were changed</source>
        <translation>
            <numerusform>已更改 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv</source>
        <translation>iCalendar 和 CSV 文件 (*.ics;*.csv)|*.ics;*.csv</translation>
    </message>
    <message>
        <source>Exporting the tasks...</source>
        <translation>正在导出任务…</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>未导出任何内容：%1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>正在读取文件…</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>未导入任何内容：%1</translation>
    </message>
    <message>
        <source>Importing the tasks...</source>
        <translation>正在导入任务…</translation>
    </message>
    <message>
        <source>Nothing was imported.
%1</source>
        <translation>未导入任何内容。
%1</translation>
    </message>
    <message>
        <source>Nothing was imported yet: the tasks or the file have been changed meanwhile.
The window shows what the import would do now.</source>
        <translation>尚未导入任何内容：任务或文件在此期间已更改。
窗口中显示的是现在导入将会进行的更改。</translation>
    </message>
</context>
<context>
    <name>FilterFold</name>
    <message>
        <source>Unfold the filters</source>
        <translation>展开筛选条件</translation>
    </message>
    <message>
        <source>Fold the filters away</source>
        <translation>折叠筛选条件</translation>
    </message>
</context>
<context>
    <name>FindField</name>
    <message>
        <source>Find tasks</source>
        <translation>查找任务</translation>
    </message>
</context>
<context>
    <name>GridView</name>
    <message>
        <source>Sorts the list</source>
        <translation>对列表排序</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>已按升序排列</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>已按降序排列</translation>
    </message>
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>此安装中缺少帮助窗口。</translation>
    </message>
</context>
<context>
    <name>ImportListModel</name>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
</context>
<context>
    <name>IndexPane</name>
    <message>
        <source>First letters of a keyword</source>
        <translation>关键字的开头字母</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>&amp;Keyword</source>
        <translation>关键字(&amp;K)</translation>
    </message>
</context>
<context>
    <name>KeptCopies</name>
    <message>
        <source>it is not a folder</source>
        <translation>这不是文件夹</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>磁盘空间即将用尽</translation>
    </message>
</context>
<context>
    <name>Lateness</name>
    <message>
        <source>due now</source>
        <translation>现在到期</translation>
    </message>
    <message>
        <source>1 minute late</source>
        <translation>已逾期 1 分钟</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes late</source>
        <translation>
            <numerusform>已逾期 %n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour late</source>
        <translation>已逾期 1 小时</translation>
    </message>
    <message numerus="yes">
        <source>%n hours late</source>
        <translation>
            <numerusform>已逾期 %n 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation>已逾期 1 天</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>已逾期 %n 天</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n times since %1</source>
        <translation>
            <numerusform>自%1起共 %n 次</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MaintenancePage</name>
    <message>
        <source>Ambertaks Backup Files (*.abk)|*.abk</source>
        <translation>Ambertask 备份文件 (*.abk)|*.abk</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete Tasks</source>
        <translation>删除任务</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>类别(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>状态(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;All tasks</source>
        <translation>所有任务(&amp;A)</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>仅未过期的任务(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Expired tasks only</source>
        <translation>仅已过期的任务(&amp;E)</translation>
    </message>
    <message>
        <source>Date Range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>从(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>到(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>备份(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>Backup and Restore</source>
        <translation>备份和还原</translation>
    </message>
    <message>
        <source>There is no tasks according to the selected criteria!</source>
        <translation>没有符合所选条件的任务！</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>确定要删除 %n 个任务吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Backing up the data...</source>
        <translation>正在备份数据…</translation>
    </message>
    <message>
        <source>Restoring the data...</source>
        <translation>正在还原数据…</translation>
    </message>
    <message>
        <source>Deleting the tasks...</source>
        <translation>正在删除任务…</translation>
    </message>
    <message>
        <source>1 task was deleted</source>
        <translation>已删除 1 个任务</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were deleted</source>
        <translation>
            <numerusform>已删除 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored from &quot;%1&quot;</source>
        <translation>已从“%1”还原</translation>
    </message>
    <message>
        <source>Restored 1 task from &quot;%1&quot;; what was there before is in %2</source>
        <translation>已从“%1”还原 1 个任务；之前的内容在 %2 中</translation>
    </message>
    <message numerus="yes">
        <source>Restored %n tasks from &quot;%1&quot;; what was there before is in %2</source>
        <translation>
            <numerusform>已从“%1”还原 %n 个任务；之前的内容在 %2 中</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup saved to &quot;%1&quot;</source>
        <translation>备份已保存到“%1”</translation>
    </message>
    <message>
        <source>The backup could not be written: %1</source>
        <translation>无法写入备份：%1</translation>
    </message>
    <message>
        <source>Nothing was restored: %1</source>
        <translation>未还原任何内容：%1</translation>
    </message>
    <message>
        <source>Restore from a c&amp;opy...</source>
        <translation>从副本还原(&amp;O)…</translation>
    </message>
    <message>
        <source>Shows the copies of your data that the program has made by itself</source>
        <translation>显示程序自动创建的数据副本</translation>
    </message>
    <message>
        <source>Exchange with other programs</source>
        <translation>与其他程序交换数据</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>Saves all tasks as iCalendar or CSV, for other programs</source>
        <translation>将所有任务保存为 iCalendar 或 CSV 文件，供其他程序使用</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>Adds the tasks of an iCalendar or CSV file; shows first what would happen</source>
        <translation>添加 iCalendar 或 CSV 文件中的任务；会先显示将要进行的更改</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;This Time</source>
        <translation>这一次(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;All Times</source>
        <translation>每一次(&amp;A)</translation>
    </message>
</context>
<context>
    <name>OverflowError</name>
    <message>
        <source>task id</source>
        <translation>任务编号</translation>
    </message>
    <message>
        <source>icon number</source>
        <translation>图标编号</translation>
    </message>
    <message>
        <source>category id</source>
        <translation>类别编号</translation>
    </message>
    <message>
        <source>Overflow: the %1 %2 does not fit into 16 bits.</source>
        <translation>溢出：%1 %2 超出 16 位范围。</translation>
    </message>
</context>
<context>
    <name>PdfFileChoice</name>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>PDF 文件 (*.pdf)|*.pdf</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it is neither a GIF nor a JPEG nor a PNG picture.</source>
        <translation>它不是 GIF、JPEG 或 PNG 图片。</translation>
    </message>
    <message>
        <source>it is damaged or incomplete.</source>
        <translation>它已损坏或不完整。</translation>
    </message>
    <message>
        <source>it is %1 x %2 pixels large, more than %3 x %3 are not accepted.</source>
        <translation>它的大小为 %1 × %2 像素，最多允许 %3 × %3 像素。</translation>
    </message>
    <message>
        <source>there is no such file.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>it is not an ordinary file.</source>
        <translation>它不是普通文件。</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB.</source>
        <translation>它大于 %1 MiB。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: %2</source>
        <translation>无法使用图片“%1”：%2</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>导出 PDF(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>第一页(&amp;F)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>上一页(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一页(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>最后一页(&amp;L)</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>纸张(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>方向(&amp;O)</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>整页</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>页宽</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom o&amp;ut</source>
        <translation>缩小(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>缩放(&amp;Z)</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>页(&amp;G)</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> / %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>无法打印报表。</translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%1&quot;: %2.</source>
        <translation>无法将报表写入“%1”：%2。</translation>
    </message>
    <message>
        <source>No printer is set up on this computer.</source>
        <translation>此计算机上没有设置打印机。</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF 已保存到“%1”</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>正在准备报表…</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>Saves the tasks of the report as iCalendar or CSV, for other programs</source>
        <translation>将报表中的任务保存为 iCalendar 或 CSV 文件，供其他程序使用</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Printing...</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Writing the PDF file...</source>
        <translation>正在写入 PDF 文件…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The task &quot;%1&quot; was added; the filters do not show it</source>
        <translation>已添加任务“%1”；当前筛选条件不显示它</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; was added; the search does not show it</source>
        <translation>已添加任务“%1”；当前查找不显示它</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>RecordSet</name>
    <message>
        <source>The value of column &quot;%1&quot; is no whole number.</source>
        <translation>列“%1”的值不是整数。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is out of range: %2.</source>
        <translation>列“%1”的值超出范围：%2。</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>没有当前记录。</translation>
    </message>
    <message>
        <source>The field name &quot;%1&quot; is ambiguous.</source>
        <translation>字段名“%1”不明确。</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>没有字段“%1”。</translation>
    </message>
    <message>
        <source>There is no field number %1.</source>
        <translation>没有编号为 %1 的字段。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is null.</source>
        <translation>列“%1”的值为空 (NULL)。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no text.</source>
        <translation>列“%1”的值不是文本。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; does not fit into memory.</source>
        <translation>列“%1”的值过大，内存无法容纳。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no date and time: %2.</source>
        <translation>列“%1”的值不是日期和时间：%2。</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is empty.</source>
        <translation>列“%1”的值为空文本。</translation>
    </message>
</context>
<context>
    <name>RepeatByHand</name>
    <message>
        <source>Custom ...</source>
        <translation>自定义…</translation>
    </message>
</context>
<context>
    <name>RepeatChoices</name>
    <message>
        <source>Never</source>
        <translation>不重复</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Every weekday</source>
        <translation>每个工作日</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Every 2 weeks</source>
        <translation>每 2 周</translation>
    </message>
    <message>
        <source>Every month on the same day</source>
        <translation>每月同一天</translation>
    </message>
    <message>
        <source>Every month on the last day</source>
        <translation>每月最后一天</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>每年</translation>
    </message>
</context>
<context>
    <name>RepeatInput</name>
    <message>
        <source>Please tick a weekday.</source>
        <translation>请勾选星期几。</translation>
    </message>
    <message>
        <source>The last day should not be earlier than the due date.</source>
        <translation>最后一天不能早于截止日期。</translation>
    </message>
</context>
<context>
    <name>RepeatTexts</name>
    <message>
        <source>%1 until %2</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;, and %2 the last day</extracomment>
        <translation>%1，直到 %2</translation>
    </message>
    <message>
        <source>%1, once</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;</extracomment>
        <translation>%1，共 1 次</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times</source>
        <translation>
            <numerusform>%1，共 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>by a rule of another program</source>
        <translation>按其他程序的规则</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message numerus="yes">
        <source>every %n days</source>
        <translation>
            <numerusform>每 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>Day and month of a date, in the format of QLocale: &quot;d. MMMM&quot;, &quot;MMMM d&quot;, &quot;d &apos;de&apos; MMMM&quot;</extracomment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>every year on %1</source>
        <extracomment>%1 is a day and a month</extracomment>
        <translation>每年%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n years on %1</source>
        <translation>
            <numerusform>每 %n 年的%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every weekday</source>
        <extracomment>on each day of the working week, as from Monday to Friday</extracomment>
        <translation>每个工作日</translation>
    </message>
    <message>
        <source>every week on %1</source>
        <extracomment>%1 is a weekday or several: &quot;Monday and Thursday&quot;</extracomment>
        <translation>每周%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n weeks on %1</source>
        <translation>
            <numerusform>每 %n 周的%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on day %1</source>
        <extracomment>%1 is the number of a day</extracomment>
        <translation>每月 %1 日</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on day %1</source>
        <translation>
            <numerusform>每 %n 个月的 %1 日</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last day</source>
        <translation>每月最后一天</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last day</source>
        <translation>
            <numerusform>每 %n 个月的最后一天</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the first %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>每月第一个%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the first %1</source>
        <translation>
            <numerusform>每 %n 个月的第一个%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the second %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>每月第二个%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the second %1</source>
        <translation>
            <numerusform>每 %n 个月的第二个%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the third %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>每月第三个%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the third %1</source>
        <translation>
            <numerusform>每 %n 个月的第三个%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the fourth %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>每月第四个%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the fourth %1</source>
        <translation>
            <numerusform>每 %n 个月的第四个%1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>每月最后一个%1</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last %1</source>
        <translation>
            <numerusform>每 %n 个月的最后一个%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Rest</name>
    <message>
        <source>Only the beginning is shown. The &quot;⋯&quot; stands for the rest.</source>
        <translation>仅显示开头部分。“⋯”代表其余内容。</translation>
    </message>
</context>
<context>
    <name>ScreenErrorReport</name>
    <message>
        <source>Close &amp;program</source>
        <translation>关闭程序(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>继续(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>SearchPane</name>
    <message>
        <source>List &amp;topics</source>
        <translation>列出主题(&amp;T)</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>要搜索的字词</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>找到的主题</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>字词(&amp;W)</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>没有主题包含所有这些字词。</translation>
    </message>
    <message>
        <source>1 topic found.</source>
        <translation>找到 1 个主题。</translation>
    </message>
    <message numerus="yes">
        <source>%n topics found.</source>
        <translation>
            <numerusform>找到 %n 个主题。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>it does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; the statement was not run: %2</source>
        <translation>数据文件“%1”先前已出错；未执行语句：%2</translation>
    </message>
    <message>
        <source>The statement is too long (%1 bytes): %2</source>
        <translation>语句过长（%1 字节）：%2</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>语句为空。</translation>
    </message>
    <message>
        <source>The text holds more than one statement: %1</source>
        <translation>文本包含多条语句：%1</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written: %2.</source>
        <translation>无法写入数据文件“%1”：%2。</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; nothing was stored.</source>
        <translation>数据文件“%1”先前已出错；未保存任何内容。</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written; nothing was stored: %2.</source>
        <translation>无法写入数据文件“%1”；未保存任何内容：%2。</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be opened: %2.</source>
        <translation>无法打开数据文件“%1”：%2。</translation>
    </message>
    <message>
        <source>The statement failed: %1.
%2</source>
        <translation>语句执行失败：%1。
%2</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed at the statement
%2
: %3.</source>
        <translation>数据文件“%1”在执行语句
%2
时出错：%3。</translation>
    </message>
    <message>
        <source>another program is using it (%1)</source>
        <translation>另一个程序正在使用它 (%1)</translation>
    </message>
    <message>
        <source>a rule in its table &quot;%1&quot; could remove records</source>
        <translation>其表“%1”中的一条规则可能会删除记录</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>此后它已被更改。</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>&amp;Save Settings</source>
        <translation>保存设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Show &amp;grid</source>
        <translation>显示网格线(&amp;G)</translation>
    </message>
    <message>
        <source>Show &amp;today&apos;s tasks on start</source>
        <translation>启动时显示今天的任务(&amp;T)</translation>
    </message>
    <message>
        <source>Start with &amp;windows</source>
        <translation>登录时启动(&amp;W)</translation>
    </message>
    <message>
        <source>Always on to&amp;p</source>
        <translation>总在最前(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Minimize on start</source>
        <translation>启动时最小化(&amp;M)</translation>
    </message>
    <message>
        <source>Show tray &amp;balloon when closed</source>
        <translation>关闭时显示托盘气泡(&amp;B)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Task p&amp;riority</source>
        <translation>任务优先级(&amp;R)</translation>
    </message>
    <message>
        <source>Task &amp;due date</source>
        <translation>任务截止日期(&amp;D)</translation>
    </message>
    <message>
        <source>Task r&amp;eminder</source>
        <translation>任务提醒(&amp;E)</translation>
    </message>
    <message>
        <source>Task stat&amp;us</source>
        <translation>任务状态(&amp;U)</translation>
    </message>
    <message>
        <source>Show Columns</source>
        <translation>显示的列</translation>
    </message>
    <message>
        <source>Current s&amp;kin</source>
        <translation>当前皮肤(&amp;K)</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Add &amp;new skin</source>
        <translation>添加新皮肤(&amp;N)</translation>
    </message>
    <message>
        <source>Add new skin</source>
        <translation>添加新皮肤</translation>
    </message>
    <message>
        <source>Download More Skins</source>
        <translation>下载更多皮肤</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Skin Files (*.skf)|*.skf</source>
        <translation>皮肤文件 (*.skf)|*.skf</translation>
    </message>
    <message>
        <source>The new skin is now available in the skins list.</source>
        <translation>新皮肤现在可以在皮肤列表中选用。</translation>
    </message>
    <message>
        <source>The skin was not added: %1</source>
        <translation>未添加皮肤：%1</translation>
    </message>
    <message>
        <source>The skin &quot;%1&quot; was added; to wear it, choose it in the list and save the settings</source>
        <translation>已添加皮肤“%1”；要使用它，请在列表中选择它并保存设置</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its windows on top. The menu of a title bar may offer it.</source>
        <translation>此桌面不允许任何程序让自己的窗口保持在最前。标题栏菜单中可能有此选项。</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The row of the table &quot;settings&quot; is missing in the data file.</source>
        <translation>数据文件中缺少表“settings”的行。</translation>
    </message>
</context>
<context>
    <name>SkinFile</name>
    <message>
        <source>%1: the file is not a text in UTF-8</source>
        <translation>%1：文件不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1：文件不存在</translation>
    </message>
    <message>
        <source>%1: it is not a file</source>
        <translation>%1：这不是文件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: the file is larger than 1 MiB</source>
        <translation>%1：文件大于 1 MiB</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
</context>
<context>
    <name>SkinHeader</name>
    <message>
        <source>the file does not begin with a comment block</source>
        <translation>文件没有以注释块开头</translation>
    </message>
    <message>
        <source>the comment block has no end</source>
        <translation>注释块没有结束</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be the name of a file</source>
        <translation>“%1”不能用作文件名</translation>
    </message>
    <message>
        <source>unknown keyword &quot;%1&quot;</source>
        <translation>未知的关键字“%1”</translation>
    </message>
    <message>
        <source>a second &quot;%1&quot;</source>
        <translation>“%1”重复出现</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing</source>
        <translation>“%1”没有内容</translation>
    </message>
    <message>
        <source>expected &quot;@color token #rrggbb&quot;</source>
        <translation>应为“@color token #rrggbb”</translation>
    </message>
    <message>
        <source>a second colour &quot;%1&quot;</source>
        <translation>颜色“%1”重复出现</translation>
    </message>
    <message>
        <source>expected &quot;@disabled Role $token&quot;</source>
        <translation>应为“@disabled Role $token”</translation>
    </message>
    <message>
        <source>expected &quot;@palette Role $token&quot;</source>
        <translation>应为“@palette Role $token”</translation>
    </message>
    <message>
        <source>unknown palette role &quot;%1&quot;</source>
        <translation>未知的调色板角色“%1”</translation>
    </message>
    <message>
        <source>the comment block has no &quot;@name&quot;</source>
        <translation>注释块中没有“@name”</translation>
    </message>
    <message>
        <source>unknown colour &quot;$%1&quot;</source>
        <translation>未知的颜色“$%1”</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The skin could not be used.
%1</source>
        <translation>无法使用该皮肤。
%1</translation>
    </message>
    <message>
        <source>%1: the file has to be named &quot;%2&quot;, as its skin is</source>
        <translation>%1：文件必须以其皮肤命名，即“%2”</translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>完成(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Postpone</source>
        <translation>推迟(&amp;P)</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>创建副本(&amp;L)</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>状态(&amp;S)</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>优先级(&amp;I)</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>类别(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>撤消(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>重做(&amp;R)：%1</translation>
    </message>
</context>
<context>
    <name>TaskChoices</name>
    <message>
        <source>Set Ba&amp;ck to &quot;Not Started&quot;</source>
        <translation>恢复为“未开始”(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>完成(&amp;C)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>确定要删除此任务吗？</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>确定要删除 %n 个任务吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Not Started</source>
        <translation>未开始(&amp;N)</translation>
    </message>
    <message>
        <source>In &amp;Progress</source>
        <translation>进行中(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Completed</source>
        <translation>已完成(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Waiting on someone else</source>
        <translation>正在等待他人(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Deferred</source>
        <translation>已推迟(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>高(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>普通(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Low</source>
        <translation>低(&amp;L)</translation>
    </message>
    <message>
        <source>This task repeats. Do you want to delete it this time, or all times?</source>
        <translation>此任务会重复。要只删除这一次，还是删除每一次？</translation>
    </message>
    <message>
        <source>These tasks repeat. Do you want to delete them this time, or all times?</source>
        <translation>这些任务会重复。要只删除它们的这一次，还是删除每一次？</translation>
    </message>
    <message>
        <source>Some of the tasks repeat. Do you want to delete those this time, or all times?
The others are deleted.</source>
        <translation>其中一些任务会重复。要只删除它们的这一次，还是删除每一次？
其余任务会被删除。</translation>
    </message>
</context>
<context>
    <name>TaskFilters</name>
    <message>
        <source>A&amp;ll</source>
        <translation>全部(&amp;L)</translation>
    </message>
    <message>
        <source>Spec&amp;ific</source>
        <translation>指定(&amp;I)</translation>
    </message>
    <message>
        <source>All tas&amp;ks</source>
        <translation>所有任务(&amp;K)</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>仅未过期的任务(&amp;V)</translation>
    </message>
    <message>
        <source>E&amp;xpired tasks only</source>
        <translation>仅已过期的任务(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>从(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>到(&amp;T)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>类别(&amp;Y)</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>状态(&amp;U)</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>排序方式(&amp;O)</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>The same order chosen again is turned round</source>
        <translation>再次选择同一排序方式可反转顺序</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>类别：%1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>状态：%1</translation>
    </message>
    <message>
        <source>Due from %1 to %2</source>
        <translation>到期日从 %1 至 %2</translation>
    </message>
    <message>
        <source>Active tasks only</source>
        <translation>仅未过期的任务</translation>
    </message>
    <message>
        <source>Expired tasks only</source>
        <translation>仅已过期的任务</translation>
    </message>
    <message>
        <source>No filter leaves a task out</source>
        <translation>没有筛选条件隐藏任务</translation>
    </message>
</context>
<context>
    <name>TaskGridModel</name>
    <message>
        <source>Overdue</source>
        <translation>已逾期</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>今天到期</translation>
    </message>
</context>
<context>
    <name>TaskInput</name>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>提醒的日期和时间不能早于系统当前的日期和时间</translation>
    </message>
    <message>
        <source>Please enter task name.</source>
        <translation>请输入任务名称。</translation>
    </message>
    <message>
        <source>Please select category.</source>
        <translation>请选择类别。</translation>
    </message>
    <message>
        <source>Please select reminder sound.</source>
        <translation>请选择提醒声音。</translation>
    </message>
    <message>
        <source>Please select reminder file.</source>
        <translation>请选择提醒文件。</translation>
    </message>
    <message>
        <source>The changes to the task are not saved.</source>
        <translation>对任务的更改尚未保存。</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>对“%1”的更改尚未保存。</translation>
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
        <translation>名称</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>periority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>reminder</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Reminder on</source>
        <translation>提醒已开启</translation>
    </message>
    <message>
        <source>Reminder off</source>
        <translation>提醒已关闭</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>类别：%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>重复：%1</translation>
    </message>
</context>
<context>
    <name>TaskMoments</name>
    <message>
        <source>1 &amp;day before</source>
        <translation>提前 1 天(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;At the due moment</source>
        <translation>到期时(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;5 minutes before</source>
        <translation>提前 5 分钟(&amp;5)</translation>
    </message>
    <message>
        <source>&amp;15 minutes before</source>
        <translation>提前 15 分钟(&amp;1)</translation>
    </message>
    <message>
        <source>&amp;30 minutes before</source>
        <translation>提前 30 分钟(&amp;3)</translation>
    </message>
    <message>
        <source>1 &amp;hour before</source>
        <translation>提前 1 小时(&amp;H)</translation>
    </message>
    <message>
        <source>To&amp;day, %1</source>
        <translation>今天 %1(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Tomorrow, %1</source>
        <translation>明天 %1(&amp;T)</translation>
    </message>
    <message>
        <source>Next &amp;Monday, %1</source>
        <translation>下周一 %1(&amp;M)</translation>
    </message>
</context>
<context>
    <name>TaskRepeats</name>
    <message>
        <source>Tasks cannot repeat in this data file, which is of an earlier version and could not be upgraded. The next start of Ambertask tries it again.</source>
        <translation>此数据文件的版本较旧且未能升级，其中的任务无法重复。Ambertask 下次启动时会重试。</translation>
    </message>
</context>
<context>
    <name>TaskStoring</name>
    <message>
        <source>Nothing was stored: there is no number left for a new category.</source>
        <translation>未保存任何内容：已没有编号可用于新类别。</translation>
    </message>
    <message>
        <source>Nothing was stored: there is no room for so many tasks.</source>
        <translation>未保存任何内容：无法容纳这么多任务。</translation>
    </message>
    <message>
        <source>Nothing was stored: the task &quot;%1&quot; has been deleted meanwhile. Choose the file again.</source>
        <translation>未保存任何内容：任务“%1”在此期间已被删除。请重新选择文件。</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Please enter categories in the categories section first.</source>
        <translation>请先在“类别”页中添加类别。</translation>
    </message>
</context>
<context>
    <name>TopicView</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>无法显示此页</translation>
    </message>
    <message>
        <source>The help file has no readable page &quot;%1&quot;.</source>
        <translation>帮助文件中没有可读取的页面“%1”。</translation>
    </message>
</context>
<context>
    <name>TrayNews</name>
    <message numerus="yes">
        <source>%n due</source>
        <comment>reminders</comment>
        <translation>
            <numerusform>%n 个提醒到期</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <comment>tasks</comment>
        <translation>
            <numerusform>%n 个任务逾期</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>2 due, 3 overdue</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>UnchangedFile</name>
    <message>
        <source>another program is using it</source>
        <translation>另一个程序正在使用它</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>U&amp;ndo</source>
        <translation>撤消(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤消：%1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>未撤消：%1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>未重做：%1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>It would leave tasks without a category.</source>
        <translation>这样会留下没有类别的任务。</translation>
    </message>
</context>
<context>
    <name>UnreadableRecords</name>
    <message>
        <source>Category %1: %2</source>
        <translation>类别 %1：%2</translation>
    </message>
    <message>
        <source>Category %1, &quot;%2&quot;: %3</source>
        <translation>类别 %1“%2”：%3</translation>
    </message>
    <message>
        <source>Task %1: %2</source>
        <translation>任务 %1：%2</translation>
    </message>
    <message>
        <source>Task %1, &quot;%2&quot;: %3</source>
        <translation>任务 %1“%2”：%3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>另有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Some values in the data file cannot be read. For this reason these are not shown:</source>
        <translation>数据文件中有些值无法读取，因此以下内容未显示：</translation>
    </message>
    <message>
        <source>The tasks of a category that is not shown are not shown either.</source>
        <translation>未显示的类别中的任务也不会显示。</translation>
    </message>
    <message>
        <source>Everything stays in the data file as it is. To have it back, restore a backup that was made before (page Maintenance), or correct the values with another program.</source>
        <translation>数据文件中的一切保持原样。要恢复这些内容，请还原以前的备份（“维护”页），或者用其他程序更正这些值。</translation>
    </message>
    <message>
        <source>Some settings cannot be read. They are for now what they are in a new data file:</source>
        <translation>有些设置无法读取，暂时采用新数据文件中的值：</translation>
    </message>
    <message>
        <source>To store them anew, press &quot;Save Settings&quot; on the page Settings.</source>
        <translation>要重新保存这些设置，请在“设置”页上按“保存设置”。</translation>
    </message>
</context>
<context>
    <name>UnusableCopy</name>
    <message>
        <source>The file is damaged.</source>
        <translation>文件已损坏。</translation>
    </message>
</context>
<context>
    <name>UsualMoments</name>
    <message>
        <source>In &amp;5 minutes</source>
        <translation>5 分钟后(&amp;5)</translation>
    </message>
    <message>
        <source>In &amp;15 minutes</source>
        <translation>15 分钟后(&amp;1)</translation>
    </message>
    <message>
        <source>In 1 &amp;hour</source>
        <translation>1 小时后(&amp;H)</translation>
    </message>
    <message>
        <source>This &amp;evening</source>
        <translation>今晚(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tomorrow morning</source>
        <translation>明天上午(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>下周(&amp;N)</translation>
    </message>
</context>
<context>
    <name>clsGuiLoader</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>All</source>
        <comment>statuses</comment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Not Started</source>
        <translation>未开始</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Waiting on someone else</source>
        <translation>正在等待他人</translation>
    </message>
    <message>
        <source>Deferred</source>
        <translation>已推迟</translation>
    </message>
    <message>
        <source>All</source>
        <comment>categories</comment>
        <translation>全部</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
</context>
<context>
    <name>drTasks</name>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Tasks Report</source>
        <translation>任务报表</translation>
    </message>
    <message>
        <source>The report cannot be shown: the module &quot;ambertask_report&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>无法显示报表：程序文件夹中缺少模块“ambertask_report”，或该模块已损坏。</translation>
    </message>
    <message>
        <source>The tasks could not be saved.
%1</source>
        <translation>无法保存任务。
%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>重复：%1</translation>
    </message>
    <message>
        <source>Nothing was saved: the report shows tasks from before the restore.</source>
        <translation>未保存任何内容：报告显示的是还原之前的任务。</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Ambertask</source>
        <translation>关于 Ambertask</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>版本 1.1</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>Ambertask is a simple and powerful task management software program.</source>
        <translation>Ambertask 是一款简单而强大的任务管理软件。</translation>
    </message>
    <message>
        <source>Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what you would miss.</source>
        <translation>Ambertask 不提供任何担保。您的任务只保存在这台计算机上；请备份您不想丢失的内容。</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>系统信息目前不可用</translation>
    </message>
</context>
<context>
    <name>frmAlerts</name>
    <message>
        <source>New reminder</source>
        <translation>新的提醒</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Open Item</source>
        <translation>打开任务</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>消除</translation>
    </message>
    <message>
        <source>Dismiss All</source>
        <translation>全部消除</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期：</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>时间：</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>到期的提醒</translation>
    </message>
    <message>
        <source>New reminder date</source>
        <translation>新提醒的日期</translation>
    </message>
    <message>
        <source>New reminder time</source>
        <translation>新提醒的时间</translation>
    </message>
    <message>
        <source>Moves the selected reminder to the new date and time</source>
        <translation>将所选提醒改到新的日期和时间</translation>
    </message>
    <message>
        <source>Opens the task of the selected reminder</source>
        <translation>打开所选提醒对应的任务</translation>
    </message>
    <message>
        <source>Switches the selected reminder off</source>
        <translation>关闭所选的提醒</translation>
    </message>
    <message>
        <source>Switches all due reminders off</source>
        <translation>关闭所有到期的提醒</translation>
    </message>
    <message>
        <source>1 Reminder</source>
        <translation>1 个提醒</translation>
    </message>
    <message numerus="yes">
        <source>%n Reminders</source>
        <translation>
            <numerusform>%n 个提醒</numerusform>
        </translation>
    </message>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>提醒的日期和时间不能早于系统当前的日期和时间</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>设为</translation>
    </message>
    <message>
        <source>Set date and time to</source>
        <translation>将日期和时间设为</translation>
    </message>
    <message>
        <source>Fills in a usual moment; &quot;Remind me later&quot; then puts the reminder off</source>
        <translation>填入一个常用时间；再按“稍后提醒”即可推迟提醒</translation>
    </message>
</context>
<context>
    <name>frmCategoryDetails</name>
    <message>
        <source>Icon %1 of %2</source>
        <translation>图标 %1，共 %2 个</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>De&amp;fault Icon</source>
        <translation>默认图标(&amp;F)</translation>
    </message>
    <message>
        <source>C&amp;ustom Icon</source>
        <translation>自定义图标(&amp;U)</translation>
    </message>
    <message>
        <source>Default icons</source>
        <translation>默认图标</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>自定义图标</translation>
    </message>
    <message>
        <source>Custom icon preview</source>
        <translation>自定义图标预览</translation>
    </message>
    <message>
        <source>Prefered size 24*24 pixels</source>
        <translation>建议大小：24 × 24 像素</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>浏览(&amp;B)</translation>
    </message>
    <message>
        <source>Browse for a custom icon</source>
        <translation>浏览自定义图标</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>取消(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>说明(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>类别(&amp;C)</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>类别详细信息</translation>
    </message>
    <message>
        <source>The category no longer exists.</source>
        <translation>该类别已不存在。</translation>
    </message>
    <message>
        <source>Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</source>
        <translation>图像文件 (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>A category with the same name already exists</source>
        <translation>已存在同名类别</translation>
    </message>
    <message>
        <source>Please enter category name.</source>
        <translation>请输入类别名称。</translation>
    </message>
    <message>
        <source>Please browse for a custom icon</source>
        <translation>请选择一个自定义图标</translation>
    </message>
</context>
<context>
    <name>frmCopies</name>
    <message>
        <source>&amp;Restore</source>
        <translation>还原(&amp;R)</translation>
    </message>
    <message>
        <source>Restore from a Copy</source>
        <translation>从副本还原</translation>
    </message>
    <message>
        <source>Copies of your data</source>
        <translation>您的数据的副本</translation>
    </message>
    <message>
        <source>No copy has been made yet. The first one is made before the next change.</source>
        <translation>还没有创建副本。第一个副本会在下次更改之前创建。</translation>
    </message>
    <message>
        <source>Puts the selected copy in the place of your data, which is kept as another copy</source>
        <translation>用所选副本替换您的数据；原有数据会保留为另一个副本</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Closes this list and changes nothing</source>
        <translation>关闭此列表，不做任何更改</translation>
    </message>
    <message>
        <source>Co&amp;pies of your data that the program has made by itself</source>
        <translation>程序自动创建的数据副本(&amp;P)</translation>
    </message>
    <message>
        <source>The copies could not be compared: %1</source>
        <translation>无法比较副本：%1</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the copy of %1? Your data as it is now is kept as another copy.</source>
        <translation>确定要还原 %1 的副本吗？您当前的数据会保留为另一个副本。</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>第 %1 行“%2”：%3</translation>
    </message>
    <message>
        <source>New categories: %1</source>
        <translation>新类别：%1</translation>
    </message>
    <message>
        <source>And more that cannot be read.</source>
        <translation>还有其他无法读取的内容。</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>取消(&amp;N)</translation>
    </message>
    <message>
        <source>Import Tasks</source>
        <translation>导入任务</translation>
    </message>
    <message>
        <source>Tasks to import</source>
        <translation>要导入的任务</translation>
    </message>
    <message>
        <source>Programs to start with the reminder</source>
        <translation>随提醒启动的程序</translation>
    </message>
    <message>
        <source>&amp;Programs to start with the reminder; tick those that you trust</source>
        <translation>随提醒启动的程序；请勾选您信任的程序(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>摘要(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>任务(&amp;T)</translation>
    </message>
    <message>
        <source>From &quot;%1&quot;</source>
        <translation>来自“%1”</translation>
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
        <translation>任务</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>维护</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>版本 1.1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>通知区域</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Ambertaks</source>
        <translation>Ambertask</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Ambertaks is still running..</source>
        <translation>Ambertask 仍在运行。</translation>
    </message>
</context>
<context>
    <name>frmRepeat</name>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a weekday, %2 a date and a time</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>天</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>年</translation>
    </message>
    <message>
        <source>The same day</source>
        <translation>同一天</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>最后一天</translation>
    </message>
    <message>
        <source>The same weekday</source>
        <translation>同一个星期几</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>永不</translation>
    </message>
    <message>
        <source>On a date</source>
        <translation>在指定日期</translation>
    </message>
    <message>
        <source>After a number of times</source>
        <translation>达到指定次数后</translation>
    </message>
    <message>
        <source>On these &amp;weekdays</source>
        <translation>在以下星期几(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>取消(&amp;A)</translation>
    </message>
    <message>
        <source>Repeat every so many</source>
        <translation>重复间隔</translation>
    </message>
    <message>
        <source>Days, weeks, months or years</source>
        <translation>天、周、月或年</translation>
    </message>
    <message>
        <source>On these weekdays</source>
        <translation>在以下星期几</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>每月日期</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>最后一天</translation>
    </message>
    <message>
        <source>Number of times</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Next due moments</source>
        <translation>接下来的到期时间</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Repeat &amp;every:</source>
        <translation>重复间隔(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>单位(&amp;U)：</translation>
    </message>
    <message>
        <source>Day of the &amp;month:</source>
        <translation>每月日期(&amp;M)：</translation>
    </message>
    <message>
        <source>E&amp;nd:</source>
        <translation>结束(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>最后一天(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>次数(&amp;T)：</translation>
    </message>
    <message>
        <source>Ne&amp;xt due moments:</source>
        <translation>接下来的到期时间(&amp;X)：</translation>
    </message>
</context>
<context>
    <name>frmTaskDetails</name>
    <message>
        <source>Task Details</source>
        <translation>任务详细信息</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>该任务已不存在。</translation>
    </message>
    <message>
        <source>Executable Files (*.exe;*.bat;)|*.exe;*.bat</source>
        <translation>可执行文件 (*.exe;*.bat;)|*.exe;*.bat</translation>
    </message>
    <message>
        <source>Wave Files (*.wav)|*.wav</source>
        <translation>波形文件 (*.wav)|*.wav</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>&amp;Enable reminder</source>
        <translation>启用提醒(&amp;E)</translation>
    </message>
    <message>
        <source>Reminder sou&amp;nd</source>
        <translation>提醒声音(&amp;N)</translation>
    </message>
    <message>
        <source>Reminder &amp;file</source>
        <translation>提醒文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>浏览(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>取消(&amp;A)</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>任务名称</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>截止时间</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Enable reminder</source>
        <translation>启用提醒</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>提醒日期</translation>
    </message>
    <message>
        <source>Reminder time</source>
        <translation>提醒时间</translation>
    </message>
    <message>
        <source>Reminder sound</source>
        <translation>提醒声音</translation>
    </message>
    <message>
        <source>Reminder sound file</source>
        <translation>提醒声音文件</translation>
    </message>
    <message>
        <source>Browse for a reminder sound</source>
        <translation>浏览提醒声音</translation>
    </message>
    <message>
        <source>Reminder file</source>
        <translation>提醒文件</translation>
    </message>
    <message>
        <source>Program or batch file</source>
        <translation>程序或批处理文件</translation>
    </message>
    <message>
        <source>Browse for a reminder file</source>
        <translation>浏览提醒文件</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Task name:</source>
        <translation>任务名称(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>类别(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>说明(&amp;D)：</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>截止日期(&amp;U)：</translation>
    </message>
    <message>
        <source>Due ti&amp;me:</source>
        <translation>截止时间(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>状态(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Priority:</source>
        <translation>优先级(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Reminder date:</source>
        <translation>提醒日期(&amp;R)：</translation>
    </message>
    <message>
        <source>Reminder t&amp;ime:</source>
        <translation>提醒时间(&amp;I)：</translation>
    </message>
    <message>
        <source>Wa&amp;ve:</source>
        <translation>波形文件(&amp;V)：</translation>
    </message>
    <message>
        <source>Pro&amp;gram:</source>
        <translation>程序(&amp;G)：</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>设为</translation>
    </message>
    <message>
        <source>Set the due moment to</source>
        <translation>将到期时间设为</translation>
    </message>
    <message>
        <source>Set the reminder to</source>
        <translation>将提醒设为</translation>
    </message>
    <message>
        <source>Switches the reminder on; it follows the due moment until it is changed</source>
        <translation>开启提醒；在更改提醒之前，它随到期时间变动</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Repeat tas&amp;k:</source>
        <translation>重复任务(&amp;K)：</translation>
    </message>
</context>
<context>
    <name>modAmbertaks</name>
    <message>
        <source>The program folder could not be made.
%1</source>
        <translation>无法创建程序文件夹。
%1</translation>
    </message>
    <message>
        <source>The program folder could not be kept from a second copy of the program.
%1</source>
        <translation>无法防止程序的第二个副本使用程序文件夹。
%1</translation>
    </message>
</context>
</TS>
