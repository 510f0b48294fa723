<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CommandBoxes</name>
    <message>
        <source>Dataset Filter</source>
        <translation>数据集筛选</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>逻辑库筛选</translation>
    </message>
    <message>
        <source>By Variables</source>
        <translation>BY 变量</translation>
    </message>
</context>
<context>
    <name>CommandFailure</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
</context>
<context>
    <name>DataFilterDialog</name>
    <message>
        <source>Data Filter</source>
        <translation>数据筛选</translation>
    </message>
    <message>
        <source>Show the rows &amp;where:</source>
        <translation>仅显示满足以下条件的行(&amp;W)：</translation>
    </message>
    <message>
        <source>AGE &gt; 60 and SEX = &quot;F&quot;</source>
        <translation>AGE &gt; 60 and SEX = &quot;F&quot;</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DatasetOpener</name>
    <message>
        <source>&quot;%1&quot; is already open.
Do you want to reload it?</source>
        <translation>“%1”已经打开。
是否重新加载？</translation>
    </message>
    <message>
        <source>Reload Dataset</source>
        <translation>重新加载数据集</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>无法打开文件：%1</translation>
    </message>
</context>
<context>
    <name>DockWindows</name>
    <message>
        <source>Workspace</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频数</translation>
    </message>
    <message>
        <source>Univariate</source>
        <translation>单变量统计</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Variable - %1</source>
        <translation>变量 - %1</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>频数</translation>
    </message>
    <message>
        <source>Freq - %1</source>
        <translation>频数 - %1</translation>
    </message>
    <message>
        <source>Univariate - %1</source>
        <translation>单变量统计 - %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>… or drop files here</source>
        <translation>……或将文件拖放到此处</translation>
    </message>
    <message>
        <source>Quorlane</source>
        <translation>Quorlane</translation>
    </message>
    <message>
        <source>No dataset is open. Choose what to open:</source>
        <translation>尚未打开数据集。请选择要打开的内容：</translation>
    </message>
    <message>
        <source>Opened recently</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1（位于 %2）</translation>
    </message>
</context>
<context>
    <name>FileKinds</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>打开 SAS 数据集</translation>
    </message>
    <message>
        <source>SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)</source>
        <translation>SAS 数据文件 (*.sas7bdat);; SAS 传输文件 (*.xpt)</translation>
    </message>
    <message>
        <source>Open Dataset-JSON Files</source>
        <translation>打开 Dataset-JSON 文件</translation>
    </message>
    <message>
        <source>Dataset-JSON Files (*.json *.ndjson)</source>
        <translation>Dataset-JSON 文件 (*.json *.ndjson)</translation>
    </message>
    <message>
        <source>Open R Datasets</source>
        <translation>打开 R 数据集</translation>
    </message>
    <message>
        <source>R Data Files (*.rds);; R Data Files (*.rdata);; R Data Files (*.rda)</source>
        <translation>R 数据文件 (*.rds);; R 数据文件 (*.rdata);; R 数据文件 (*.rda)</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>打开 SPSS 数据集</translation>
    </message>
    <message>
        <source>SPSS Data Files (*.sav)</source>
        <translation>SPSS 数据文件 (*.sav)</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>打开 Stata 数据集</translation>
    </message>
    <message>
        <source>Stata Data Files (*.dta)</source>
        <translation>Stata 数据文件 (*.dta)</translation>
    </message>
    <message>
        <source>Open CSV Files</source>
        <translation>打开 CSV 文件</translation>
    </message>
    <message>
        <source>CSV (Comma delimited) (*.csv)</source>
        <translation>CSV（逗号分隔）(*.csv)</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>By &amp;Row</source>
        <translation>按行(&amp;R)</translation>
    </message>
    <message>
        <source>By &amp;Column</source>
        <translation>按列(&amp;C)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find in table...</source>
        <translation>在表格中查找…</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Found, but not visible</source>
        <translation>已找到，但不可见</translation>
    </message>
