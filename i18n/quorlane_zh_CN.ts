<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CellPane</name>
    <message>
        <source>Cell</source>
        <translation>单元格</translation>
    </message>
    <message>
        <source>No cell is current.</source>
        <translation>没有当前单元格。</translation>
    </message>
    <message>
        <source>%1, observation %2</source>
        <translation>%1，观测 %2</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>文本为空。</translation>
    </message>
</context>
<context>
    <name>CellText</name>
    <message>
        <source>Character</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>Numeric</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Stored value: %1</source>
        <translation>存储的值：%1</translation>
    </message>
</context>
<context>
    <name>CheckBoxHeader</name>
    <message>
        <source>Show all variables</source>
        <translation>显示所有变量</translation>
    </message>
</context>
<context>
    <name>ChooseDatasetsDialog</name>
    <message>
        <source>Open Datasets</source>
        <translation>打开数据集</translation>
    </message>
    <message>
        <source>%1 holds several &amp;datasets. Which are to be opened?</source>
        <translation>%1 包含多个数据集(&amp;D)。要打开哪些？</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CodeWindow</name>
    <message>
        <source>SAS Programs (*.sas);; All Files (*)</source>
        <translation>SAS 程序 (*.sas);; 所有文件 (*)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Nothing has been run. Line %1: %2</source>
        <translation>未执行任何语句。第 %1 行:%2</translation>
    </message>
    <message>
        <source>Run on %1. Statements passed over: %2</source>
        <translation>已在 %1 上执行。跳过的语句:%2</translation>
    </message>
    <message>
        <source>Run on %1.</source>
        <translation>已在 %1 上执行。</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>未命名 %1</translation>
    </message>
    <message>
        <source>Open SAS Program</source>
        <translation>打开 SAS 程序</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>无法打开文件:%1</translation>
    </message>
    <message>
        <source>Save SAS Program</source>
        <translation>保存 SAS 程序</translation>
    </message>
    <message>
        <source>The program %1 is not saved.
Do you want to save it?</source>
        <translation>程序 %1 尚未保存。
要保存吗?</translation>
    </message>
