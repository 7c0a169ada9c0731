<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Calyx</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The generator will now close and take you to the download site for the latest integration package to be installed.</source>
        <translation>生成器即将关闭，并打开下载网站，以便安装最新的集成包。</translation>
    </message>
    <message>
        <source>You have selected KOV for a currently selected C++ execution command.
Please reselect the Exe Command below.</source>
        <translation>您选择了 KOV，但当前的执行命令用于 C++。
请在下方重新选择执行命令。</translation>
    </message>
    <message>
        <source>You have selected KOV++ for a currently selected C execution command.
Please reselect the Exe Command below.</source>
        <translation>您选择了 KOV++，但当前的执行命令用于 C。
请在下方重新选择执行命令。</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name cannot be empty.</source>
        <translation>编译器系列和编译器名称不能为空。</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name match an existing compiler, do you want to overwrite this?</source>
        <translation>已有相同系列和名称的编译器。要覆盖它吗？</translation>
    </message>
    <message>
        <source>Compiler Name cannot be empty if language: Both is selected.</source>
        <translation>语言选择“两者”时，编译器名称不能为空。</translation>
    </message>
    <message>
        <source>Compiler Name provided does not match the language selected,
or describes a specific language when &apos;Both&apos; is selected.

It is advisabe to ensure that the compiler name reflects the language. Are you sure you wish to continue with this name?</source>
        <translation>编译器名称与所选语言不符，
或者选择了“两者”，名称却指明了某一种语言。

建议让名称体现语言。确定要使用此名称吗？</translation>
    </message>
    <message>
        <source>The compiler has not been saved: the catalogue compilers.txt cannot be read whole, and saving would lose what it holds.</source>
        <translation>编译器未保存：无法完整读取编译器列表文件 compilers.txt，保存会丢失其中的内容。</translation>
    </message>
</context>
<context>
    <name>CalyxBase</name>
    <message>
        <source>Welcome to the Vantor :: Calyx</source>
        <translation>Vantor :: Calyx</translation>
    </message>
    <message>
        <source>This wizard will take you through the configuration required to automatically generate your compiler personality. Before we begin, it is best if your compiler is on your PATH, you have identified the executable that runs your compiler from the command line and you have write permissions to the outut directory you wish to specify. To begin, simply select the product in question and provide the output directory and personality name you wish to use.</source>
        <translation>本向导将引导您完成自动生成编译器特性文件所需的设置。开始之前，最好确保编译器在 PATH 中，知道从命令行运行编译器的可执行文件，并且对输出文件夹有写权限。请先选择产品，再指定输出文件夹和特性文件的名称。</translation>
    </message>
    <message>
        <source>Personality Destination</source>
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>Personality Name</source>
        <translation>特性文件名称</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Destination folder for the Personality.</source>
        <comment>Destination folder for the KOV/KOV++ project.</comment>
        <translation>特性文件的输出文件夹。</translation>
    </message>
    <message>
        <source>Name of the Personality; the extension .p_c is added to it.</source>
        <translation>特性文件的名称；会加上扩展名 .p_c。</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>选择产品</translation>
    </message>
    <message>
        <source>KOV</source>
        <translation>KOV</translation>
    </message>
    <message>
        <source>KOV++</source>
        <translation>KOV++</translation>
    </message>
    <message>
        <source>Exe Command</source>
        <translation>执行命令</translation>
    </message>
    <message>
        <source>Cross Compiler</source>
        <translation>交叉编译器</translation>
    </message>
    <message>
        <source>Please select your compiler from the drop down menu (Exe Command button), or if the compiler is not in the list, complete the options including the command to invoke the compiler. Please note, it is important to specify whether your compiler will produce an executable binary on this host or not (cross compiler). Reduce File Size avoids compiler buffer overruns on small embedded compilers.</source>
        <translation>请从下拉菜单（“执行命令”按钮）中选择编译器；如果不在列表中，请填写各项，包括调用编译器的命令。请注意，务必说明编译器生成的可执行文件能否在本机运行（交叉编译器则不能）。“减小文件大小”可避免小型嵌入式编译器的缓冲区溢出。</translation>
    </message>
    <message>
        <source>Trailing Space</source>
        <translation>尾随空格</translation>
    </message>
    <message>
        <source>Compile Command Order </source>
        <translation>编译命令顺序 </translation>
    </message>
    <message>
        <source>Output Flag
(e.g. -o | -e)</source>
        <translation>输出选项
(如 -o | -e)</translation>
    </message>
    <message>
        <source>Define Flag
(e.g. -d)</source>
        <translation>宏定义选项
(如 -d)</translation>
    </message>
    <message>
        <source>Object Flag
(e.g. -c)</source>
        <translation>目标文件选项
(如 -c)</translation>
    </message>
    <message>
        <source>Object File Ext
(e.g. .obj)</source>
        <translation>目标文件扩展名