</context>
<context>
    <name>GridContextMenu</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy (include Var Name)</source>
        <translation>复制（包含变量名）</translation>
    </message>
    <message>
        <source>Hide Variable	H</source>
        <translation>隐藏变量	H</translation>
    </message>
    <message>
        <source>Unhide Variables	U</source>
        <translation>取消隐藏变量	U</translation>
    </message>
    <message>
        <source>Shift Variable Left	Alt+Left</source>
        <translation>变量左移	Alt+Left</translation>
    </message>
    <message>
        <source>Shift Variable Right	Alt+Right</source>
        <translation>变量右移	Alt+Right</translation>
    </message>
    <message>
        <source>Go to Variable	G</source>
        <translation>转到变量	G</translation>
    </message>
    <message>
        <source>Add By Variable	B</source>
        <translation>添加 BY 变量	B</translation>
    </message>
    <message>
        <source>Clear By Variable</source>
        <translation>清除 BY 变量</translation>
    </message>
    <message>
        <source>Clear Library Filter	Alt+C</source>
        <translation>清除逻辑库筛选	Alt+C</translation>
    </message>
    <message>
        <source>Clear Dataset Filter	C</source>
        <translation>清除数据集筛选	C</translation>
    </message>
    <message>
        <source>Undo Dataset Filter	Z</source>
        <translation>撤销数据集筛选	Z</translation>
    </message>
    <message>
        <source>Frequency	F</source>
        <translation>频数	F</translation>
    </message>
    <message>
        <source>Frequency (%1)	N</source>
        <translation>频数（%1）	N</translation>
    </message>
    <message>
        <source>Univariate	S</source>
        <translation>单变量统计	S</translation>
    </message>
</context>
<context>
    <name>GridCounters</name>
    <message>
        <source>Rows: NA/NA</source>
        <translation>行：NA/NA</translation>
    </message>
    <message>
        <source>Rows: %1/%2</source>
        <translation>行：%1/%2</translation>
    </message>
    <message>
        <source>Vars: NA/NA</source>
        <translation>变量：NA/NA</translation>
    </message>
    <message>
        <source>Vars: %1/%2</source>
        <translation>变量：%1/%2</translation>
    </message>
</context>
<context>
    <name>GridServices</name>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>Trace</source>
        <translation>跟踪</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>致命</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log messages</source>
        <translation>日志消息</translation>
    </message>
    <message>
        <source>All messages</source>
        <translation>所有消息</translation>
    </message>
    <message>
        <source>Information and above</source>
        <translation>信息及以上</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>复制(&amp;Y)</translation>
    </message>
    <message>
        <source>Copy the selected messages, or all that are shown if none is selected</source>
        <translation>复制所选消息；未选择时复制显示的所有消息</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>显示(&amp;W)：</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>打开 SAS 数据集</translation>
    </message>
    <message>
        <source>Open Dataset-JSON Files</source>
        <translation>打开 Dataset-JSON 文件</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Manage Libraries</source>
        <translation>管理逻辑库</translation>
    </message>
    <message>
        <source>Save Session...</source>
        <translation>保存会话...</translation>
    </message>
    <message>
        <source>Open R Datasets</source>
        <translation>打开 R 数据集</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>打开 SPSS 数据集</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>打开 Stata 数据集</translation>
    </message>
    <message>
        <source>Open CSV Files</source>
        <translation>打开 CSV 文件</translation>
    </message>
    <message>
        <source>New SAS Program</source>
        <translation>新建 SAS 程序</translation>
    </message>
    <message>
        <source>Close	Ctrl+W</source>
        <translation>关闭	Ctrl+W</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Documentaiton</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Compare Datasets</source>
        <translation>比较数据集</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message>
        <source>Toggle Dark Mode</source>
        <translation>切换深色模式</translation>
    </message>
    <message>
        <source>Toggle between light and dark mode</source>
        <translation>在浅色与深色模式之间切换</translation>
    </message>
    <message>
        <source>Quick Open</source>
        <translation>快速打开</translation>
    </message>
    <message>
        <source>Edit Data Filter</source>
        <translation>编辑数据筛选</translation>
    </message>
    <message>
        <source>Next Dataset Tab</source>
        <translation>下一个数据集标签页</translation>
    </message>
    <message>
        <source>Show left dock window and main window</source>
        <translation>显示左侧停靠窗口和主窗口</translation>
    </message>
    <message>
        <source>Show main window maximize</source>
        <translation>仅显示主窗口</translation>
    </message>
    <message>
        <source>Show left dock window, main window and right dock window</source>
        <translation>显示左侧停靠窗口、主窗口和右侧停靠窗口</translation>
    </message>
    <message>
        <source>Show main window and right dock window</source>
        <translation>显示主窗口和右侧停靠窗口</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>布局 %1</translation>
    </message>
    <message>
        <source>Go to Dataset Filter</source>
        <translation>转到数据集筛选框</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>查找上一个</translation>
    </message>
    <message>
        <source>Reset Window Arrangement</source>
        <translation>重置窗口布局</translation>
    </message>
    <message>
        <source>Put docks and toolbars where they stood at first</source>
        <translation>将停靠窗口和工具栏恢复到最初的位置</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Dock Windows</source>
        <translation>停靠窗口</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Hel&amp;p</source>
        <translation>帮助(&amp;P)</translation>
    </message>