</context>
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
    <name>CompareDialog</name>
    <message>
        <source>ID variables</source>
        <translation>ID 变量</translation>
    </message>
    <message>
        <source>by position</source>
        <translation>按位置</translation>
    </message>
    <message>
        <source>&amp;Propose</source>
        <translation>建议(&amp;P)</translation>
    </message>
    <message>
        <source>Variables to compare</source>
        <translation>要比较的变量</translation>
    </message>
    <message>
        <source>all common variables</source>
        <translation>所有共有变量</translation>
    </message>
    <message>
        <source>Compare Datasets</source>
        <translation>比较数据集</translation>
    </message>
    <message>
        <source>The key variables of the file, or study, subject, sequence number and so on, as many as it takes</source>
        <translation>文件的键变量，或研究、受试者、序号等，按需要的数量</translation>
    </message>
    <message>
        <source>Open File...</source>
        <translation>打开文件...</translation>
    </message>
    <message>
        <source>&amp;Base:</source>
        <translation>基准(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Compare:</source>
        <translation>比较(&amp;C):</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>交换(&amp;W)</translation>
    </message>
    <message>
        <source>ID Variables</source>
        <translation>ID 变量</translation>
    </message>
    <message>
        <source>Variables to Compare</source>
        <translation>要比较的变量</translation>
    </message>
    <message>
        <source>NAME=OTHER compares variables of different names.</source>
        <translation>NAME=OTHER 比较名称不同的变量。</translation>
    </message>
    <message>
        <source>&amp;SAS Program</source>
        <translation>SAS 程序(&amp;S)</translation>
    </message>
    <message>
        <source>Write the program that makes this comparison in SAS</source>
        <translation>写出在 SAS 中进行此比较的程序</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Choose two datasets, open ones or files.</source>
        <translation>选择两个数据集，已打开的或文件。</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>Observations x variables: %1 and %2; variables in common: %3</source>
        <translation>观测 x 变量：%1 和 %2；共有变量：%3</translation>
    </message>
    <message>
        <source>Observations are matched by their position.</source>
        <translation>观测按位置配对。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Each observation has ID values of its own.</source>
        <translation>每个观测都有自己的 ID 值。</translation>
    </message>
    <message>
        <source>Observations that repeat ID values: %1; they are paired in their order.</source>
        <translation>重复 ID 值的观测：%1；它们按顺序配对。</translation>
    </message>
</context>
<context>
    <name>CompareOptionsPanel</name>
    <message>
        <source>What Is Equal</source>
        <translation>何为相等</translation>
    </message>
    <message>
        <source>Larger differences are unequal; a negative number counts machine epsilons, -1000 means equal up to rounding</source>
        <translation>更大的差异为不相等；负数以机器精度计，-1000 表示除舍入外相等</translation>
    </message>
    <message>
        <source>0 to 1; keeps differences of numbers near 0 from counting</source>
        <translation>0 到 1；使接近 0 的数的差异不计</translation>
    </message>
    <message>
        <source>Criteria of single variables: VARIABLE=NUMBER, with a method of its own VARIABLE=NUMBER:METHOD</source>
        <translation>单个变量的标准：变量=数值，自有方法时为 变量=数值:方法</translation>
    </message>
    <message>
        <source>&amp;Method:</source>
        <translation>方法(&amp;M):</translation>
    </message>
    <message>
        <source>C&amp;riterion:</source>
        <translation>标准(&amp;R):</translation>
    </message>
    <message>
        <source>De&amp;lta:</source>
        <translation>Delta(&amp;L):</translation>
    </message>
    <message>
        <source>Cri&amp;teria of variables:</source>
        <translation>变量的标准(&amp;T):</translation>
    </message>
    <message>
        <source>Missing in base equals all (NOMISSBASE)</source>
        <translation>基准缺失等于一切 (NOMISSBASE)</translation>
    </message>
    <message>
        <source>Missing in compare equals all (NOMISSCOMP)</source>
        <translation>比较缺失等于一切 (NOMISSCOMP)</translation>
    </message>
    <message>
        <source>Filters and hidden variables count</source>
        <translation>过滤器和隐藏变量计入</translation>
    </message>
    <message>
        <source>Compare only the observations and variables that the grids show at the moment</source>
        <translation>只比较表格当前显示的观测和变量</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Variables of one side</source>
        <translation>仅一方的变量</translation>
    </message>
    <message>
        <source>Observations of one side</source>
        <translation>仅一方的观测</translation>
    </message>
    <message>
        <source>Variables with equal values</source>
        <translation>值相等的变量</translation>
    </message>
    <message>
        <source>Brief summary</source>
        <translation>简要摘要</translation>
    </message>
    <message>
        <source>Values by observation</source>
        <translation>按观测列出值</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计量</translation>
    </message>
    <message>
        <source>in total:</source>
        <translation>总计：</translation>
    </message>
    <message>
        <source>of texts:</source>
        <translation>文本：</translation>
    </message>
    <message>
        <source>Smaller values are printed as 0, smaller differences not at all</source>
        <translation>更小的值打印为 0，更小的差异不打印</translation>
    </message>
    <message>
        <source>Differences per variable:</source>
        <translation>每个变量的差异：</translation>
    </message>
    <message>
        <source>Width of lines:</source>
        <translation>行宽：</translation>
    </message>
    <message>
        <source>F&amp;uzz:</source>
        <translation>F&amp;uzz:</translation>
    </message>
</context>
<context>
    <name>Comparisons</name>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>All compared values of %1 and %2 are equal</source>
        <translation>%1 和 %2 的所有比较值都相等</translation>
    </message>
    <message>
        <source>%1 has been read anew since it was compared</source>
        <translation>%1 在比较后已重新读取</translation>
    </message>
    <message>
        <source>Save Differences</source>
        <translation>保存差异</translation>
    </message>
    <message>
        <source>Tab-Separated Text (*.txt *.tsv);;CSV Files (*.csv);;JSON Files (*.json)</source>
        <translation>制表符分隔文本 (*.txt *.tsv);;CSV 文件 (*.csv);;JSON 文件 (*.json)</translation>
    </message>
    <message>
        <source>Failed to save the file: %1</source>
        <translation>保存文件失败：%1</translation>
    </message>
    <message>
        <source>%1 is no longer open</source>
        <translation>%1 已不再打开</translation>
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
    <name>DatasetContents</name>
    <message>
        <source>Data Set</source>
        <translation>数据集</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>数据集名称</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Member Type</source>
        <translation>成员类型</translation>
    </message>
    <message>
        <source>Observations</source>
        <translation>观测数</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Key Variables</source>
        <translation>关键变量</translation>
    </message>
    <message>
        <source>Observation Length</source>
        <translation>观测长度</translation>
    </message>
    <message>
        <source>Deleted Observations</source>
        <translation>已删除的观测</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Last Modified</source>
        <translation>最后修改时间</translation>
    </message>
    <message>
        <source>Engine and File</source>
        <translation>引擎与文件</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>File Size (bytes)</source>
        <translation>文件大小（字节）</translation>
    </message>
    <message>
        <source>File Last Modified</source>
        <translation>文件最后修改时间</translation>
    </message>
    <message>
        <source>Format Version</source>
        <translation>格式版本</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>编码</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Byte Order</source>
        <translation>字节序</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Data Set Page Size</source>
        <translation>数据集页大小</translation>
    </message>
    <message>
        <source>Number of Data Set Pages</source>
        <translation>数据集页数</translation>
    </message>
    <message>
        <source>Release Created</source>
        <translation>创建版本</translation>
    </message>
    <message>
        <source>Host Created</source>
        <translation>创建主机</translation>
    </message>
    <message>
        <source>Further Attributes</source>
        <translation>其他属性</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>May Be Damaged</source>
        <translation>可能已损坏</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Len</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Informat</source>
        <translation>输入格式</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
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
    <message>
        <source>Failed to open dataset &apos;%1&apos; in %2.</source>
        <translation>无法打开 %2 中的数据集 &apos;%1&apos;。</translation>
    </message>
    <message>
        <source>The filter could not be kept: %1</source>
        <translation>无法保留筛选：%1</translation>
    </message>
    <message>
        <source>Open R Data</source>
        <translation>打开 R 数据</translation>
    </message>
    <message>
        <source>Join SUPP--</source>
        <translation>合并 SUPP--</translation>
    </message>
    <message>
        <source>Failed to join %1</source>
        <translation>无法合并 %1</translation>
    </message>
</context>
<context>
    <name>DatasetPropertiesDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>%1 的属性</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>数据集</translation>
    </message>
    <message>
        <source>Name or label</source>
        <translation>名称或标签</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>搜索(&amp;S)：</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Save Properties</source>
        <translation>保存属性</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;CSV Files (*.csv)</source>
        <translation>文本文件 (*.txt);;CSV 文件 (*.csv)</translation>
    </message>
</context>
<context>
    <name>DatasetWindow</name>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>%1 - %2 - Quorlane</source>
        <translation>%1 – %2 – Quorlane</translation>
    </message>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1（位于 %2）</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>changed on disk</source>
        <translation>磁盘上已更改</translation>
    </message>
    <message>
        <source>gone from disk</source>
        <translation>磁盘上已不存在</translation>
    </message>
    <message>
        <source>The file has changed since it was read; what is shown here is what it held before.</source>
        <translation>该文件在读取后已更改；此处显示的是更改前的内容。</translation>
    </message>
    <message>
        <source>The file is no longer there; what is shown here is what it held.</source>
        <translation>该文件已不存在；此处显示的是其原有内容。</translation>
    </message>
    <message>
        <source>Rows of SUPP-- datasets that match no observation: %1. Rows whose value conflicts with another one: %2.</source>
        <translation>SUPP-- 数据集中不匹配任何观测的行：%1。值与其他行冲突的行：%2。</translation>
    </message>
    <message>
        <source>Show List</source>
        <translation>显示列表</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>Base</source>
        <translation>基准</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>对比</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>% Diff</source>
        <translation>差值 %</translation>
    </message>
    <message>
        <source>Only in base</source>
        <translation>仅在基准中</translation>
    </message>
    <message>
        <source>Only in compare</source>
        <translation>仅在对比中</translation>
    </message>
    <message>
        <source>Base: %1</source>
        <translation>基准：%1</translation>
    </message>
    <message>
        <source>Compare: %1</source>
        <translation>对比：%1</translation>
    </message>
    <message>
        <source>Difference: %1</source>
        <translation>差值：%1</translation>
    </message>
    <message>
        <source>Difference: %1 (%2 %)</source>
        <translation>差值：%1（%2 %）</translation>
    </message>
    <message>
        <source>%1, differs</source>
        <translation>%1，不一致</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Obs</source>
        <translation>观测</translation>
    </message>
    <message>
        <source>The number of the observation</source>
        <translation>观测号</translation>
    </message>
    <message>
        <source>Unequal values: %L1</source>
        <translation>不相等的值：%L1</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>Next Difference	F8</source>
        <translation>下一处差异	F8</translation>
    </message>
    <message>
        <source>Previous Difference	Shift+F8</source>
        <translation>上一处差异	Shift+F8</translation>
    </message>
    <message>
        <source>Go to the Datasets	Return</source>
        <translation>转到数据集	Return</translation>
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
        <source>Copy	Ctrl+C</source>
        <translation>复制	Ctrl+C</translation>
    </message>
    <message>
        <source>The variables that are shown have no differences.
U shows the hidden ones.</source>
        <translation>显示的变量没有差异。
按 U 显示隐藏的变量。</translation>
    </message>
    <message>
        <source>There are no differences: all compared values are equal,
and no observation is in one dataset only.</source>
        <translation>没有差异：所有对比的值都相等，
也没有仅在一个数据集中的观测。</translation>
    </message>
</context>
<context>
    <name>DifferenceWindow</name>
    <message>
        <source>Dataset labels differ</source>
        <translation>数据集标签不同</translation>
    </message>
    <message>
        <source>Dataset types differ</source>
        <translation>数据集类型不同</translation>
    </message>
    <message>
        <source>Informats differ</source>
        <translation>输入格式不同</translation>
    </message>
    <message>
        <source>Formats differ</source>
        <translation>格式不同</translation>
    </message>
    <message>
        <source>Lengths differ</source>
        <translation>长度不同</translation>
    </message>
    <message>
        <source>Labels differ</source>
        <translation>标签不同</translation>
    </message>
    <message>
        <source>Observations are only in base</source>
        <translation>有观测仅在基准中</translation>
    </message>
    <message>
        <source>Observations are only in compare</source>
        <translation>有观测仅在对比中</translation>
    </message>
    <message>
        <source>Variables are only in base</source>
        <translation>有变量仅在基准中</translation>
    </message>
    <message>
        <source>Variables are only in compare</source>
        <translation>有变量仅在对比中</translation>
    </message>
    <message>
        <source>Values are unequal</source>
        <translation>有值不相等</translation>
    </message>
    <message>
        <source>Types of variables conflict</source>
        <translation>变量类型冲突</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Only differing &amp;variables</source>
        <translation>仅显示有差异的变量(&amp;V)</translation>
    </message>
    <message>
        <source>Only differing &amp;observations</source>
        <translation>仅显示有差异的观测(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>百分比(&amp;P)</translation>
    </message>
    <message>
        <source>Compare %1 with %2</source>
        <translation>%1 与 %2 对比</translation>
    </message>
    <message>
        <source>Base: %1 (observations: %L2)</source>
        <translation>基准：%1（观测数：%L2）</translation>
    </message>
    <message>
        <source>Compare: %1 (observations: %L2)</source>
        <translation>对比：%1（观测数：%L2）</translation>
    </message>
    <message>
        <source>Method: %1</source>
        <translation>方法：%1</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>相等</translation>
    </message>
    <message>
        <source>SYSINFO: %1</source>
        <translation>SYSINFO：%1</translation>
    </message>
    <message>
        <source>Show differences in percent of the base, too</source>
        <translation>同时以基准的百分比显示差值</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一处</translation>
    </message>
    <message>
        <source>Previous difference (%1 or %2)</source>
        <translation>上一处差异（%1 或 %2）</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一处</translation>
    </message>
    <message>
        <source>Next difference (%1 or %2)</source>
        <translation>下一处差异（%1 或 %2）</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save all differences as a table</source>
        <translation>将所有差异保存为表格</translation>
    </message>
    <message>
        <source>Difference %L1 of %L2</source>
        <translation>差异 %L1 / %L2</translation>
    </message>
    <message>
        <source>Differences: %L1</source>
        <translation>差异：%L1</translation>
    </message>
    <message>
        <source>Hidden variables: %1</source>
        <translation>隐藏的变量：%1</translation>
    </message>
    <message>
        <source>Went on from the first difference</source>
        <translation>已从第一处差异继续</translation>
    </message>
    <message>
        <source>Went on from the last difference</source>
        <translation>已从最后一处差异继续</translation>
    </message>
    <message>
        <source>Scroll &amp;together</source>
        <translation>同步滚动(&amp;T)</translation>
    </message>
    <message>
        <source>Going to a row of one dataset goes to its partner in the other</source>
        <translation>转到一个数据集的行时，另一个数据集也转到对应的行</translation>
    </message>
</context>
<context>
    <name>DistributionChart</name>
    <message>
        <source>Distribution</source>
        <translation>分布</translation>
    </message>
    <message>
        <source>The first %1 of %2 groups.</source>
        <translation>共 %2 组，显示前 %1 组。</translation>
    </message>
    <message>
        <source>Missing, not drawn: %1</source>
        <translation>缺失，未绘出：%1</translation>
    </message>
    <message>
        <source>%1: minimum %2, quartiles %3 and %5, median %4, maximum %6</source>
        <translation>%1：最小值 %2，四分位数 %3 和 %5，中位数 %4，最大值 %6</translation>
    </message>
    <message>
        <source>From %1 to below %2: %3</source>
        <translation>从 %1 到小于 %2：%3</translation>
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
    <message>
        <source>Cell</source>
        <translation>单元格</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
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
    <name>EngineMessages</name>
    <message>
        <source>unknown command</source>
        <translation>未知命令</translation>
    </message>
    <message>
        <source>command must start with identifier</source>
        <translation>命令必须以单词开头</translation>
    </message>
    <message>
        <source>table needs variable(s)</source>
        <translation>table 需要变量</translation>
    </message>
    <message>
        <source>clear must follow library|dataset</source>
        <translation>clear 后必须是 library 或 dataset</translation>
    </message>
    <message>
        <source>expect &apos;filter&apos;</source>
        <translation>此处应为 &apos;filter&apos;</translation>
    </message>
    <message>
        <source>expect variable name</source>
        <translation>此处应为变量名</translation>
    </message>
    <message>
        <source>expect variable</source>
        <translation>此处应为变量</translation>
    </message>
    <message>
        <source>expect &apos;)&apos;</source>
        <translation>此处应为 &apos;)&apos;</translation>
    </message>
    <message>
        <source>expect &apos;,&apos;</source>
        <translation>此处应为 &apos;,&apos;</translation>
    </message>
    <message>
        <source>expect &apos;(&apos; after in</source>
        <translation>in 后应为 &apos;(&apos;</translation>
    </message>
    <message>
        <source>expect variable name or a function</source>
        <translation>此处应为变量名或函数</translation>
    </message>
    <message>
        <source>expect string literal</source>
        <translation>此处应为字符串</translation>
    </message>
    <message>
        <source>expect operator</source>
        <translation>此处应为运算符</translation>
    </message>
    <message>
        <source>expect value</source>
        <translation>此处应为值</translation>
    </message>
    <message>
        <source>expect null</source>
        <translation>此处应为 null</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>括号过多</translation>
    </message>
    <message>
        <source>unexpected trailing text</source>
        <translation>末尾有多余文本</translation>
    </message>
    <message>
        <source>unknown character in input</source>
        <translation>输入中有未知字符</translation>
    </message>
    <message>
        <source>unterminated string literal</source>
        <translation>字符串缺少结束引号</translation>
    </message>
    <message>
        <source>The variable types do not match.</source>
        <translation>变量类型不匹配。</translation>
    </message>
    <message>
        <source>There is no variable named %1</source>
        <translation>没有名为 %1 的变量</translation>
    </message>
    <message>
        <source>The number %1 is out of range</source>
        <translation>数值 %1 超出范围</translation>
    </message>
    <message>
        <source>%1 is not a valid date</source>
        <translation>%1 不是有效日期</translation>
    </message>
    <message>
        <source>%1 is not a valid time</source>
        <translation>%1 不是有效时间</translation>
    </message>
    <message>
        <source>%1 is not a valid date-time</source>
        <translation>%1 不是有效的日期时间</translation>
    </message>
    <message>
        <source>%1 does not count days or seconds and cannot be compared with a date or time</source>
        <translation>%1 既不按天也不按秒计数，无法与日期或时间比较</translation>
    </message>
    <message>
        <source>This is no such filter: %1</source>
        <translation>这不是此类筛选：%1</translation>
    </message>
    <message>
        <source>Library Filter supports one level only. Please clear library filter first.</source>
        <translation>库筛选仅支持一级。请先清除库筛选。</translation>
    </message>
    <message>
        <source>No dataset is open that this could act on.</source>
        <translation>没有打开的数据集可供此命令作用。</translation>
    </message>
    <message>
        <source>A text with both kinds of quotes cannot be written in a filter: %1</source>
        <translation>同时含有两种引号的文本不能写入筛选：%1</translation>
    </message>
    <message>
        <source>A text with invalid characters cannot be written in a filter</source>
        <translation>含有无效字符的文本不能写入筛选</translation>
    </message>
    <message>
        <source>There is no value to filter by</source>
        <translation>没有可用于筛选的值</translation>
    </message>
    <message>
        <source>%1 holds numbers, which contain no text</source>
        <translation>%1 存放的是数值，其中没有文本</translation>
    </message>
    <message>
        <source>The variable %1 cannot be filtered: its name is more than letters, digits and _</source>
        <translation>无法按变量 %1 筛选：其名称含有字母、数字和 _ 以外的字符</translation>
    </message>
    <message>
        <source>An infinite number cannot be written in a filter</source>
        <translation>无穷大数值不能写入筛选</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>Its suffix belongs to no kind of data file that can be opened</source>
        <translation>其后缀不属于任何可打开的数据文件类型</translation>
    </message>
    <message>
        <source>A file of this kind holds one dataset only; it has none named %1</source>
        <translation>此类文件只含一个数据集；其中没有名为 %1 的数据集</translation>
    </message>
    <message>
        <source>There is not enough memory to hold it</source>
        <translation>内存不足，无法容纳该文件</translation>
    </message>
    <message>
        <source>Its header promises %1 observations, but it is too short to hold them</source>
        <translation>其文件头声明有 %1 个观测，但文件过短，无法容纳</translation>
    </message>
    <message>
        <source>It has %1 observations; at most %2 can be shown</source>
        <translation>它有 %1 个观测；最多可显示 %2 个</translation>
    </message>
    <message>
        <source>The counts in its header are damaged</source>
        <translation>其文件头中的计数已损坏</translation>
    </message>
    <message>
        <source>It describes more variables than its header counts</source>
        <translation>它描述的变量多于文件头中的计数</translation>
    </message>
    <message>
        <source>Its header is damaged</source>
        <translation>其文件头已损坏</translation>
    </message>
    <message>
        <source>Its long strings are damaged</source>
        <translation>其长字符串已损坏</translation>
    </message>
    <message>
        <source>Its header names an unknown compression (%1); it was read as uncompressed</source>
        <translation>其文件头注明了未知的压缩方式 (%1)；已按未压缩读取</translation>
    </message>
    <message>
        <source>It is no SAS transport file</source>
        <translation>它不是 SAS 传输文件</translation>
    </message>
    <message>
        <source>It holds no data set</source>
        <translation>它不含数据集</translation>
    </message>
    <message>
        <source>It has no data set named %1; it has %2</source>
        <translation>它没有名为 %1 的数据集，而有 %2</translation>
    </message>
    <message>
        <source>It promises %1 variables, but it is too short to describe them</source>
        <translation>它声明有 %1 个变量，但文件过短，无法描述它们</translation>
    </message>
    <message>
        <source>The record that starts a data set is damaged</source>
        <translation>数据集的起始记录已损坏</translation>
    </message>
    <message>
        <source>The record that counts the variables is damaged</source>
        <translation>变量计数记录已损坏</translation>
    </message>
    <message>
        <source>The record that starts the observations is missing</source>
        <translation>缺少观测的起始记录</translation>
    </message>
    <message>
        <source>The record that counts the long labels is damaged</source>
        <translation>长标签计数记录已损坏</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>It is cut short, or the sizes in its header are damaged</source>
        <translation>它不完整，或其文件头中的大小已损坏</translation>
    </message>
    <message>
        <source>There is not enough memory for what its header promises</source>
        <translation>内存不足，无法容纳其文件头所声明的内容</translation>
    </message>
    <message>
        <source>Its header promises %1 pages, but it is too short to hold them</source>
        <translation>其文件头声明有 %1 页，但文件过短，无法容纳</translation>
    </message>
    <message>
        <source>The description of its variables is missing</source>
        <translation>缺少对其变量的描述</translation>
    </message>
    <message>
        <source>It counts %1 variables, but describes %2</source>
        <translation>它计有 %1 个变量，但描述了 %2 个</translation>
    </message>
    <message>
        <source>It counts %1 deleted observations, but marks %2</source>
        <translation>它计有 %1 个已删除观测，但标记了 %2 个</translation>
    </message>
    <message>
        <source>It is cut short within an observation</source>
        <translation>它在某个观测中间被截断</translation>
    </message>
    <message>
        <source>It is cut short within observation %1</source>
        <translation>它在第 %1 个观测中间被截断</translation>
    </message>
    <message>
        <source>Its header counts %1 observations, but it holds %2</source>
        <translation>其文件头计有 %1 个观测，但它含有 %2 个</translation>
    </message>
    <message>
        <source>It does not end with a whole record: observations at its end may be missing</source>
        <translation>它没有以完整的记录结束：末尾可能缺少观测</translation>
    </message>
    <message>
        <source>Variable %1 has an impossible length, %2</source>
        <translation>变量 %1 的长度不可能为 %2</translation>
    </message>
    <message>
        <source>It has no variables</source>
        <translation>它没有变量</translation>
    </message>
    <message>
        <source>%1 of its long texts are missing; their cells are empty</source>
        <translation>其 %1 个长文本缺失；相应单元格为空</translation>
    </message>
    <message>
        <source>Unable to read from file</source>
        <translation>无法读取文件</translation>
    </message>
    <message>
        <source>Unable to allocate memory</source>
        <translation>无法分配内存</translation>
    </message>
    <message>
        <source>Unable to seek within file</source>
        <translation>无法在文件中定位</translation>
    </message>
    <message>
        <source>Invalid file, or file has unsupported features</source>
        <translation>文件无效，或包含不支持的特性</translation>
    </message>
    <message>
        <source>File has unsupported compression scheme</source>
        <translation>不支持文件的压缩方式</translation>
    </message>
    <message>
        <source>File has an unsupported character set</source>
        <translation>不支持文件的字符集</translation>
    </message>
    <message>
        <source>File did not contain the expected number of columns</source>
        <translation>文件的列数与预期不符</translation>
    </message>
    <message>
        <source>File did not contain the expected number of rows</source>
        <translation>文件的行数与预期不符</translation>
    </message>
    <message>
        <source>A row in the file was not the expected length</source>
        <translation>文件中某行的长度与预期不符</translation>
    </message>
    <message>
        <source>Unable to convert string to the requested encoding</source>
        <translation>无法将文本转换为所需编码</translation>
    </message>
    <message>
        <source>The file&apos;s timestamp string is invalid</source>
        <translation>文件的时间戳无效</translation>
    </message>
    <message>
        <source>It cannot be read to its end</source>
        <translation>无法读到文件末尾</translation>
    </message>
    <message>
        <source>It is no text file</source>
        <translation>它不是文本文件</translation>
    </message>
    <message>
        <source>The quote that begins a value in line %1 is never closed</source>
        <translation>第 %1 行中值开头的引号没有闭合</translation>
    </message>
    <message>
        <source>Its first line names more than %1 variables</source>
        <translation>第一行中的变量超过 %1 个</translation>
    </message>
    <message>
        <source>It has more than %1 rows, the most that can be shown</source>
        <translation>行数超过可显示的上限 %1</translation>
    </message>
    <message>
        <source>Far more values are missing in its lines than there are</source>
        <translation>各行中缺少的值远多于已有的值</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>There are letters behind the closing quote of a value; they are taken for a part of it</source>
        <translation>某个值的右引号之后还有字符；它们被视为该值的一部分</translation>
    </message>
    <message>
        <source>There are NUL bytes in the file, which are left out</source>
        <translation>文件中有 NUL 字节，已忽略</translation>
    </message>
    <message>
        <source>Lines with fewer values than variables, filled up with missing ones: %1</source>
        <translation>值少于变量数的行，已用缺失值补齐：%1</translation>
    </message>
    <message>
        <source>Lines with more values than variables, whose last values are left out: %1</source>
        <translation>值多于变量数的行，多余的值已省略：%1</translation>
    </message>
    <message>
        <source>It is no JSON file</source>
        <translation>它不是 JSON 文件</translation>
    </message>
    <message>
        <source>It is no Dataset-JSON file: it starts with a list in place of its attributes</source>
        <translation>它不是 Dataset-JSON 文件：开头是列表而不是属性</translation>
    </message>
    <message>
        <source>It is no Dataset-JSON file: it describes no columns</source>
        <translation>它不是 Dataset-JSON 文件：没有描述列</translation>
    </message>
    <message>
        <source>It is no valid JSON</source>
        <translation>它不是有效的 JSON</translation>
    </message>
    <message>
        <source>It is no valid JSON: its rows are not separated by commas</source>
        <translation>它不是有效的 JSON：行之间没有用逗号分隔</translation>
    </message>
    <message>
        <source>Its attributes are no valid JSON</source>
        <translation>它的属性不是有效的 JSON</translation>
    </message>
    <message>
        <source>It is cut short</source>
        <translation>它被截断了</translation>
    </message>
    <message>
        <source>It is cut short: its compressed data have no end</source>
        <translation>它被截断了：压缩数据没有结尾</translation>
    </message>
    <message>
        <source>It is damaged: its compressed data cannot be unpacked</source>
        <translation>它已损坏：压缩数据无法解压</translation>
    </message>
    <message>
        <source>It holds a value that is too long or too deep to be read</source>
        <translation>它包含过长或嵌套过深而无法读取的值</translation>
    </message>
    <message>
        <source>It describes %1 variables; at most %2 can be shown</source>
        <translation>它描述了 %1 个变量；最多可显示 %2 个</translation>
    </message>
    <message>
        <source>Line %1 is damaged: %2</source>
        <translation>第 %1 行已损坏：%2</translation>
    </message>
    <message>
        <source>Observation %1 is damaged: %2</source>
        <translation>观测 %1 已损坏：%2</translation>
    </message>
    <message>
        <source>it is no valid JSON</source>
        <translation>不是有效的 JSON</translation>
    </message>
    <message>
        <source>a text in it has no end</source>
        <translation>其中的文本没有结尾</translation>
    </message>
    <message>
        <source>a text in it holds a control character</source>
        <translation>其中的文本包含控制字符</translation>
    </message>
    <message>
        <source>a text in it has an escape that does not exist</source>
        <translation>其中的文本包含不存在的转义</translation>
    </message>
    <message>
        <source>a number in it is wrong</source>
        <translation>其中的数字有误</translation>
    </message>
    <message>
        <source>It goes on behind its end, which is left out</source>
        <translation>它在结尾之后还有内容，已忽略</translation>
    </message>
    <message>
        <source>It holds rows more than once; the first ones are shown</source>
        <translation>它多次包含行；显示最先出现的</translation>
    </message>
    <message>
        <source>Its attribute %1 stands there more than once; the last one holds</source>
        <translation>它的属性 %1 多次出现；以最后一个为准</translation>
    </message>
    <message>
        <source>It holds a further dataset, %1, which is left out</source>
        <translation>它还包含另一个数据集 %1，已忽略</translation>
    </message>
    <message>
        <source>%1 characters of its attributes are not valid and are shown as �</source>
        <translation>其属性中有 %1 个字符无效，显示为 �</translation>
    </message>
    <message>
        <source>%1: the data type is none of Dataset-JSON; read as texts</source>
        <translation>%1：数据类型不属于 Dataset-JSON；按文本读取</translation>
    </message>
    <message>
        <source>It names %1 of its variables not at all; the first is called %2</source>
        <translation>它有 %1 个变量没有名称；第一个称为 %2</translation>
    </message>
    <message>
        <source>%1: what is no number is shown as missing (%2, first in row %3)</source>
        <translation>%1：不是数字的值显示为缺失（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: what is no whole date or time is shown as missing (%2, first in row %3)</source>
        <translation>%1：不是完整日期或时间的值显示为缺失（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: a list or an object stands for a value (%2, first in row %3)</source>
        <translation>%1：值的位置上是列表或对象（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: NaN is no number in JSON and is shown as missing (%2, first in row %3)</source>
        <translation>%1：NaN 在 JSON 中不是数字，显示为缺失（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: numbers of more digits than can be reckoned with are shown as the file has them (%2, first in row %3)</source>
        <translation>%1：位数超出计算精度的数字按文件原样显示（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: numbers too large to be reckoned with count as infinite (%2, first in row %3)</source>
        <translation>%1：过大而无法计算的数字视为无穷大（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>%1: offsets from UTC are passed over (%2, first in row %3)</source>
        <translation>%1：忽略与 UTC 的时差（%2 个，首先在第 %3 行）</translation>
    </message>
    <message>
        <source>Rows with too few values are filled up with missing ones (%1, first in row %2)</source>
        <translation>值太少的行用缺失值补齐（%1 行，首先在第 %2 行）</translation>
    </message>
    <message>
        <source>Of rows with too many values the last ones are left out (%1, first in row %2)</source>
        <translation>值太多的行省略了最后的值（%1 行，首先在第 %2 行）</translation>
    </message>
    <message>
        <source>Rows that are neither a list nor an object are shown as missing (%1, first in row %2)</source>
        <translation>既不是列表也不是对象的行显示为缺失（%1 行，首先在第 %2 行）</translation>
    </message>
    <message>
        <source>Values of rows under names that no variable has are left out (%1, first in row %2)</source>
        <translation>行中名称不对应任何变量的值已省略（%1 个，首先在第 %2 行）</translation>
    </message>
    <message>
        <source>Invalid characters are shown as � (%1, first in row %2)</source>
        <translation>无效字符显示为 �（%1 个，首先在第 %2 行）</translation>
    </message>
    <message>
        <source>The objects in it are damaged</source>
        <translation>其中的对象已损坏</translation>
    </message>
    <message>
        <source>Its packed data are damaged</source>
        <translation>其压缩数据已损坏</translation>
    </message>
    <message>
        <source>It is packed by %1, which cannot be read</source>
        <translation>它由 %1 压缩，无法读取</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>无法读取该文件</translation>
    </message>
    <message>
        <source>It is no file that R&apos;s saveRDS or save wrote</source>
        <translation>它不是由 R 的 saveRDS 或 save 写出的文件</translation>
    </message>
    <message>
        <source>It was saved by an R older than 1.4, or by none</source>
        <translation>它由早于 1.4 的 R 保存，或并非由 R 保存</translation>
    </message>
    <message>
        <source>Its objects are serialised in version %1, which is unknown</source>
        <translation>其对象以未知的版本 %1 序列化</translation>
    </message>
    <message>
        <source>It has more variables than can be shown</source>
        <translation>其变量多于可显示的数量</translation>
    </message>
    <message>
        <source>It holds no data frame, but %1</source>
        <translation>其中没有数据框，只有 %1</translation>
    </message>
    <message>
        <source>It holds no data frame, and nothing else</source>
        <translation>其中没有数据框，也没有任何其他内容</translation>
    </message>
    <message>
        <source>It holds no data frame named %1</source>
        <translation>其中没有名为 %1 的数据框</translation>
    </message>
    <message>
        <source>The values of %1 are not shown: it holds %2</source>
        <translation>%1 的值未显示：其内容为 %2</translation>
    </message>
    <message>
        <source>The names of its rows are not shown</source>
        <translation>其行名未显示</translation>
    </message>
    <message>
        <source>Its check sum is wrong: some of its values may be damaged</source>
        <translation>其校验和有误：部分值可能已损坏</translation>
    </message>
    <message>
        <source>To unpack it takes more memory than its writer ever asks for</source>
        <translation>解压所需的内存超出其写入程序的任何要求</translation>
    </message>
    <message>
        <source>a data frame</source>
        <translation>数据框</translation>
    </message>
    <message>
        <source>date-times in parts (POSIXlt)</source>
        <translation>分量形式的日期时间（POSIXlt）</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>矩阵</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>a function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>a symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>a call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>a pairlist</source>
        <translation>配对列表</translation>
    </message>
    <message>
        <source>an environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>an S4 object</source>
        <translation>S4 对象</translation>
    </message>
    <message>
        <source>an object of another kind</source>
        <translation>其他类型的对象</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>无法列出该文件夹：%1</translation>
    </message>
    <message>
        <source>It has both USUBJID and APID; one of them is to name the subject</source>
        <translation>它同时有 USUBJID 和 APID；受试者只能由其中一个标识</translation>
    </message>
    <message>
        <source>It has neither USUBJID nor APID</source>
        <translation>它既没有 USUBJID 也没有 APID</translation>
    </message>
    <message>
        <source>It is no SUPP-- dataset, as it lacks %1</source>
        <translation>它不是 SUPP-- 数据集，缺少 %1</translation>
    </message>
    <message>
        <source>None of its rows belongs to %1; RDOMAIN is %2</source>
        <translation>没有任何行属于 %1；RDOMAIN 为 %2</translation>
    </message>
    <message>
        <source>QNAM %1 is also a variable of %2; it is joined as %3</source>
        <translation>QNAM %1 也是 %2 的变量；以 %3 为名合并</translation>
    </message>
    <message>
        <source>QNAM %1 has several labels: %2</source>
        <translation>QNAM %1 有多个标签：%2</translation>
    </message>
    <message>
        <source>QNAM is blank</source>
        <translation>QNAM 为空</translation>
    </message>
    <message>
        <source>QVAL is blank</source>
        <translation>QVAL 为空</translation>
    </message>
    <message>
        <source>RDOMAIN is %1, which is not the domain of the observations</source>
        <translation>RDOMAIN 为 %1，不是这些观测的域</translation>
    </message>
    <message>
        <source>It names no subject</source>
        <translation>未指明受试者</translation>
    </message>
    <message>
        <source>IDVARVAL has no IDVAR</source>
        <translation>有 IDVARVAL 但没有 IDVAR</translation>
    </message>
    <message>
        <source>IDVARVAL is blank</source>
        <translation>IDVARVAL 为空</translation>
    </message>
    <message>
        <source>%1 is numeric, and IDVARVAL is no number</source>
        <translation>%1 是数值型，而 IDVARVAL 不是数字</translation>
    </message>
    <message>
        <source>No observation belongs to this subject</source>
        <translation>该受试者没有任何观测</translation>
    </message>
    <message>
        <source>The subject has no observation with this %1</source>
        <translation>该受试者没有 %1 为此值的观测</translation>
    </message>
    <message>
        <source>Row %1 of %2 has another value: %3</source>
        <translation>%2 的第 %1 行是另一个值：%3</translation>
    </message>
    <message>
        <source>There is no variable named %1 in the data set %2</source>
        <translation>数据集 %2 中没有名为 %1 的变量</translation>
    </message>
    <message>
        <source>The ID variable %1 is numeric in one data set and character in the other</source>
        <translation>ID 变量 %1 在一个数据集中为数值型，在另一个中为字符型</translation>
    </message>
    <message>
        <source>None of the ID variables is in the data set %1</source>
        <translation>数据集 %1 中没有任何 ID 变量</translation>
    </message>
    <message>
        <source>There are more WITH than VAR variables</source>
        <translation>WITH 变量多于 VAR 变量</translation>
    </message>
    <message>
        <source>%1 has a criterion, but is no numeric variable that is compared</source>
        <translation>%1 有标准，但不是被比较的数值变量</translation>
    </message>
    <message>
        <source>The criterion is no number</source>
        <translation>标准不是数值</translation>
    </message>
    <message>
        <source>The delta of RELATIVE lies between 0 and 1, not %1</source>
        <translation>RELATIVE 的 delta 应在 0 与 1 之间，而不是 %1</translation>
    </message>
    <message>
        <source>The method %1 takes no delta</source>
        <translation>方法 %1 没有 delta</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 不是数值</translation>
    </message>
    <message>
        <source>%1 is none of exact, absolute, relative and percent</source>
        <translation>%1 不是 exact、absolute、relative 或 percent</translation>
    </message>
    <message>
        <source>%1 is not VARIABLE=NUMBER[:METHOD]</source>
        <translation>%1 不是 变量=数值[:方法]</translation>
    </message>
</context>
<context>
    <name>FailureNote</name>
    <message>
        <source>Did you mean %1?</source>
        <translation>您是否想输入 %1？</translation>
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
    <message>
        <source>Datasets (%1)</source>
        <translation>数据集 (%1)</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>Failed to save the file: %1</source>
        <translation>保存文件失败：%1</translation>
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
    <name>FolderVariablesDialog</name>
    <message>
        <source>Only &amp;differences</source>
        <translation>仅显示差异(&amp;D)</translation>
    </message>
    <message>
        <source>Reading the folder...</source>
        <translation>正在读取文件夹...</translation>
    </message>
    <message>
        <source>Variables of %1</source>
        <translation>%1 的变量</translation>
    </message>
    <message>
        <source>The folder does not answer</source>
        <translation>该文件夹没有响应</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Search names, labels, formats, datasets</source>
        <translation>搜索名称、标签、格式和数据集</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Reading file %1 of %2</source>
        <translation>正在读取第 %1 个文件，共 %2 个</translation>
    </message>
    <message>
        <source>... and %1 more in the log</source>
        <translation>... 另有 %1 条见日志</translation>
    </message>
    <message>
        <source>Variables: %1 of %2, datasets: %3</source>
        <translation>变量：%1 / %2，数据集：%3</translation>
    </message>
</context>
<context>
    <name>FolderVariablesModel</name>
    <message>
        <source>Numeric</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>数据集</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>差异</translation>
    </message>
</context>
<context>
    <name>FreqTableModel</name>
    <message>
        <source>Freq (%1)</source>
        <translation>频数 (%1)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频数</translation>
    </message>
</context>
<context>
    <name>FreqTableView</name>
    <message>
        <source>Frequency</source>
        <translation>频数</translation>
    </message>
    <message>
        <source>Choose a value of a variable to filter by.</source>
        <translation>请选择用于筛选的变量值。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Clear Library Filter</source>
        <translation>清除库筛选器</translation>
    </message>
    <message>
        <source>Undo Dataset Filter</source>
        <translation>撤销数据集筛选器</translation>
    </message>
    <message>
        <source>Clear Dataset Filter</source>
        <translation>清除数据集筛选器</translation>
    </message>
</context>
<context>
    <name>FrequencyPanel</name>
    <message>
        <source>Rows: %1</source>
        <translation>行：%1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>合计：%1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translation>受试者：%1</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>已选：%1</translation>
    </message>
    <message>
        <source>Selected: %1 (%2 %)</source>
        <translation>已选：%1 (%2 %)</translation>
    </message>
    <message>
        <source>There is no variable %1: observations are counted.</source>
        <translation>没有变量 %1：统计的是观测数。</translation>
    </message>
    <message>
        <source>Counted under other filters than those in force now.</source>
        <translation>统计时的筛选器与当前生效的不同。</translation>
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
    <name>GridEmptiness</name>
    <message>
        <source>No row meets the filters.</source>
        <translation>没有符合筛选条件的行。</translation>
    </message>
    <message>
        <source>%1 takes the last step of the dataset filter back, %2 clears it.</source>
        <translation>%1 撤销数据集筛选的最后一步，%2 清除数据集筛选。</translation>
    </message>
    <message>
        <source>%1 clears the library filter.</source>
        <translation>%1 清除逻辑库筛选。</translation>
    </message>
    <message>
        <source>This dataset has no variables.</source>
        <translation>此数据集没有变量。</translation>
    </message>
    <message>
        <source>This dataset has no observations.</source>
        <translation>此数据集没有观测。</translation>
    </message>
    <message>
        <source>All variables are hidden.
%1 shows them again.</source>
        <translation>所有变量均已隐藏。
%1 可重新显示它们。</translation>
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
    <name>Libraries</name>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Remove Library</source>
        <translation>移除逻辑库</translation>
    </message>
    <message>
        <source>Remove the library &quot;%1&quot; from the workspace?
The files in %2 stay as they are.</source>
        <translation>要从工作区移除逻辑库&quot;%1&quot;吗？
%2 中的文件保持不变。</translation>
    </message>
    <message>
        <source>The library filter of %1 cannot be used: %2</source>
        <translation>无法使用 %1 的逻辑库筛选：%2</translation>
    </message>
</context>
<context>
    <name>LibraryEditorDialog</name>
    <message>
        <source>&amp;Watch the folder for changes</source>
        <translation>监视文件夹的更改(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Show its files when the program starts</source>
        <translation>程序启动时显示其中的文件(&amp;S)</translation>
    </message>
    <message>
        <source>Choose color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>无颜色</translation>
    </message>
    <message>
        <source>Add Library</source>
        <translation>添加逻辑库</translation>
    </message>
    <message>
        <source>Edit Library</source>
        <translation>编辑逻辑库</translation>
    </message>
    <message>
        <source>the name that SAS programs use, such as ADAM</source>
        <translation>SAS 程序使用的名称，例如 ADAM</translation>
    </message>
    <message>
        <source>a condition, such as SAFFL = &quot;Y&quot;</source>
        <translation>条件，例如 SAFFL = &quot;Y&quot;</translation>
    </message>
    <message>
        <source>Becomes the library filter when a dataset is opened from here and none is in force</source>
        <translation>从此处打开数据集且没有生效的逻辑库筛选时，将使用该条件</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Display Name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>SAS Library</source>
        <translation>SAS 逻辑库</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>逻辑库筛选</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>选择目录</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>Invalid Input</source>
        <translation>输入无效</translation>
    </message>
    <message>
        <source>Directory is required.</source>
        <translation>必须指定目录。</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>A library for this directory already exists.</source>
        <translation>该目录已有逻辑库。</translation>
    </message>
</context>
<context>
    <name>LibraryItem</name>
    <message>
        <source>%1
%2, changed %3</source>
        <translation>%1
%2，修改于 %3</translation>
    </message>
    <message>
        <source>Reading the folder...</source>
        <translation>正在读取文件夹...</translation>
    </message>
    <message>
        <source>The folder cannot be listed</source>
        <translation>无法列出该文件夹</translation>
    </message>
    <message>
        <source>No datasets</source>
        <translation>没有数据集</translation>
    </message>
    <message>
        <source>The folder does not answer</source>
        <translation>该文件夹没有响应</translation>
    </message>
</context>
<context>
    <name>LibraryRegistry</name>
    <message>
        <source>Database connection is not available.</source>
        <translation>数据库连接不可用。</translation>
    </message>
    <message>
        <source>The libraries could not be read: %1</source>
        <translation>无法读取逻辑库：%1</translation>
    </message>
    <message>
        <source>A folder whose name is no text cannot be kept as a library: %1</source>
        <translation>名称不是文本的文件夹不能作为逻辑库：%1</translation>
    </message>
    <message>
        <source>The library could not be kept: %1</source>
        <translation>无法保存逻辑库：%1</translation>
    </message>
    <message>
        <source>The library could not be renamed: %1</source>
        <translation>无法重命名逻辑库：%1</translation>
    </message>
    <message>
        <source>The library could not be removed: %1</source>
        <translation>无法移除逻辑库：%1</translation>
    </message>
    <message>
        <source>Unable to begin database transaction: %1</source>
        <translation>无法开始数据库事务：%1</translation>
    </message>
    <message>
        <source>Unable to commit database transaction: %1</source>
        <translation>无法提交数据库事务：%1</translation>
    </message>
    <message>
        <source>Failed to delete library record: %1</source>
        <translation>无法删除逻辑库记录：%1</translation>
    </message>
    <message>
        <source>Failed to update library record: %1</source>
        <translation>无法更新逻辑库记录：%1</translation>
    </message>
    <message>
        <source>Failed to insert library record: %1</source>
        <translation>无法插入逻辑库记录：%1</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Opening %1 …</source>
        <translation>正在打开 %1 …</translation>
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
    <name>LongLineEdit</name>
    <message>
        <source>This is not in force yet. Return runs it, Escape puts back what is.</source>
        <translation>尚未生效。按回车执行，按 Esc 恢复当前生效的内容。</translation>
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
    <message>
        <source>Open SAS Program</source>
        <translation>打开 SAS 程序</translation>
    </message>
    <message>
        <source>Save SAS Program</source>
        <translation>保存 SAS 程序</translation>
    </message>
    <message>
        <source>Save SAS Program As</source>
        <translation>SAS 程序另存为</translation>
    </message>
    <message>
        <source>Reload Dataset</source>
        <translation>重新加载数据集</translation>
    </message>
    <message>
        <source>Read the file anew and keep filters, columns, order and place</source>
        <translation>重新读取文件，并保留筛选、列、顺序和位置</translation>
    </message>
    <message>
        <source>Copy Stored Values</source>
        <translation>复制存储的值</translation>
    </message>
    <message>
        <source>Copy with Names</source>
        <translation>复制（含变量名）</translation>
    </message>
    <message>
        <source>Dataset Properties</source>
        <translation>数据集属性</translation>
    </message>
    <message>
        <source>Join SUPP--...</source>
        <translation>合并 SUPP--...</translation>
    </message>
    <message>
        <source>Show the dataset with its supplemental qualifiers</source>
        <translation>显示数据集及其补充限定值</translation>
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
        <source>Database Initialization Failed</source>
        <translation>数据库初始化失败</translation>
    </message>
    <message>
        <source>The application will now exit.</source>
        <translation>应用程序即将退出。</translation>
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
    <message>
        <source>No browser could show %1</source>
        <translation>没有浏览器可以显示 %1</translation>
    </message>
    <message>
        <source>%1 - Quorlane</source>
        <translation>%1 - Quorlane</translation>
    </message>
</context>
<context>
    <name>ManageLibrariesDialog</name>
    <message>
        <source>Manage Libraries</source>
        <translation>管理逻辑库</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>逻辑库</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>SAS Library</source>
        <translation>SAS 逻辑库</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>逻辑库筛选</translation>
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
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
</context>
<context>
    <name>NamePicker</name>
    <message>
        <source>Search variables</source>
        <translation>搜索变量</translation>
    </message>
</context>
<context>
    <name>OperatorLabel</name>
    <message>
        <source>The keys d and = filter by the current cell with this operator</source>
        <translation>按键 d 和 = 用此运算符按当前单元格筛选</translation>
    </message>
    <message>
        <source>Key d: %1</source>
        <translation>按键 d:%1</translation>
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
    <name>OutputView</name>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>What a comparison of datasets reports stands here.</source>
        <translation>此处显示数据集比较的报告。</translation>
    </message>
    <message>
        <source>Find in output...</source>
        <translation>在输出中查找...</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>要查找的文本</translation>
    </message>
    <message>
        <source>Copy what is selected, or all if nothing is</source>
        <translation>复制所选内容，未选时复制全部</translation>
    </message>
    <message>
        <source>Went on from the beginning</source>
        <translation>已从开头继续</translation>
    </message>
    <message>
        <source>Went on from the end</source>
        <translation>已从末尾继续</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Save Output</source>
        <translation>保存输出</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;Listings (*.lst);;All Files (*)</source>
        <translation>文本文件 (*.txt);;列表 (*.lst);;所有文件 (*)</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Cle&amp;ar</source>
        <translation>清除(&amp;A)</translation>
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
        <source>This statement is passed over.</source>
        <translation>此语句被跳过。</translation>
    </message>
    <message>
        <source>A quote or comment is not closed.</source>
        <translation>引号或注释未结束。</translation>
    </message>
    <message>
        <source>%1 is the SAS name of several variables: %2</source>
        <translation>%1 是多个变量的 SAS 名称：%2</translation>
    </message>
</context>
<context>
    <name>ProgramWindow</name>
    <message>
        <source>SAS program of the active dataset</source>
        <translation>当前数据集的 SAS 程序</translation>
    </message>
    <message>
        <source>The program of what the active dataset shows</source>
        <translation>当前数据集所显示内容的程序</translation>
    </message>
</context>
<context>
    <name>PropertiesWindows</name>
    <message>
        <source>Dataset Properties</source>
        <translation>数据集属性</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>打开文件失败：%1</translation>
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
    <name>RowModel</name>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Value in observation %1</source>
        <translation>观测 %1 的值</translation>
    </message>
</context>
<context>
    <name>RowPane</name>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>SessionNodes</name>
    <message>
        <source>Delete Session</source>
        <translation>删除会话</translation>
    </message>
    <message>
        <source>Do you want to delete the session &quot;%1&quot;?
The files of its datasets stay.</source>
        <translation>要删除会话“%1”吗？
其数据集的文件会保留。</translation>
    </message>
</context>
<context>
    <name>SessionRegistry</name>
    <message>
        <source>Unable to access the session database.</source>
        <translation>无法访问会话数据库。</translation>
    </message>
    <message>
        <source>Failed to start a database transaction.</source>
        <translation>无法启动数据库事务。</translation>
    </message>
    <message>
        <source>Failed to commit the session data.</source>
        <translation>无法提交会话数据。</translation>
    </message>
    <message>
        <source>Failed to persist dataset information for the session.</source>
        <translation>无法保存会话的数据集信息。</translation>
    </message>
    <message>
        <source>Failed to look up existing sessions.</source>
        <translation>无法查找现有会话。</translation>
    </message>
    <message>
        <source>Failed to create a new session record.</source>
        <translation>无法创建新的会话记录。</translation>
    </message>
    <message>
        <source>Failed to update the session timestamp.</source>
        <translation>无法更新会话的时间戳。</translation>
    </message>
    <message>
        <source>Failed to clear existing session datasets.</source>
        <translation>无法清除会话中已有的数据集。</translation>
    </message>
    <message>
        <source>Failed to read the session information.
%1</source>
        <translation>无法读取会话信息。
%1</translation>
    </message>
    <message>
        <source>The selected session no longer exists.</source>
        <translation>所选会话已不存在。</translation>
    </message>
    <message>
        <source>Failed to load datasets for the session.
%1</source>
        <translation>无法加载会话的数据集。
%1</translation>
    </message>
    <message>
        <source>Failed to delete the session.</source>
        <translation>无法删除会话。</translation>
    </message>
</context>
<context>
    <name>Sessions</name>
    <message>
        <source>Save Session</source>
        <translation>保存会话</translation>
    </message>
    <message>
        <source>Session name:</source>
        <translation>会话名称：</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>会话 %1</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; saved</source>
        <translation>会话“%1”已保存</translation>
    </message>
    <message>
        <source>Session name cannot be empty.</source>
        <translation>会话名称不能为空。</translation>
    </message>
    <message>
        <source>No datasets are currently open to include in the session.</source>
        <translation>当前没有打开可加入会话的数据集。</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation>打开会话</translation>
    </message>
    <message>
        <source>The session &quot;%1&quot; does not contain any datasets.</source>
        <translation>会话“%1”不包含任何数据集。</translation>
    </message>
    <message>
        <source>Some datasets could not be restored:
%1</source>
        <translation>部分数据集无法恢复：
%1</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; restored</source>
        <translation>会话“%1”已恢复</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; saved without joined datasets, of which there are %2</source>
        <translation>会话“%1”已保存，不含合并的数据集（共 %2 个）</translation>
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
    <message>
        <source>Show Cell</source>
        <translation>显示单元格</translation>
    </message>
    <message>
        <source>Show the whole text of the current cell.</source>
        <translation>显示当前单元格的完整文本。</translation>
    </message>
    <message>
        <source>Show Row</source>
        <translation>显示行</translation>
    </message>
    <message>
        <source>Show all variables of the current row.</source>
        <translation>显示当前行的所有变量。</translation>
    </message>
</context>
<context>
    <name>SidePanels</name>
    <message>
        <source>Press F in a grid to count the values of the selected variables, or N to count distinct subjects.</source>
        <translation>在表格中按 F 统计所选变量的取值，按 N 统计不同受试者数。</translation>
    </message>
    <message>
        <source>Select a numeric variable in a grid and press S for its statistics. B adds the current variable to those that they are grouped by.</source>
        <translation>在表格中选择一个数值变量并按 S 查看其统计量。按 B 将当前变量加入分组变量。</translation>
    </message>
    <message>
        <source>Open or choose a dataset to see its variables.</source>
        <translation>打开或选择一个数据集以查看其变量。</translation>
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
    <name>StatisticsPanel</name>
    <message>
        <source>Made under other filters or BY variables than those in force now.</source>
        <translation>生成时的筛选器或 BY 变量与当前生效的不同。</translation>
    </message>
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
        <translation>所选变量不是数值型。</translation>
    </message>
    <message>
        <source>No data available under current filters.</source>
        <translation>在当前筛选条件下没有可用数据。</translation>
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
    <name>SuppFindingsDialog</name>
    <message>
        <source>Findings of %1</source>
        <translation>%1 的问题</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>数据集</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>受试者</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Show &amp;Row</source>
        <translation>显示行(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;Other Row</source>
        <translation>显示另一行(&amp;O)</translation>
    </message>
    <message>
        <source>Show Obser&amp;vation</source>
        <translation>显示观测(&amp;V)</translation>
    </message>
</context>
<context>
    <name>SuppJoins</name>
    <message>
        <source>Datasets (%1)</source>
        <translation>数据集 (%1)</translation>
    </message>
    <message>
        <source>Choose the SUPP-- Datasets</source>
        <translation>选择 SUPP-- 数据集</translation>
    </message>
    <message>
        <source>%1: joined variables %2, rows that match no observation %3, conflicts %4</source>
        <translation>%1：合并的变量 %2，不匹配任何观测的行 %3，冲突 %4</translation>
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
    <message>
        <source>no answer in time</source>
        <translation>未及时收到响应</translation>
    </message>
    <message>
        <source>the answer is too large</source>
        <translation>响应过大</translation>
    </message>
    <message>
        <source>The check for updates has failed: %1</source>
        <translation>检查更新失败：%1</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Informat</source>
        <translation>输入格式</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
</context>
<context>
    <name>VariableTableView</name>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Go to Variable</source>
        <translation>转到变量</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频数</translation>
    </message>
    <message>
        <source>Frequency (%1)</source>
        <translation>频数 (%1)</translation>
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
    <message>
        <source>Filter of the workspace</source>
        <translation>工作区筛选</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
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
        <source>Variables of All Datasets</source>
        <translation>所有数据集的变量</translation>
    </message>
    <message>
        <source>Refresh	F5</source>
        <translation>刷新	F5</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Set Library Name	F2</source>
        <translation>设置逻辑库名称	F2</translation>
    </message>
    <message>
        <source>Remove	Del</source>
        <translation>移除	Del</translation>
    </message>
    <message>
        <source>Open	Return</source>
        <translation>打开	Return</translation>
    </message>
    <message>
        <source>Properties	Alt+Return</source>
        <translation>属性	Alt+Return</translation>
    </message>
    <message>
        <source>Join SUPP--</source>
        <translation>合并 SUPP--</translation>
    </message>
    <message>
        <source>Compare With...</source>
        <translation>比较...</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation>打开会话</translation>
    </message>
    <message>
        <source>Delete Session	Del</source>
        <translation>删除会话	Del</translation>
    </message>
    <message>
        <source>Compare...</source>
        <translation>比较...</translation>
    </message>
</context>
</TS>
