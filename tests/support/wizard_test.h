#pragma once

#include "calyx.h"
#include "log_browser.h"
#include "row.h"

#include <QtWidgets>
#include <functional>
#include <memory>

/// A program folder of its own for one test, which is the working directory while it lives. On the
/// PATH are a compiler "cc" and the stand-in generator.
class ProgramFolder
{
public:
    ProgramFolder();
    ~ProgramFolder();

    /// The path of \a name in the folder, with slashes.
    QString path(const QString &name) const;
    QString read(const QString &name) const;
    void write(const QString &name, const QByteArray &content) const;
    bool hasStopped(const QString &name) const;
    /// The arguments that the stand-in generator was started with, each followed by a line feed.
    QString generatorArguments() const;
    /// What the stand-in generator does from now on, see there.
    static void instruct(const QByteArray &instructions);

private:
    QTemporaryDir m_folder;
    QString m_previousDirectory;
    QByteArray m_previousPath;
};

/// A wizard on the screen, and what a user does with it.
class WizardUser
{
public:
    /// Opens the wizard in the current directory.
    WizardUser();

    Calyx *operator->() const { return m_wizard.get(); }
    Calyx *wizard() const { return m_wizard.get(); }
    /// Destroys the wizard, and with it what it has started.
    void destroy() { m_wizard.reset(); }

    void click(QWidget *widget) const;
    void press(QWizard::WizardButton button) const;
    /// Replaces the text of \a edit by typing.
    void type(QWidget *edit, const QString &text) const;
    bool nextIsEnabled() const;
    bool finishIsEnabled() const;

    /// Answers the first page with the folder "out" and a name, and the second with "cc".
    void answerFirstPages() const;
    /// The same, and goes on to the review.
    void walkToReview() const;
    /// Waits until no run goes on.
    void waitForTheEnd() const;
    /// Presses Finish and waits until the run has ended. Returns the text of the message box that
    /// it ended with, which is closed; empty when there was none.
    QString finish() const;

private:
    std::unique_ptr<Calyx> m_wizard;
};

/// Speaks a language as the wizard does while this lives: "en", or that of a translation.
class Language
{
public:
    explicit Language(const QString &name);

    /// The names of all languages.
    static QStringList all();

private:
    QTranslator m_translators[2];
};

/// The texts of the rows of \a list.
QStringList rows(const QListWidget *list);

/// Does \a action and gives the modal dialog that it opens to \a answer, which must close it. False
/// when none was opened.
bool withDialog(const std::function<void()> &action, const std::function<void(QWidget *)> &answer);

/// The text of the message box that \a action opens, which is closed; empty when it opens none.
QString messageOf(const std::function<void()> &action);

/// Does \a action and chooses \a path in the file dialog that it opens; an empty path cancels the
/// dialog. Returns the folder that the dialog opened in, empty when there was none.
QString withFileDialog(const std::function<void()> &action, const QString &path);
