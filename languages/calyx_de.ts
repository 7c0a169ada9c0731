<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Calyx</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The generator will now close and take you to the download site for the latest integration package to be installed.</source>
        <translation>Der Generator wird jetzt geschlossen und führt Sie zur Download-Seite, von der Sie das neueste Integrationspaket installieren.</translation>
    </message>
    <message>
        <source>You have selected KOV for a currently selected C++ execution command.
Please reselect the Exe Command below.</source>
        <translation>Sie haben KOV gewählt, der gewählte Exe-Befehl ist aber für C++.
Bitte wählen Sie unten den Exe-Befehl neu.</translation>
    </message>
    <message>
        <source>You have selected KOV++ for a currently selected C execution command.
Please reselect the Exe Command below.</source>
        <translation>Sie haben KOV++ gewählt, der gewählte Exe-Befehl ist aber für C.
Bitte wählen Sie unten den Exe-Befehl neu.</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name cannot be empty.</source>
        <translation>Compilerfamilie und Compilername dürfen nicht leer sein.</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name match an existing compiler, do you want to overwrite this?</source>
        <translation>Compilerfamilie und Compilername sind die eines bestehenden Compilers. Möchten Sie ihn überschreiben?</translation>
    </message>
    <message>
        <source>Compiler Name cannot be empty if language: Both is selected.</source>
        <translation>Der Compilername darf nicht leer sein, wenn bei der Sprache „Beide“ gewählt ist.</translation>
    </message>
    <message>
        <source>Compiler Name provided does not match the language selected,
or describes a specific language when &apos;Both&apos; is selected.

It is advisabe to ensure that the compiler name reflects the language. Are you sure you wish to continue with this name?</source>
        <translation>Der Compilername passt nicht zur gewählten Sprache
oder nennt eine bestimmte Sprache, obwohl „Beide“ gewählt ist.

Der Name sollte die Sprache wiedergeben. Möchten Sie diesen Namen wirklich verwenden?</translation>
    </message>
    <message>
        <source>The compiler has not been saved: the catalogue compilers.txt cannot be read whole, and saving would lose what it holds.</source>
        <translation>Der Compiler wurde nicht gesichert: Der Katalog compilers.txt lässt sich nicht ganz lesen, und beim Sichern ginge sein Inhalt verloren.</translation>
    </message>
</context>
<context>
    <name>CalyxBase</name>
    <message>
        <source>Welcome to the Vantor :: Calyx</source>
        <translation>Willkommen bei Vantor :: Calyx</translation>
    </message>
    <message>
        <source>This wizard will take you through the configuration required to automatically generate your compiler personality. Before we begin, it is best if your compiler is on your PATH, you have identified the executable that runs your compiler from the command line and you have write permissions to the outut directory you wish to specify. To begin, simply select the product in question and provide the output directory and personality name you wish to use.</source>
        <translation>Dieser Assistent fragt nach allem, woraus die Personality Ihres Compilers erzeugt wird. Am besten liegt der Compiler im PATH, Sie kennen das Programm, das ihn auf der Kommandozeile aufruft, und Sie dürfen in das Verzeichnis schreiben, in dem die Personality liegen soll. Wählen Sie nun das Produkt, und geben Sie das Zielverzeichnis und den Namen der Personality an.</translation>
    </message>
    <message>
        <source>Personality Destination</source>
        <translation>Zielverzeichnis</translation>
    </message>
    <message>
        <source>Personality Name</source>
        <translation>Name der Personality</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Destination folder for the Personality.</source>
        <comment>Destination folder for the KOV/KOV++ project.</comment>
        <translation>Zielverzeichnis der Personality.</translation>
    </message>
    <message>
        <source>Name of the Personality; the extension .p_c is added to it.</source>
        <translation>Name der Personality; die Endung .p_c wird ergänzt.</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>Produkt wählen</translation>
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
        <translation>Exe-Befehl</translation>
    </message>
    <message>
        <source>Cross Compiler</source>
        <translation>Cross-Compiler</translation>
    </message>
    <message>
        <source>Please select your compiler from the drop down menu (Exe Command button), or if the compiler is not in the list, complete the options including the command to invoke the compiler. Please note, it is important to specify whether your compiler will produce an executable binary on this host or not (cross compiler). Reduce File Size avoids compiler buffer overruns on small embedded compilers.</source>
        <translation>Wählen Sie Ihren Compiler aus dem Menü (Schaltfläche „Exe-Befehl“). Fehlt er dort, füllen Sie die Felder aus, auch den Befehl, der den Compiler aufruft. Wichtig ist, ob er auf diesem Rechner ausführbare Programme erzeugt oder nicht (Cross-Compiler). „Kleine Dateien“ vermeidet Pufferüberläufe in kleinen Embedded-Compilern.</translation>
    </message>
    <message>
        <source>Trailing Space</source>
        <translation>Leerz. danach</translation>
    </message>
    <message>
        <source>Compile Command Order </source>
        <translation>Reihenfolge im Befehl </translation>
    </message>
    <message>
        <source>Output Flag