</context>
<context>
    <name>MainTableView</name>
    <message>
        <source>The variable %1 is hidden.</source>
        <translation>变量 %1 已隐藏。</translation>
    </message>
    <message>
        <source>Observation %1 is hidden by a filter.</source>
        <translation>观测 %1 被筛选器隐藏。</translation>
    </message>
</context>
<context>
    <name>MainToolBars</name>
    <message>
        <source>Quick Open</source>
        <translation>快速打开</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Column Headers</source>
        <translation>列标题</translation>
    </message>
    <message>
        <source>Var Name</source>
        <translation>变量名</translation>
    </message>
    <message>
        <source>Var Label</source>
        <translation>变量标签</translation>
    </message>
    <message>
        <source>Show variable names in the column headers</source>
        <translation>在列标题中显示变量名</translation>
    </message>
    <message>
        <source>Show variable labels in the column headers</source>
        <translation>在列标题中显示变量标签</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorlane</source>
        <translation>Quorlane</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Database Initialization Failed</source>
        <translation>数据库初始化失败</translation>
    </message>
    <message>
        <source>The application will now exit.</source>
        <translation>应用程序即将退出。</translation>
    </message>
    <message>
        <source>New SAS Program</source>
        <translation>新建 SAS 程序</translation>
    </message>
    <message>
        <source>The program in the Code window will be cleared. Go on?</source>
        <translation>“代码”窗口中的程序将被清除。是否继续？</translation>
    </message>
    <message>
        <source>About Quorlane</source>
        <translation>关于 Quorlane</translation>
    </message>
    <message>
        <source>Quorlane %1
A viewer for statistical and clinical-trial datasets.
Data files are only ever read.</source>
        <translation>Quorlane %1
统计与临床试验数据集查看器。
数据文件始终以只读方式打开。</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Unique variable name</source>
        <translation>唯一标识变量名</translation>
    </message>
    <message>
        <source>The variable that identifies a subject</source>
        <translation>用于标识受试者的变量</translation>
    </message>
    <message>
        <source>Unique Variable Name:</source>
        <translation>唯一标识变量名：</translation>
    </message>
</context>
<context>
    <name>ProgramEditor</name>
    <message>
        <source>SAS program</source>
        <translation>SAS 程序</translation>
    </message>
    <message>
        <source>Statements for the active dataset: where, if, keep, drop, by</source>
        <translation>作用于当前数据集的语句：where, if, keep, drop, by</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>Not all of these are variables.</source>
        <translation>其中有些名称不是变量。</translation>
    </message>
</context>
<context>
    <name>QuickOpenDialog</name>
    <message>
        <source>Quick Open</source>
        <translation>快速打开</translation>
    </message>
    <message>
        <source>Dataset, &quot;v&quot; and a variable, or a row number</source>
        <translation>数据集、“v”加变量名，或行号</translation>
    </message>
    <message>
        <source>Return goes to observation %1</source>
        <translation>按回车键转到观测 %1</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>没有匹配项</translation>
    </message>
    <message>
        <source>The workspace holds no datasets</source>
        <translation>工作区中没有数据集</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1（位于 %2）</translation>
    </message>
