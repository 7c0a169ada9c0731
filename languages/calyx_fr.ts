<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Calyx</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The generator will now close and take you to the download site for the latest integration package to be installed.</source>
        <translation>Le générateur va se fermer et vous conduire au site de téléchargement du dernier paquet d’intégration à installer.</translation>
    </message>
    <message>
        <source>You have selected KOV for a currently selected C++ execution command.
Please reselect the Exe Command below.</source>
        <translation>Vous avez choisi KOV, mais la commande choisie est pour C++.
Veuillez choisir à nouveau la commande ci-dessous.</translation>
    </message>
    <message>
        <source>You have selected KOV++ for a currently selected C execution command.
Please reselect the Exe Command below.</source>
        <translation>Vous avez choisi KOV++, mais la commande choisie est pour C.
Veuillez choisir à nouveau la commande ci-dessous.</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name cannot be empty.</source>
        <translation>La famille et le nom du compilateur sont obligatoires.</translation>
    </message>
    <message>
        <source>Compiler Family and Compiler Name match an existing compiler, do you want to overwrite this?</source>
        <translation>Il existe déjà un compilateur de cette famille et de ce nom. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Compiler Name cannot be empty if language: Both is selected.</source>
        <translation>Le nom du compilateur est obligatoire si le langage «&#xa0;Tous&#xa0;» est choisi.</translation>
    </message>
    <message>
        <source>Compiler Name provided does not match the language selected,
or describes a specific language when &apos;Both&apos; is selected.

It is advisabe to ensure that the compiler name reflects the language. Are you sure you wish to continue with this name?</source>
        <translation>Le nom du compilateur ne correspond pas au langage choisi,
ou désigne un langage précis alors que «&#xa0;Tous&#xa0;» est choisi.

Le nom devrait indiquer le langage. Voulez-vous vraiment garder ce nom&#xa0;?</translation>
    </message>
    <message>
        <source>The compiler has not been saved: the catalogue compilers.txt cannot be read whole, and saving would lose what it holds.</source>
        <translation>Le compilateur n’a pas été enregistré&#xa0;: le catalogue compilers.txt ne peut pas être lu en entier, et l’enregistrement en perdrait le contenu.</translation>
    </message>
