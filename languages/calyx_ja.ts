<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Calyx</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The generator will now close and take you to the download site for the latest integration package to be installed.</source>
        <translation>ジェネレーターを終了し、最新の統合パッケージをダウンロードするサイトを開きます。</translation>
    </message>
    <message>
        <source>You have selected KOV for a currently selected C++ execution command.
Please reselect the Exe Command below.</source>
        <translation>KOV が選択されましたが、現在の実行コマンドは C++ 用です。
下の実行コマンドを選択し直してください。</translation>
    </message>
    <message>
        <source>You have selected KOV++ for a currently selected C execution command.
Please reselect the Exe Command below.</source>
        <translation>KOV++ が選択されましたが、現在の実行コマンドは C 用です。
下の実行コマンドを選択し直してください。</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name cannot be empty.</source>
        <translation>コンパイラーのファミリーと名前は空にできません。</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name match an existing compiler, do you want to overwrite this?</source>
        <translation>同じファミリーと名前のコンパイラーがすでにあります。上書きしますか?</translation>
    </message>
    <message>
        <source>Compiler Name cannot be empty if language: Both is selected.</source>
        <translation>言語に「両方」を選択した場合、コンパイラー名は空にできません。</translation>
    </message>
    <message>
        <source>Compiler Name provided does not match the language selected,
or describes a specific language when &apos;Both&apos; is selected.

It is advisabe to ensure that the compiler name reflects the language. Are you sure you wish to continue with this name?</source>
        <translation>コンパイラー名が選択した言語と一致しないか、
「両方」を選択したのに特定の言語を表しています。

名前は言語を表すものにすることをお勧めします。この名前で続行しますか?</translation>
    </message>
    <message>
        <source>The compiler has not been saved: the catalogue compilers.txt cannot be read whole, and saving would lose what it holds.</source>
        <translation>コンパイラーは保存されませんでした。カタログ compilers.txt を最後まで読み取れないため、保存すると内容が失われます。</translation>
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
        <translation>このウィザードでは、コンパイラーパーソナリティを自動生成するための設定を行います。始める前に、コンパイラーが PATH にあること、コマンドラインから起動する実行ファイルがわかっていること、出力先フォルダーへの書き込み権限があることを確認してください。まず製品を選択し、出力先フォルダーとパーソナリティの名前を指定します。</translation>
    </message>
    <message>
        <source>Personality Destination</source>
        <translation>出力先フォルダー</translation>
    </message>
    <message>
        <source>Personality Name</source>
        <translation>パーソナリティ名</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Destination folder for the Personality.</source>
        <comment>Destination folder for the KOV/KOV++ project.</comment>
        <translation>パーソナリティの出力先フォルダー。</translation>
    </message>
    <message>
        <source>Name of the Personality; the extension .p_c is added to it.</source>
        <translation>パーソナリティの名前。拡張子 .p_c が付きます。</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>製品の選択</translation>
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
        <translation>実行コマンド</translation>
    </message>
    <message>
        <source>Cross Compiler</source>
        <translation>クロス開発</translation>
    </message>
    <message>
        <source>Please select your compiler from the drop down menu (Exe Command button), or if the compiler is not in the list, complete the options including the command to invoke the compiler. Please note, it is important to specify whether your compiler will produce an executable binary on this host or not (cross compiler). Reduce File Size avoids compiler buffer overruns on small embedded compilers.</source>
        <translation>「実行コマンド」のメニューからコンパイラーを選択するか、一覧になければ各項目を入力します。このホストで動かないバイナリーを生成するなら「クロス開発」を選びます。「ファイルを縮小」は小さな組み込みコンパイラーのバッファーあふれを防ぎます。</translation>
    </message>
    <message>
        <source>Trailing Space</source>
        <translation>末尾に空白</translation>
    </message>
    <message>
        <source>Compile Command Order </source>
        <translation>コマンドの順序 </translation>
    </message>
    <message>
        <source>Output Flag
(e.g. -o | -e)</source>
        <translation>出力フラグ
(例: -o | -e)</translation>
    </message>
    <message>
        <source>Define Flag
(e.g. -d)</source>
        <translation>定義フラグ
(例: -d)</translation>
    </message>
    <message>
        <source>Object Flag
(e.g. -c)</source>
        <translation>オブジェクト
(例: -c)</translation>
    </message>
    <message>
        <source>Object File Ext
(e.g. .obj)</source>
        <translation>拡張子