</context>
<context>
    <name>ShortcutKeysWindow</name>
    <message>
        <source>Shortcut keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Layout 1</source>
        <translation>布局 1</translation>
    </message>
    <message>
        <source>Show left dock window and main window</source>
        <translation>显示左侧停靠窗口和主窗口</translation>
    </message>
    <message>
        <source>Layout 2</source>
        <translation>布局 2</translation>
    </message>
    <message>
        <source>Show main window maximize</source>
        <translation>仅显示主窗口</translation>
    </message>
    <message>
        <source>Layout 3</source>
        <translation>布局 3</translation>
    </message>
    <message>
        <source>Show left dock window, main window and right dock window</source>
        <translation>显示左侧停靠窗口、主窗口和右侧停靠窗口</translation>
    </message>
    <message>
        <source>Layout 4</source>
        <translation>布局 4</translation>
    </message>
    <message>
        <source>Show main window and right dock window</source>
        <translation>显示主窗口和右侧停靠窗口</translation>
    </message>
    <message>
        <source>Quick Open</source>
        <translation>快速打开</translation>
    </message>
    <message>
        <source>Open the quick navigation palette.</source>
        <translation>打开快速导航面板。</translation>
    </message>
    <message>
        <source>Open SAS Datasets</source>
        <translation>打开 SAS 数据集</translation>
    </message>
    <message>
        <source>Open a SAS dataset.</source>
        <translation>打开 SAS 数据集。</translation>
    </message>
    <message>
        <source>Toggle Dark Mode</source>
        <translation>切换深色模式</translation>
    </message>
    <message>
        <source>Toggle between dark and light themes.</source>
        <translation>在深色与浅色主题之间切换。</translation>
    </message>
    <message>
        <source>Next Dataset Tab</source>
        <translation>下一个数据集标签页</translation>
    </message>
    <message>
        <source>Switch to the next dataset window.</source>
        <translation>切换到下一个数据集窗口。</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>退出应用程序</translation>
    </message>
    <message>
        <source>Close the application.</source>
        <translation>关闭应用程序。</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find text.</source>
        <translation>查找文本。</translation>
    </message>
    <message>
        <source>Dataset Filter, In operator</source>
        <translation>数据集筛选：in 运算符</translation>
    </message>
    <message>
        <source>Filter data with operator &apos;in&apos;.</source>
        <translation>用运算符“in”筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Equal</source>
        <translation>数据集筛选：等于</translation>
    </message>
    <message>
        <source>Filter data with operator =.</source>
        <translation>用运算符 = 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Uneuqal</source>
        <translation>数据集筛选：不等于</translation>
    </message>
    <message>
        <source>Filter data with operator ^= or ~=.</source>
        <translation>用运算符 ^= 或 ~= 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater</source>
        <translation>数据集筛选：大于</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;.</source>
        <translation>用运算符 &gt; 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Less</source>
        <translation>数据集筛选：小于</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;.</source>
        <translation>用运算符 &lt; 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater or Equal</source>
        <translation>数据集筛选：大于等于</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;=.</source>
        <translation>用运算符 &gt;= 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Less or Equal</source>
        <translation>数据集筛选：小于等于</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;=.</source>
        <translation>用运算符 &lt;= 筛选数据。</translation>
    </message>
    <message>
        <source>Dataset Filter, Undo</source>
        <translation>数据集筛选：撤销</translation>
    </message>
    <message>
        <source>Undo one step of dataset filter.</source>
        <translation>撤销一步数据集筛选。</translation>
    </message>
    <message>
        <source>Clear Dataset Filter</source>
        <translation>清除数据集筛选</translation>
    </message>
    <message>
        <source>Clear dataset level filter.</source>
        <translation>清除数据集级别的筛选。</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>逻辑库筛选</translation>
    </message>
    <message>
        <source>Filter data with operator =. It is library level.</source>
        <translation>用运算符 = 筛选数据，作用于整个逻辑库。</translation>
    </message>
    <message>
        <source>Clear Library Filter</source>
        <translation>清除逻辑库筛选</translation>
    </message>
    <message>
        <source>Clear library level filter.</source>
        <translation>清除逻辑库级别的筛选。</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频数</translation>
    </message>
    <message>
        <source>Get the frequency of the selected variable(s). Select multiple variables by holding down the Ctrl key.</source>
        <translation>计算所选变量的频数。按住 Ctrl 键可选择多个变量。</translation>
    </message>
    <message>
        <source>Freq (UniqueID)</source>
        <translation>频数（唯一 ID）</translation>
    </message>
    <message>
        <source>Count distinct UniqueID of the selected variable(s). Select multiple variables by holding down the Ctrl key.</source>
        <translation>统计所选变量各取值的不同唯一 ID 数。按住 Ctrl 键可选择多个变量。</translation>
    </message>
    <message>
        <source>Hide Variable</source>
        <translation>隐藏变量</translation>
    </message>
    <message>
        <source>Hide the focused variable.</source>
        <translation>隐藏焦点所在的变量。</translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>隐藏所有变量</translation>
    </message>
    <message>
        <source>Hide all the variables.</source>
        <translation>隐藏所有变量。</translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>取消隐藏所有变量</translation>
    </message>
    <message>
        <source>Unhide all hidden variables.</source>
        <translation>显示所有已隐藏的变量。</translation>
    </message>
    <message>
        <source>Shift Variable Left</source>
        <translation>变量左移</translation>
    </message>
    <message>
        <source>Move the focused variable to the left.</source>
        <translation>将焦点所在的变量左移。</translation>
    </message>
    <message>
        <source>Shift Variable Right</source>
        <translation>变量右移</translation>
    </message>
    <message>
        <source>Move the focused variable to the right.</source>
        <translation>将焦点所在的变量右移。</translation>
    </message>
    <message>
        <source>Add By Variable</source>
        <translation>添加 BY 变量</translation>
    </message>
    <message>
        <source>Append the focused variable to the BY list.</source>
        <translation>将焦点所在的变量追加到 BY 列表。</translation>
    </message>
    <message>
        <source>Go to Variable</source>
        <translation>转到变量</translation>
    </message>
    <message>
        <source>Jump to the focused variable in Variables Window.</source>
        <translation>在变量窗口中跳转到焦点所在的变量。</translation>
    </message>
    <message>
        <source>Copy Selection</source>
        <translation>复制所选内容</translation>
    </message>
    <message>
        <source>Copy selected cells.</source>
        <translation>复制所选单元格。</translation>
    </message>
    <message>
        <source>Close Dataset</source>
        <translation>关闭数据集</translation>
    </message>
    <message>
        <source>Close the current dataset.</source>
        <translation>关闭当前数据集。</translation>
    </message>
    <message>
        <source>Close All Datasets</source>
        <translation>关闭所有数据集</translation>
    </message>
    <message>
        <source>Close all the opened datasets</source>
        <translation>关闭所有打开的数据集。</translation>
    </message>
    <message>
        <source>Increase the Font Size</source>
        <translation>增大字号</translation>
    </message>
    <message>
        <source>Make the font bigger.</source>
        <translation>放大字体。</translation>
    </message>
    <message>
        <source>Decrease the Font Size</source>
        <translation>减小字号</translation>
    </message>
    <message>
        <source>Make the font smaller.</source>
        <translation>缩小字体。</translation>
    </message>
    <message>
        <source>Jump to the focused variable in Dataset Window.</source>
        <translation>在数据集窗口中跳转到焦点所在的变量。</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Dataset Window</source>
        <translation>数据集窗口</translation>
    </message>
    <message>
        <source>Frequency Window</source>
        <translation>频数窗口</translation>
    </message>
    <message>
        <source>Variables Window</source>
        <translation>变量窗口</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>不支持的操作系统</translation>
    </message>
    <message>
        <source>Uncatched exception: %1</source>
        <translation>未捕获的异常：%1</translation>
    </message>
    <message>
        <source>Unknown exception, the application will quit.</source>
        <translation>未知异常，应用程序将退出。</translation>
    </message>
    <message>
        <source>This application does not run on Windows Server edition. Please download the server edition from the website: %1</source>
        <translation>本应用程序不能在 Windows Server 上运行。请从网站下载服务器版：%1</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Descriptive Statistics</source>
        <translation>描述性统计</translation>
    </message>
    <message>
        <source>Please select at least one column.</source>
        <translation>请至少选择一列。</translation>
    </message>
    <message>
        <source>Desciptive Stattistics</source>
        <translation>描述性统计</translation>
    </message>
    <message>
        <source>Selected variable is not numeric.</source>
        <translation>所选变量不是数值型变量。</translation>
    </message>
    <message>
        <source>No data available under current filters.</source>
        <translation>当前筛选条件下没有可用数据。</translation>
    </message>
