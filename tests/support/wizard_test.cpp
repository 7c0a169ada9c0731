#include "wizard_test.h"

#include "files.h"
#include "form_font.h"

ProgramFolder::ProgramFolder()
    : m_previousDirectory(QDir::currentPath()), m_previousPath(qgetenv("PATH"))
{
    const QDir folder(m_folder.path());
    for (const char *name : {"bin", "tools", "images", "out"})
        folder.mkdir(QLatin1String(name));
    for (const QString &image : QDir(QStringLiteral(SOURCE_FOLDER "/images")).entryList({"*.bmp"}))
        QFile::copy(QStringLiteral(SOURCE_FOLDER "/images/") + image, path("images/" + image));
    QFile::copy(QStringLiteral(STAND_IN), path("tools/Bexlor.exe"));
    write("tools/cc", "");
    QDir::setCurrent(path("bin"));
    qputenv("PATH", path("tools").toLocal8Bit());
    instruct("");
}

ProgramFolder::~ProgramFolder()
{
    QDir::setCurrent(m_previousDirectory);
    qputenv("PATH", m_previousPath);
}

QString ProgramFolder::path(const QString &name) const
{
    return m_folder.filePath(name);
}

QString ProgramFolder::read(const QString &name) const
{
    return QString::fromLocal8Bit(readTestFile(path(name)));
}

QString ProgramFolder::generatorArguments() const
{
    return QString::fromUtf8(readTestFile(path("bin/arguments.txt"))).remove('\r');
}

void ProgramFolder::write(const QString &name, const QByteArray &content) const
{
    writeTestFile(path(name), content);
}

bool ProgramFolder::hasStopped(const QString &name) const
{
    return ::hasStopped(path(name));
}

void ProgramFolder::instruct(const QByteArray &instructions)
{
    qputenv("STAND_IN", instructions);
}

WizardUser::WizardUser()
{
    // The system's own file dialogs cannot be answered from here.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(QStringLiteral("windows"));
    QApplication::setFont(formFont());
    m_wizard = std::make_unique<Calyx>();
    m_wizard->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_wizard.get()));
}

void WizardUser::click(QWidget *widget) const
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

void WizardUser::press(QWizard::WizardButton button) const
{
    click(m_wizard->button(button));
}

void WizardUser::type(QWidget *edit, const QString &text) const
{
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

bool WizardUser::nextIsEnabled() const
{
    return m_wizard->button(QWizard::NextButton)->isEnabled();
}

bool WizardUser::finishIsEnabled() const
{
    return m_wizard->button(QWizard::FinishButton)->isEnabled();
}

void WizardUser::answerFirstPages() const
{
    type(m_wizard->PersonDestEdit, "..\\out");
    type(m_wizard->PersonNameEdit, "mine");
    press(QWizard::NextButton);
    type(m_wizard->CmpExeEdit, "cc");
}

void WizardUser::walkToReview() const
{
    answerFirstPages();
    for (int page = 1; page < 4; ++page)
        press(QWizard::NextButton);
}

void WizardUser::waitForTheEnd() const
{
    const auto isRunning = [](const QProcess *process) {
        return process->state() != QProcess::NotRunning;
    };
    const QList<QProcess *> runs = m_wizard->findChildren<QProcess *>();
    QTRY_VERIFY_WITH_TIMEOUT(std::none_of(runs.begin(), runs.end(), isRunning), patience);
}

QString WizardUser::finish() const
{
    return messageOf([this] {
        press(QWizard::FinishButton);
        waitForTheEnd();
    });
}

/// The folder of the translations, on whatever drive the working directory is.
static QString translations()
{
    return QCoreApplication::applicationDirPath() + "/..";
}

Language::Language(const QString &name)
{
    const QString prefixes[] = {"qt_", "calyx_"};
    for (int i = 0; i < 2 && name != "en"; ++i) {
        if (!m_translators[i].load(prefixes[i] + name, translations()))
            qFatal("no translation %s", qPrintable(prefixes[i] + name));
        QCoreApplication::installTranslator(&m_translators[i]);
    }
}

QStringList Language::all()
{
    QStringList names {"en"};
    for (const QString &file : QDir(translations()).entryList({"calyx_*.qm"}))
        names << QFileInfo(file).baseName().section('_', 1);
    return names;
}

QStringList rows(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}

bool withDialog(const std::function<void()> &action, const std::function<void(QWidget *)> &answer)
{
    bool opened = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || opened)
            return;
        opened = true;
        answer(dialog);
    });
    timer.start(10);
    action();
    return opened;
}

QString messageOf(const std::function<void()> &action)
{
    QString text;
    withDialog(action, [&text](QWidget *widget) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        text = box->text();
        box->done(QMessageBox::Ok);
        QVERIFY(!box->windowIcon().isNull() && !box->windowTitle().isEmpty());
    });
    return text;
}

QString withFileDialog(const std::function<void()> &action, const QString &path)
{
    QString folder;
    withDialog(action, [&](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        folder = dialog->directory().path();
        const bool isFolder = QFileInfo(path).isDir();
        if (isFolder)
            dialog->setDirectory(path);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(isFolder ? QString() : path);
        QDialog *anyDialog = dialog;
        path.isEmpty() ? anyDialog->reject() : anyDialog->accept();
        const bool asksForFolder = dialog->fileMode() == QFileDialog::Directory;
        QCOMPARE(dialog->testOption(QFileDialog::ShowDirsOnly), asksForFolder);
    });
    return folder;
}