</context>
<context>
    <name>CalyxBase</name>
    <message>
        <source>Welcome to the Vantor :: Calyx</source>
        <translation>Bienvenue dans Vantor :: Calyx</translation>
    </message>
    <message>
        <source>This wizard will take you through the configuration required to automatically generate your compiler personality. Before we begin, it is best if your compiler is on your PATH, you have identified the executable that runs your compiler from the command line and you have write permissions to the outut directory you wish to specify. To begin, simply select the product in question and provide the output directory and personality name you wish to use.</source>
        <translation>Cet assistant recueille tout ce qu’il faut pour générer la personnalité de votre compilateur. De préférence, le compilateur est dans le PATH, vous connaissez le programme qui le lance en ligne de commande, et vous pouvez écrire dans le dossier de sortie. Choisissez le produit, puis indiquez le dossier de sortie et le nom de la personnalité.</translation>
    </message>
    <message>
        <source>Personality Destination</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>Personality Name</source>
        <translation>Nom de la personnalité</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Destination folder for the Personality.</source>
        <comment>Destination folder for the KOV/KOV++ project.</comment>
        <translation>Dossier de sortie de la personnalité.</translation>
    </message>
    <message>
        <source>Name of the Personality; the extension .p_c is added to it.</source>
        <translation>Nom de la personnalité&#xa0;; l’extension .p_c est ajoutée.</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>Produit</translation>
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
        <translation>Commande</translation>
    </message>
    <message>
        <source>Cross Compiler</source>
        <translation>Compil. croisé</translation>
    </message>
    <message>
        <source>Please select your compiler from the drop down menu (Exe Command button), or if the compiler is not in the list, complete the options including the command to invoke the compiler. Please note, it is important to specify whether your compiler will produce an executable binary on this host or not (cross compiler). Reduce File Size avoids compiler buffer overruns on small embedded compilers.</source>
        <translation>Choisissez votre compilateur dans le menu (bouton «&#xa0;Commande&#xa0;»). S’il n’y figure pas, remplissez les champs, dont la commande qui lance le compilateur. Il importe d’indiquer si le compilateur produit des programmes exécutables sur cette machine ou non (compilateur croisé). «&#xa0;Petits fichiers&#xa0;» évite les débordements de tampon des petits compilateurs embarqués.</translation>
    </message>
    <message>
        <source>Trailing Space</source>
        <translation>Espace après</translation>
    </message>
    <message>
        <source>Compile Command Order </source>
        <translation>Ordre de la commande </translation>
    </message>
    <message>
        <source>Output Flag
(e.g. -o | -e)</source>
        <translation>Option de sortie
(p.&#xa0;ex. -o | -e)</translation>
    </message>
    <message>
        <source>Define Flag
(e.g. -d)</source>
        <translation>Option de macro
(p.&#xa0;ex. -d)</translation>
    </message>
    <message>
        <source>Object Flag
(e.g. -c)</source>
        <translation>Option d’objet
(p.&#xa0;ex. -c)</translation>
    </message>
    <message>
        <source>Object File Ext
(e.g. .obj)</source>
        <translation>Extension objet
(p.&#xa0;ex. .obj)</translation>
    </message>
    <message>
        <source>Reduce file size</source>
        <translation>Petits fichiers</translation>
    </message>
    <message>
        <source>          &lt;exe&gt; &lt;src&gt;</source>
        <translation>          &lt;exe&gt; &lt;src&gt;</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <comment>Location of CodeWarrior install directory.</comment>
        <translation>La commande qui lance le compilateur en ligne de commande.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to denote executable output to a file.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>L’option avec laquelle le compilateur nomme le fichier exécutable.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to define a macro/define on the command line.</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>L’option qui définit une macro en ligne de commande.</translation>
    </message>
    <message>
        <source>Specify the flag used by the compiler to produce (and leave behind) an object file</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>L’option avec laquelle le compilateur produit (et laisse) un fichier objet</translation>
    </message>
    <message>
        <source>Specify the extension of the object file produced by the compiler</source>
        <comment>Name of the KOV/KOV++ project.</comment>
        <translation>L’extension du fichier objet que produit le compilateur</translation>
    </message>
    <message>
        <source>Specify the order of the flags specified to the compile.</source>
        <translation>L’ordre des options dans la commande.</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Compile Command - </source>
        <translation>Compile Command - </translation>
    </message>
    <message>
        <source>Search Directories</source>
        <translation>Dossiers de recherche</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Please specify the starting level directories that contain compiler include files and compiler binary files. The generator will recurse into these directories checking for whether they are on the compile path, and extracting defines and keywords. Please note that because the generator recurses, do not specify &quot;&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;&quot; or &quot;&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;&quot; as a directory.</source>
        <translation>Indiquez les dossiers sous lesquels se trouvent les en-têtes et les programmes du compilateur. Le générateur parcourt aussi leurs sous-dossiers, vérifie si le compilateur y cherche, et en extrait les macros et les mots-clés. N’indiquez donc pas «&#xa0;&lt;font face=&quot;Courier New&quot;&gt;C:/&lt;/font&gt;&#xa0;» ni «&#xa0;&lt;font face=&quot;Courier New&quot;&gt;/usr&lt;/font&gt;&#xa0;».</translation>
    </message>
    <message>
        <source>Specify the starting level directories for all system includes (note sub directories are not required to be listed).</source>
        <translation>Les dossiers principaux de tous les en-têtes système (inutile d’indiquer les sous-dossiers).</translation>
    </message>
    <message>
        <source>Please specify any compiler switches or implicit defines that would effect the nature of the compilation and/or pre-processing of the system header files. Enter these values as comma or line delimted (eg ONE,TWO=2, THREE=3).</source>
        <translation>Indiquez les options du compilateur et les macros implicites qui influent sur la compilation ou le prétraitement des en-têtes système. Séparez les valeurs par des virgules ou des sauts de ligne (p.&#xa0;ex. ONE,TWO=2, THREE=3).</translation>
    </message>
    <message>
        <source>External Compiler Switches</source>
        <translation>Options du compilateur</translation>
    </message>
    <message>
        <source>Implicit Compiler Defines</source>
        <translation>Macros implicites</translation>
    </message>
    <message>
        <source>Specify all compiler switches that could affect/determine compilation of test files.</source>
        <translation>Toutes les options du compilateur qui peuvent influer sur la compilation des fichiers à analyser.</translation>
    </message>
    <message>
        <source>Specify all compiler defines external to the header files that could affect/determine compilation of test files.</source>
        <translation>Toutes les macros définies hors des en-têtes qui peuvent influer sur la compilation des fichiers à analyser.</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>Enreg. le journal</translation>
    </message>
    <message>
        <source>Save Compiler</source>
        <translation>Enreg. compilateur</translation>
    </message>
    <message>
        <source>Product &amp; Output</source>
        <translation>Produit et sortie</translation>
    </message>
    <message>
        <source>Compiler Command</source>
        <translation>Commande du compilateur</translation>
    </message>
    <message>
        <source>Defines &amp; Switches</source>
        <translation>Macros et options</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Output Flag</source>
        <translation>Option de sortie</translation>
    </message>
    <message>
        <source>&lt;exe file&gt;</source>
        <translation>&lt;exe file&gt;</translation>
    </message>
    <message>
        <source>Define Flag</source>
        <translation>Option de macro</translation>
    </message>
    <message>
        <source>Object Flag</source>
        <translation>Option d’objet</translation>
    </message>
    <message>
        <source>&lt;src file&gt;</source>
        <translation>&lt;src file&gt;</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Étape en cours</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Destination folder for the Personality.</source>
        <translation>Dossier de sortie de la personnalité.</translation>
    </message>
    <message>
        <source>Destination folder does not exist please select a different folder.</source>
        <translation>Ce dossier n’existe pas, choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Specify the command required to invoke the compiler from the command line.</source>
        <translation>La commande qui lance le compilateur en ligne de commande.</translation>
    </message>
    <message>
        <source>Command specified is not on the path, please amend the path or fully qualify this command.</source>
        <translation>Commande absente du PATH. Complétez le PATH ou indiquez le chemin complet.</translation>
    </message>
    <message>
        <source>Please complete the command as per the &lt;specify&gt; entries.</source>
        <translation>Complétez la commande là où figure &lt;specify&gt;.</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>       Save As New   </source>
        <translation>       Nouvelle entrée   </translation>
    </message>
    <message>
        <source>Compiler Family</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>Compiler Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langage</translation>
    </message>
    <message>
        <source>Save As New</source>
        <translation>Nouvelle entrée</translation>
    </message>
    <message>
        <source>Family of the compiler: one of the list, or a new one.</source>
        <translation>Famille du compilateur&#xa0;: de la liste, ou une nouvelle.</translation>
    </message>
    <message>
        <source>Name of the compiler without its language, which is added to it.</source>
        <translation>Nom du compilateur sans le langage, qui est ajouté.</translation>
    </message>
    <message>
        <source>Select Product</source>
        <translation>Produit</translation>
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
        <translation>Tous</translation>
    </message>
    <message>
        <source>       Save Under Existing   </source>
        <translation>       Entrée existante   </translation>
    </message>
    <message>
        <source>Save Under Existing</source>
        <translation>Entrée existante</translation>
    </message>
    <message>
        <source>You can either overwirte the existing compiler selected from the list with any changes you have made to the options, defines or switches; or simply create a new entry in the compiler list. Note that if you select &quot;Save As New&quot; and leave the Compiler Name blank it will use the name &quot;C&quot; or &quot;C++&quot; depending on the language specified. You cannot leave the Compiler Name blank if you select Both. Any changes made to an existing compiler entry cannot be undone.</source>
        <translation>Vous pouvez remplacer le compilateur choisi dans la liste, avec vos changements d’options et de macros, ou créer une nouvelle entrée. Avec «&#xa0;Nouvelle entrée&#xa0;» et un nom vide, l’entrée s’appelle «&#xa0;C&#xa0;» ou «&#xa0;C++&#xa0;» selon le langage&#xa0;; avec «&#xa0;Tous&#xa0;», le nom est obligatoire. Le remplacement d’une entrée existante est définitif.</translation>
    </message>
    <message>
        <source>Save Compiler Details</source>
        <translation>Enregistrer le compilateur</translation>
    </message>
    <message>
        <source>Select or Enter New ...</source>
        <translation>Choisir ou saisir ...</translation>
    </message>
</context>
</TS>