(如 .obj)</translation>
    </message>
    <message>
        <source>Reduce file size</source>
        <translation>减小文件大小</translation>
    </message>
    <message>
        <source>          &lt;exe&gt; &lt;src&gt;</source>
        <translation>          &lt;exe&gt; &lt;src&gt;</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <comment>Location of CodeWarrior install directory.</comment>
        <translation>指定从命令行调用编译器所需的命令。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to denote executable output to a file.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>指定编译器用来指明可执行输出文件的选项。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to define a macro/define on the command line.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>指定编译器用来在命令行上定义宏的选项。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to produce (and leave behind) an object file</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>指定编译器用来生成（并保留）目标文件的选项</translation>
    </message>
    <message>
        <source>Specify the extension of the object file produced by the compiler</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>指定编译器生成的目标文件的扩展名</translation>
    </message>
    <message>
        <source>Specify the order of the flags specified to the compile.</source>
        <translation>指定编译命令中各选项的顺序。</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Compile Command - </source>
        <translation>Compile Command - </translation>
    </message>
    <message>
        <source>Search Directories</source>
        <translation>搜索目录</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Please specify the starting level directories that contain compiler include files and compiler binary files. The generator will recurse into these directories checking for whether they are on the compile path, and extracting defines and keywords. Please note that because the generator recurses, do not specify &quot;&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;&quot; or &quot;&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;&quot; as a directory.</source>
        <translation>请指定包含编译器头文件和程序的顶层目录。生成器会递归进入这些目录，检查它们是否在编译器的搜索路径中，并提取宏和关键字。由于会递归搜索，请不要指定“&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;”或“&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;”。</translation>
    </message>
    <message>
        <source>Specify the starting level directories for all system includes (note sub directories are not required to be listed).</source>
        <translation>指定所有系统头文件的顶层目录（无需列出子目录）。</translation>
    </message>
    <message>
        <source>Please specify any compiler switches or implicit defines that would effect the nature of the compilation and/or pre-processing of the system header files. Enter these values as comma or line delimted (eg ONE,TWO=2, THREE=3).</source>
        <translation>请指定会影响系统头文件编译或预处理的编译器开关和隐式宏定义。各值用逗号或换行分隔（例如 ONE,TWO=2, THREE=3）。</translation>
    </message>
    <message>
        <source>External Compiler Switches</source>
        <translation>外部编译器开关</translation>
    </message>
    <message>
        <source>Implicit Compiler Defines</source>
        <translation>隐式编译器宏定义</translation>
    </message>
    <message>
        <source>Specify all compiler switches that could affect/determine compilation of test files.</source>
        <translation>指定可能影响被测文件编译的所有编译器开关。</translation>
    </message>
    <message>
        <source>Specify all compiler defines external to the header files that could affect/determine compilation of test files.</source>
        <translation>指定可能影响被测文件编译的、头文件之外的所有宏定义。</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>Save Compiler</source>
        <translation>保存编译器</translation>
    </message>
    <message>
        <source>Product &amp; Output</source>
        <translation>产品与输出</translation>
    </message>
    <message>
        <source>Compiler Command</source>
        <translation>编译器命令</translation>
    </message>
    <message>
        <source>Defines &amp; Switches</source>
        <translation>宏与开关</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Output Flag</source>
        <translation>输出选项</translation>
    </message>
    <message>
        <source>&lt;exe file&gt;</source>
        <translation>&lt;exe file&gt;</translation>
    </message>
    <message>
        <source>Define Flag</source>
        <translation>宏定义选项</translation>
    </message>
    <message>
        <source>Object Flag</source>
        <translation>目标文件选项</translation>
    </message>
    <message>
        <source>&lt;src file&gt;</source>
        <translation>&lt;src file&gt;</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>当前步骤</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Destination folder for the Personality.</source>
        <translation>特性文件的输出文件夹。</translation>
    </message>
    <message>
        <source>Destination folder does not exist please select a different folder.</source>
        <translation>输出文件夹不存在，请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <translation>指定从命令行调用编译器所需的命令。</translation>
    </message>
    <message>
        <source>Command specified is not on the path, please amend the path or fully qualify this command.</source>
        <translation>指定的命令不在 PATH 中，请修改 PATH 或使用完整路径。</translation>
    </message>
    <message>
        <source>Please complete the command as per the &lt;specify&gt; entries.</source>
        <translation>请按 &lt;specify&gt; 处的提示补全命令。</translation>
    </message>
</context>
<context>
    <name>SaveCompilerDetailsBase</name>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>       Save As New   </source>
        <translation>       另存为新条目   </translation>
    </message>
    <message>
        <source>Compiler Family</source>
        <translation>编译器系列</translation>
    </message>
    <message>
        <source>Compiler Name</source>
        <translation>编译器名称</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Save As New</source>
        <translation>另存为新条目</translation>
    </message>
    <message>
        <source>Family of the compiler: one of the list, or a new one.</source>
        <translation>编译器系列：从列表中选择，或输入新的。</translation>
    </message>
    <message>
        <source>Name of the compiler without its language, which is added to it.</source>
        <translation>不含语言的编译器名称；语言会自动加上。</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>选择产品</translation>
    </message>
    <message>
        <source> C </source>
        <translation> C </translation>
    </message>
    <message>
        <source> C++ </source>
        <translation> C++ </translation>
    </message>
    <message>
        <source> Both </source>
        <translation>两者</translation>
    </message>
    <message>
        <source>       Save Under Existing   </source>
        <translation>       保存到现有条目   </translation>
    </message>
    <message>
        <source>Save Under Existing</source>
        <translation>保存到现有条目</translation>
    </message>
    <message>
        <source>You can either overwirte the existing compiler selected from the list with any changes you have made to the options, defines or switches; or simply create a new entry in the compiler list. Note that if you select &quot;Save As New&quot; and leave the Compiler Name blank it will use the name &quot;C&quot; or &quot;C++&quot; depending on the language specified. You cannot leave the Compiler Name blank if you select Both. Any changes made to an existing compiler entry cannot be undone.</source>
        <translation>您可以用对选项、宏或开关所做的更改覆盖列表中选定的现有编译器，也可以在编译器列表中新建条目。选择“另存为新条目”而编译器名称留空时，将按所选语言使用名称“C”或“C++”；选择“两者”时名称不能留空。对现有条目所做的更改无法撤消。</translation>
    </message>
    <message>
        <source>Save Compiler Details</source>
        <translation>保存编译器信息</translation>
    </message>
    <message>
        <source>Select or Enter New ...</source>
        <translation>选择或输入新的 ...</translation>
    </message>
</context>
</TS>