</context>
<context>
    <name>StatusCounters</name>
    <message>
        <source>Rows: NA/NA</source>
        <translation>行：NA/NA</translation>
    </message>
    <message>
        <source>Vars: NA/NA</source>
        <translation>变量：NA/NA</translation>
    </message>
    <message>
        <source>By: NA</source>
        <translation>By：NA</translation>
    </message>
    <message>
        <source>LF: NA</source>
        <translation>库筛选：NA</translation>
    </message>
    <message>
        <source>DF: NA</source>
        <translation>集筛选：NA</translation>
    </message>
    <message>
        <source>By: %1</source>
        <translation>By：%1</translation>
    </message>
    <message>
        <source>LF: %1</source>
        <translation>库筛选：%1</translation>
    </message>
    <message>
        <source>LF: (not applied) %1</source>
        <translation>库筛选：（未应用）%1</translation>
    </message>
    <message>
        <source>%1
This dataset is not filtered by it: %2</source>
        <translation>%1
此数据集未应用该筛选：%2</translation>
    </message>
    <message>
        <source>DF: %1</source>
        <translation>集筛选：%1</translation>
    </message>
    <message>
        <source>Rows: NA / NA</source>
        <translation>行：NA / NA</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>A new version is available!

Latest version: %1
Your version: %2

Click &apos;Open&apos; to get the latest version:
%3</source>
        <translation>有新版本可用！

最新版本：%1
当前版本：%2

点击“打开”获取最新版本：
%3</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>有可用更新</translation>
    </message>
</context>
<context>
    <name>WorkspaceTree</name>
    <message>
        <source>Library</source>
        <translation>逻辑库</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Workspace</source>
        <translation>工作区</translation>
    </message>
</context>
</TS>