(e.g. -o | -e)</source>
        <translation>Ausgabe-Flag
(z.&#xa0;B. -o | -e)</translation>
    </message>
    <message>
        <source>Define Flag
(e.g. -d)</source>
        <translation>Define-Flag
(z.&#xa0;B. -d)</translation>
    </message>
    <message>
        <source>Object Flag
(e.g. -c)</source>
        <translation>Objekt-Flag
(z.&#xa0;B. -c)</translation>
    </message>
    <message>
        <source>Object File Ext
(e.g. .obj)</source>
        <translation>Objekt-Endung
(z.&#xa0;B. .obj)</translation>
    </message>
    <message>
        <source>Reduce file size</source>
        <translation>Kleine Dateien</translation>
    </message>
    <message>
        <source>          &lt;exe&gt; &lt;src&gt;</source>
        <translation>          &lt;exe&gt; &lt;src&gt;</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <comment>Location of CodeWarrior install directory.</comment>
        <translation>Der Befehl, der den Compiler auf der Kommandozeile aufruft.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to denote executable output to a file.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>Das Flag, mit dem der Compiler die ausführbare Datei benennt.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to define a macro/define on the command line.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>Das Flag, mit dem auf der Kommandozeile ein Makro definiert wird.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to produce (and leave behind) an object file</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>Das Flag, mit dem der Compiler eine Objektdatei erzeugt (und zurücklässt).</translation>
    </message>
    <message>
        <source>Specify the extension of the object file produced by the compiler</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>Die Endung der Objektdatei, die der Compiler erzeugt.</translation>
    </message>
    <message>
        <source>Specify the order of the flags specified to the compile.</source>
        <translation>Die Reihenfolge, in der die Flags im Befehl stehen.</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Compile Command - </source>
        <translation>Compile Command - </translation>
    </message>
    <message>
        <source>Search Directories</source>
        <translation>Suchverzeichnisse</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Please specify the starting level directories that contain compiler include files and compiler binary files. The generator will recurse into these directories checking for whether they are on the compile path, and extracting defines and keywords. Please note that because the generator recurses, do not specify &quot;&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;&quot; or &quot;&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;&quot; as a directory.</source>
        <translation>Geben Sie die Verzeichnisse an, unter denen die Header und Programme des Compilers liegen. Der Generator durchsucht auch alle Unterverzeichnisse, prüft, ob der Compiler dort sucht, und liest Defines und Schlüsselwörter heraus. Geben Sie deshalb nicht „&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;“ oder „&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;“ an.</translation>
    </message>
    <message>
        <source>Specify the starting level directories for all system includes (note sub directories are not required to be listed).</source>
        <translation>Die obersten Verzeichnisse aller System-Header (Unterverzeichnisse brauchen Sie nicht aufzuführen).</translation>
    </message>
    <message>
        <source>Please specify any compiler switches or implicit defines that would effect the nature of the compilation and/or pre-processing of the system header files. Enter these values as comma or line delimted (eg ONE,TWO=2, THREE=3).</source>
        <translation>Geben Sie die Compilerschalter und impliziten Defines an, die beeinflussen, wie die System-Header übersetzt oder vom Präprozessor verarbeitet werden. Trennen Sie die Werte durch Kommas oder Zeilenumbrüche (z.&#xa0;B. ONE,TWO=2, THREE=3).</translation>
    </message>
    <message>
        <source>External Compiler Switches</source>
        <translation>Externe Compilerschalter</translation>
    </message>
    <message>
        <source>Implicit Compiler Defines</source>
        <translation>Implizite Compiler-Defines</translation>
    </message>
    <message>
        <source>Specify all compiler switches that could affect/determine compilation of test files.</source>
        <translation>Alle Compilerschalter, die das Übersetzen der zu prüfenden Dateien beeinflussen können.</translation>
    </message>
    <message>
        <source>Specify all compiler defines external to the header files that could affect/determine compilation of test files.</source>
        <translation>Alle Defines von außerhalb der Header, die das Übersetzen der zu prüfenden Dateien beeinflussen können.</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Log sichern</translation>
    </message>
    <message>
        <source>Save Compiler</source>
        <translation>Compiler sichern</translation>
    </message>
    <message>
        <source>Product &amp; Output</source>
        <translation>Produkt &amp; Ausgabe</translation>
    </message>
    <message>
        <source>Compiler Command</source>
        <translation>Compilerbefehl</translation>
    </message>
    <message>
        <source>Defines &amp; Switches</source>
        <translation>Defines &amp; Schalter</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Output Flag</source>
        <translation>Ausgabe-Flag</translation>
    </message>
    <message>
        <source>&lt;exe file&gt;</source>
        <translation>&lt;exe file&gt;</translation>
    </message>
    <message>
        <source>Define Flag</source>
        <translation>Define-Flag</translation>
    </message>
    <message>
        <source>Object Flag</source>
        <translation>Objekt-Flag</translation>
    </message>
    <message>
        <source>&lt;src file&gt;</source>
        <translation>&lt;src file&gt;</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktueller Schritt</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Destination folder for the Personality.</source>
        <translation>Zielverzeichnis der Personality.</translation>
    </message>
    <message>
        <source>Destination folder does not exist please select a different folder.</source>
        <translation>Das Zielverzeichnis gibt es nicht, bitte ein anderes wählen.</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <translation>Der Befehl, der den Compiler auf der Kommandozeile aufruft.</translation>
    </message>
    <message>
        <source>Command specified is not on the path, please amend the path or fully qualify this command.</source>
        <translation>Den Befehl gibt es nicht im PATH. Bitte PATH ergänzen oder den vollen Pfad angeben.</translation>
    </message>
    <message>
        <source>Please complete the command as per the &lt;specify&gt; entries.</source>
        <translation>Bitte im Befehl einsetzen, wofür &lt;specify&gt; steht.</translation>
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
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>       Save As New   </source>
        <translation>       Als neuen Eintrag   </translation>
    </message>
    <message>
        <source>Compiler Family</source>
        <translation>Compilerfamilie</translation>
    </message>
    <message>
        <source>Compiler Name</source>
        <translation>Compilername</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Save As New</source>
        <translation>Als neuen Eintrag</translation>
    </message>
    <message>
        <source>Family of the compiler: one of the list, or a new one.</source>
        <translation>Familie des Compilers: eine aus der Liste oder eine neue.</translation>
    </message>
    <message>
        <source>Name of the compiler without its language, which is added to it.</source>
        <translation>Name des Compilers ohne die Sprache, sie wird ergänzt.</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>Produkt wählen</translation>
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
        <translation>Beide</translation>
    </message>
    <message>
        <source>       Save Under Existing   </source>
        <translation>       In bestehenden Eintrag   </translation>
    </message>
    <message>
        <source>Save Under Existing</source>
        <translation>In bestehenden Eintrag</translation>
    </message>
    <message>
        <source>You can either overwirte the existing compiler selected from the list with any changes you have made to the options, defines or switches; or simply create a new entry in the compiler list. Note that if you select &quot;Save As New&quot; and leave the Compiler Name blank it will use the name &quot;C&quot; or &quot;C++&quot; depending on the language specified. You cannot leave the Compiler Name blank if you select Both. Any changes made to an existing compiler entry cannot be undone.</source>
        <translation>Sie können den Compiler, der in der Liste gewählt ist, mit Ihren Änderungen an Optionen, Defines und Schaltern überschreiben oder einen neuen Eintrag in der Compilerliste anlegen. Bleibt bei „Als neuen Eintrag“ der Compilername leer, heißt der Eintrag je nach Sprache „C“ oder „C++“; bei „Beide“ darf er nicht leer sein. Änderungen an einem bestehenden Eintrag lassen sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Save Compiler Details</source>
        <translation>Compilerangaben sichern</translation>
    </message>
    <message>
        <source>Select or Enter New ...</source>
        <translation>Wählen oder neu eingeben</translation>
    </message>
</context>
</TS>
