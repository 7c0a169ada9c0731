#pragma once

#include "catalogue/compiler_catalogue.h"
#include "forms/calyx_base.h"

#include <QIcon>
#include <QMenu>

class GeneratorProcess;
class SubPopupMenu;
struct Answers;
struct CompileCommand;

/// The wizard: asks for a compiler on five pages, has the generator make its personality, and
/// shows how that went.
class Calyx : public CalyxBase
{
    Q_OBJECT

public:
    explicit Calyx(QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
                   Qt::WindowFlags flags = {});
    ~Calyx() override;

    /// What the process is to return once the wizard has been left: 0 after a personality has been
    /// generated, else 1.
    int exitCode = 0;

    // catalogue/calyx_menu.cpp
    /// Fills the pages from the compiler of that family and name, or sends the user to where its
    /// integration package is downloaded and leaves the wizard.
    void applyCatalogueCompiler(QString family, QString name);

public slots:
    // catalogue/calyx_menu.cpp
    void ProductRadioBtn_clicked();

    // generation/calyx_order.cpp
    void CmdOrderUpBtn_clicked();
    void CmdOrderDwnBtn_clicked();

    // app/calyx_page_checks.cpp
    void CmpHdrDirAddBtn_clicked();
    void CmpHdrDirEditBtn_clicked();
    void CmpHdrDirDeleteBtn_clicked();
    void PersonDestBrowseBtn_clicked();

    // catalogue/calyx_save.cpp
    void AddCompilerBtn_clicked();

    // generation/calyx_run.cpp
    void SaveLogBtn_clicked();

    // app/calyx_page_checks.cpp
    void Page0LineEdit_textchanged(const QString &);
    void Page1LineEdit_textchanged(const QString &);
    void CrossCmpCheckBox_clicked();

    // generation/calyx_order.cpp
    void CmpExeFlagChkBox_clicked();
    void CmpDefFlagChkBox_clicked();

    // app/calyx_navigation.cpp
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

    // generation/calyx_run.cpp
    void readFromStdout();
    void processExit();

    // app/calyx_navigation.cpp
    void next() override;

    // generation/calyx_run.cpp: Finish, which starts a run and leaves the wizard open
    void accept() override;

    // app/calyx_navigation.cpp: every way of leaving the wizard
    void reject() override;

protected:
    // app/calyx_navigation.cpp
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    // app/calyx.cpp
    void connectWidgets();
    void installFilters();

    // app/calyx_navigation.cpp
    void connectSideBars();
    void loadSideBarImages();
    void showOtherPage(WizardPage *page);
    bool nextIsEnabled() const;

    // app/calyx_page_checks.cpp
    QString askForDirectory(const QString &start, const QString &caption);
    static QString normalisePath(QString path);

    // app/calyx_settings.cpp
    void readSettings();
    void writeSettings();

    // catalogue/calyx_menu.cpp
    void buildExeCommandMenu();
    void clearExeCommandMenu();
    void applyProductToMenus(const QString &code);
    void applyRecord(const CompilerRecord &record);
    void downloadIntegration(const QString &package);
    void resetCompilerFields();

    // catalogue/calyx_save.cpp
    void loadCatalogue();
    void saveCatalogue();
    void updateRecordFromAnswers(CompilerRecord &record) const;
    void addRecordFromAnswers(const QString &family, const QString &name);

    // generation/calyx_order.cpp
    CompileCommand compileCommand() const;
    void applyOrderString(const QString &order);
    void updateCommandPreview();
    void moveOrderItem(int distance);

    // generation/calyx_command_check.cpp
    bool checkExeCommand();

    // generation/calyx_review.cpp
    Answers answers() const;
    void buildReview();

    // generation/calyx_run.cpp
    void appendToDetails(const QString &text);
    void reportSuccess();
    void reportFailure();
    void showFailureDetails();
    void showLogFile(const QString &name);

    GeneratorProcess *generatorProcess = nullptr; ///< the newest run; a child, like earlier ones
    const GeneratorProcess *unfinishedLineOf = nullptr; ///< whose line DetailsText ends in, if any
    QString productCode = QStringLiteral("kov");        ///< "kov" or "kovpp"
    QString detailsText;                                ///< the review as it is kept
    QString lastDirectory;                              ///< where the directory dialogs start
    bool commandValid = false;       ///< result of the last check of the compiler command
    QString templatePersonalityFile; ///< these three came with a compiler from the catalogue
    QString forceIncludeFile;
    QString substituteHeaders;
    QString selectedCompilerFamily;
    QString selectedCompilerName;
    CompilerCatalogue catalogue;
    QString compilerFamilySet; ///< when not empty, the menu shows only families that occur in it
    QMenu exeCommandMenu;
    QList<SubPopupMenu *> familyMenus;

    struct StepImages
    {
        QIcon highlighted;
        QIcon plain;
    };
    StepImages sideBarImages[5]; ///< in the order of the pages

    // Translated in the toolkit's general context, not the wizard's own.
    const QString destToolTip;
    const QString destMissingText;
    const QString cmdToolTip;
    const QString cmdNotOnPathText;
    const QString cmdSpecifyText;
};
