#pragma once

#include "answer_table.h"
#include "calyx_base.h"
#include "catalogue_file.h"
#include "compiler_menu.h"
#include "sub_popup_menu.h"

#include <functional>

class GeneratorRun;

/// The wizard: asks for a compiler on five pages, has the generator make its personality, and
/// shows how that went. Most of its slots hand on to an object of the folder that they are about.
class Calyx : public CalyxBase, public CompilerMenuOwner
{
    Q_OBJECT

public:
    explicit Calyx(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                   Qt::WindowFlags flags = {});

    /// What the process is to return once the wizard has been left: 0 after a personality has been
    /// generated, else 1.
    int exitCode = 0;

    // calyx_page_checks.cpp
    /// \a path with every slash made a backslash.
    static QString normalisePath(QString path);
    /// Whether the compiler command can be used; marks it on its page. An empty one cannot, and
    /// leaves the page as it is.
    bool checkExeCommand();

    // calyx_settings.cpp
    /// Shows the answers that settings.txt holds, and locks those that it asks to be locked. What
    /// it does not hold stays; so does everything when it cannot be read or is too large.
    void readSettings();
    /// Writes the last review and the answers that it lacks to settings.txt. Says nothing when that
    /// fails.
    void writeSettings();

    // calyx_catalogue.cpp
    /// Adds what the catalogue file holds to the catalogue.
    void loadCatalogue();
    /// False when the file does not hold the catalogue now; says so where that might surprise.
    bool saveCatalogue();
    /// Gives the Exe Command button a menu of the catalogue with every compiler enabled.
    void buildExeCommandMenu();
    /// Enables the compilers of the menu that are for the product \a code, and no others.
    void applyProductToMenus(const QString &code);
    /// Fills the pages from the compiler of that family and name, or sends the user to where its
    /// integration package is downloaded and leaves the wizard.
    void applyCatalogueCompiler(QString family, QString name) override;
    /// Empties what a compiler of the catalogue has filled in, for a product that it is not for.
    void resetCompilerFields();
    /// Puts what the pages hold into \a record. Its name, its family and its files stay.
    void updateRecordFromAnswers(CompilerRecord &record) const;
    /// Puts a record of that family and name, with all that the answers say of the compiler, behind
    /// the others of the catalogue. Neither the file nor the list of families changes.
    void addRecordFromAnswers(const QString &family, const QString &name);

    // calyx_generation.cpp
    /// Shows the compile command as the pages have it now on the three pages that preview it.
    void updateCommandPreview();
    // The next three stay for others: the wizard itself makes do with the functions of these names
    // below, which need no window.
    /// The order that the pages show, as the tokens that a record and the generator take.
    QString commandOrderString() const;
    /// Shows the order of the tokens in \a order; what it does not mention is not shown. A trailing
    /// space box stays as it is where \a order lacks its flag.
    void applyOrderString(const QString &order);
    /// The lines of \a text as one line with commas between them.
    static QString toCommaList(QString text);
    /// Tidies the fields of one line, shows all answers on the last page, keeps their text for the
    /// settings and the log, and enables Finish.
    void buildReview();
    /// Shows what a failed run has left in the current folder: its command and what that wrote.
    void showFailureDetails();
    /// Appends the lines of the file \a name to what the last page shows. Nothing when it is
    /// missing or too large to be read.
    void showLogFile(const QString &name);

public slots:
    // calyx_catalogue.cpp
    void ProductRadioBtn_clicked();

    // calyx_generation.cpp
    void CmdOrderUpBtn_clicked();
    void CmdOrderDwnBtn_clicked();

    // calyx_page_checks.cpp
    void CmpHdrDirAddBtn_clicked();
    void CmpHdrDirEditBtn_clicked();
    void CmpHdrDirDeleteBtn_clicked();
    void PersonDestBrowseBtn_clicked();

    // calyx_catalogue.cpp
    void AddCompilerBtn_clicked();

    // calyx_generation.cpp
    void SaveLogBtn_clicked();

    // calyx_page_checks.cpp
    void Page0LineEdit_textchanged(const QString &);
    void Page1LineEdit_textchanged(const QString &);
    void CrossCmpCheckBox_clicked();

    // calyx_generation.cpp
    void CmpExeFlagChkBox_clicked();
    void CmpDefFlagChkBox_clicked();

    // calyx_navigation.cpp
    void PrdctBtn_clicked();
    void CmpBtn_clicked();
    void DefBtn_clicked();
    void SrchBtn_clicked();
    void RevBtn_clicked();
    void P0_CmpBtn_clicked();
    void P0_DefBtn_clicked();
    void P0_SrchBtn_clicked();
    void P0_RevBtn_clicked();
    void P1_DefBtn_clicked();
    void P1_SrchBtn_clicked();
    void P1_RevBtn_clicked();

    // calyx_generation.cpp
    void readFromStdout();
    void processExit();

    // calyx_navigation.cpp
    void next() override;

    // calyx_generation.cpp: Finish, which starts a run and leaves the wizard open
    void accept() override;

    // calyx_navigation.cpp: every way of leaving the wizard
    void reject() override;

protected:
    // calyx_navigation.cpp
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    // calyx.cpp
    void connectWidgets();
    void installFilters();
    /// The answers with what the pages hold now.
    Answers currentAnswers() const;
    /// Takes the answers from the pages, lets \a change work on them, and shows those of a role.
    void changeAnswers(const std::function<void(Answers &)> &change, AnswerField::Role shown);

    // calyx_navigation.cpp
    void connectSideBar();
    void showOtherPage(WizardPage *page);
    bool nextIsEnabled() const;

    // calyx_page_checks.cpp
    QString askForDirectory(const QString &start, const QString &caption);

    // calyx_catalogue.cpp
    /// Puts the catalogue into the menu, as the product filters it.
    void showCatalogue();
    /// Fills the pages with what \a record says.
    void fillFrom(const CompilerRecord &record);
    /// The family and the name that the user saves the compiler under; one is empty when it is not
    /// to be saved.
    std::pair<QString, QString> askWhereToSave() const;
    /// Puts the answers in the place of that record, or behind the others when there is none.
    void putIntoCatalogue(const QString &family, const QString &name);
    void downloadIntegration(const QString &package);

    // calyx_generation.cpp
    void moveOrderItem(int distance);
    void showFailedStart();
    /// Whether the pointer over the review tells that the generator works.
    void showBusy(bool on);

    Answers answers;       ///< as they were last taken from the pages; the unseen ones as they are
    QString detailsText;   ///< the review as it is kept
    QString lastDirectory; ///< where the directory dialogs start
    bool commandValid = false; ///< result of the last check of the compiler command
    CompilerCatalogue catalogue;
    CatalogueFile catalogueFile {generator::catalogue};
    CompilerMenu exeCommandMenu {this};
    GeneratorRun *generatorProcess = nullptr; ///< the newest run; a child, like earlier ones

    // Translated in the toolkit's general context, not the wizard's own.
    const QString destToolTip;
    const QString destMissingText;
    const QString cmdToolTip;
    const QString cmdNotOnPathText;
    const QString cmdSpecifyText;
};