(例: .obj)</translation>
    </message>
    <message>
        <source>Reduce file size</source>
        <translation>ファイルを縮小</translation>
    </message>
    <message>
        <source>          &lt;exe&gt; &lt;src&gt;</source>
        <translation>          &lt;exe&gt; &lt;src&gt;</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <comment>Location of CodeWarrior install directory.</comment>
        <translation>コマンドラインからコンパイラーを起動するコマンドを指定します。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to denote executable output to a file.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>実行ファイルの出力先を指定するコンパイラーのフラグを指定します。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to define a macro/define on the command line.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>コマンドラインでマクロを定義するコンパイラーのフラグを指定します。</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to produce (and leave behind) an object file</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>オブジェクトファイルを生成して残すコンパイラーのフラグを指定します</translation>
    </message>
    <message>
        <source>Specify the extension of the object file produced by the compiler</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>コンパイラーが生成するオブジェクトファイルの拡張子を指定します</translation>
    </message>
    <message>
        <source>Specify the order of the flags specified to the compile.</source>
        <translation>コンパイルコマンドでのフラグの順序を指定します。</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Compile Command - </source>
        <translation>Compile Command - </translation>
    </message>
    <message>
        <source>Search Directories</source>
        <translation>検索ディレクトリ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Please specify the starting level directories that contain compiler include files and compiler binary files. The generator will recurse into these directories checking for whether they are on the compile path, and extracting defines and keywords. Please note that because the generator recurses, do not specify &quot;&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;&quot; or &quot;&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;&quot; as a directory.</source>
        <translation>コンパイラーのヘッダーとプログラムを含む最上位のディレクトリを指定してください。下位のディレクトリもたどり、マクロとキーワードを抽出するので、「&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;」や「&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;」は指定しないでください。</translation>
    </message>
    <message>
        <source>Specify the starting level directories for all system includes (note sub directories are not required to be listed).</source>
        <translation>すべてのシステムヘッダーの最上位ディレクトリを指定します (サブディレクトリは不要です)。</translation>
    </message>
    <message>
        <source>Please specify any compiler switches or implicit defines that would effect the nature of the compilation and/or pre-processing of the system header files. Enter these values as comma or line delimted (eg ONE,TWO=2, THREE=3).</source>
        <translation>システムヘッダーの処理に影響するスイッチと暗黙のマクロを、コンマまたは改行で区切って指定してください (例: ONE,TWO=2, THREE=3)。</translation>
    </message>
    <message>
        <source>External Compiler Switches</source>
        <translation>外部コンパイラースイッチ</translation>
    </message>
    <message>
        <source>Implicit Compiler Defines</source>
        <translation>暗黙のマクロ定義</translation>
    </message>
    <message>
        <source>Specify all compiler switches that could affect/determine compilation of test files.</source>
        <translation>解析対象ファイルのコンパイルに影響しうるコンパイラースイッチをすべて指定します。</translation>
    </message>
    <message>
        <source>Specify all compiler defines external to the header files that could affect/determine compilation of test files.</source>
        <translation>解析対象ファイルのコンパイルに影響しうる、ヘッダー以外で定義されるマクロをすべて指定します。</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>Save Compiler</source>
        <translation>コンパイラー保存</translation>
    </message>
    <message>
        <source>Product &amp; Output</source>
        <translation>製品と出力</translation>
    </message>
    <message>
        <source>Compiler Command</source>
        <translation>コンパイラーのコマンド</translation>
    </message>
    <message>
        <source>Defines &amp; Switches</source>
        <translation>マクロとスイッチ</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Output Flag</source>
        <translation>出力フラグ</translation>
    </message>
    <message>
        <source>&lt;exe file&gt;</source>
        <translation>&lt;exe file&gt;</translation>
    </message>
    <message>
        <source>Define Flag</source>
        <translation>定義フラグ</translation>
    </message>
    <message>
        <source>Object Flag</source>
        <translation>オブジェクトフラグ</translation>
    </message>
    <message>
        <source>&lt;src file&gt;</source>
        <translation>&lt;src file&gt;</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>現在のステップ</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Destination folder for the Personality.</source>
        <translation>パーソナリティの出力先フォルダー。</translation>
    </message>
    <message>
        <source>Destination folder does not exist please select a different folder.</source>
        <translation>出力先フォルダーがありません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <translation>コマンドラインからコンパイラーを起動するコマンドを指定します。</translation>
    </message>
    <message>
        <source>Command specified is not on the path, please amend the path or fully qualify this command.</source>
        <translation>コマンドが PATH にありません。PATH を修正するか、フルパスで指定してください。</translation>
    </message>
    <message>
        <source>Please complete the command as per the &lt;specify&gt; entries.</source>
        <translation>&lt;specify&gt; の部分を補ってコマンドを完成させてください。</translation>
    </message>
</context>
<context>
    <name>SaveCompilerDetailsBase</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>       Save As New   </source>
        <translation>       新規保存   </translation>
    </message>
    <message>
        <source>Compiler Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Compiler Name</source>
        <translation>コンパイラー名</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Save As New</source>
        <translation>新規保存</translation>
    </message>
    <message>
        <source>Family of the compiler: one of the list, or a new one.</source>
        <translation>コンパイラーのファミリー。一覧から選ぶか、新しく入力します。</translation>
    </message>
    <message>
        <source>Name of the compiler without its language, which is added to it.</source>
        <translation>言語を除いたコンパイラーの名前。言語は自動で付きます。</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>製品の選択</translation>
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
        <translation>両方</translation>
    </message>
    <message>
        <source>       Save Under Existing   </source>
        <translation>       既存に上書き   </translation>
    </message>
    <message>
        <source>Save Under Existing</source>
        <translation>既存に上書き</translation>
    </message>
    <message>
        <source>You can either overwirte the existing compiler selected from the list with any changes you have made to the options, defines or switches; or simply create a new entry in the compiler list. Note that if you select &quot;Save As New&quot; and leave the Compiler Name blank it will use the name &quot;C&quot; or &quot;C++&quot; depending on the language specified. You cannot leave the Compiler Name blank if you select Both. Any changes made to an existing compiler entry cannot be undone.</source>
        <translation>一覧で選択した既存のコンパイラーを、オプション、マクロ、スイッチの変更内容で上書きするか、コンパイラー一覧に新しい項目を作成できます。「新規保存」を選び、コンパイラー名を空にすると、言語に応じて 「C」または「C++」が名前になります。「両方」の場合は空にできません。既存の項目への変更は元に戻せません。</translation>
    </message>
    <message>
        <source>Save Compiler Details</source>
        <translation>コンパイラーの保存</translation>
    </message>
    <message>
        <source>Select or Enter New ...</source>
        <translation>選択または新規入力 ...</translation>
    </message>
</context>
</TS>
