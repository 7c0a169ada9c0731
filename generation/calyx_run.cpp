#include "app/calyx.h"
#include "forms/log_browser.h"
#include "generation/answers.h"
#include "generation/generator_arguments.h"
#include "generation/generator_process.h"
#include "platform/paths.h"
#include "platform/text_file.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QTextStream>

namespace {

struct LogFile
{
    const char *heading;
    const char *name;
};

const LogFile logFiles[] = {
    {"\n\nCommand Attempted:\n", "compile.bat"},
    {"\n ---- stdout details ----\n", "stdout.log"},
    {"\n ---- stderr details ----\n", "stderr.log"},
};

// A line is laid out anew with every read that makes it longer, so that one without end would
// freeze the window; beyond this many characters it is shown in pieces.
const int longestLine = 8'000;

} // namespace

void Calyx::accept()
{
    auto *process = new GeneratorProcess(this);
    generatorProcess = process;
    DetailsText->setText(QStringLiteral("Initialising Compiler Personality Generation ...\n"));
    unfinishedLineOf = nullptr;
    connect(process, &QProcess::readyReadStandardOutput, this, &Calyx::readFromStdout);
    connect(process, &QProcess::finished, this, &Calyx::processExit);
    connect(process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            appendToDetails(
                QStringLiteral("Compiler Personality Generation could not be executed: Please "
                               "ensure Bexlor is set on the path.\n"));
        }
    });
    process->startProgram(generatorArguments(answers()));
    setFinishEnabled(Page4, false);
}

void Calyx::readFromStdout()
{
    auto *process = qobject_cast<GeneratorProcess *>(sender());
    const QString text = process->readText();
    if (text.isEmpty())
        return;
    // A read may end in the middle of a line; what follows belongs to the same line.
    if (unfinishedLineOf == process)
        DetailsText->continueLine(text);
    else
        DetailsText->append(text);
    const QTextBlock lastLine = DetailsText->document()->lastBlock();
    const bool goesOn = !text.endsWith(QLatin1Char('\n')) && lastLine.length() < longestLine;
    unfinishedLineOf = goesOn ? process : nullptr;
}

void Calyx::appendToDetails(const QString &text)
{
    DetailsText->append(text);
    unfinishedLineOf = nullptr;
}

void Calyx::processExit()
{
    // A run may end while a later one goes on, so the end is that of the sender.
    const auto *process = qobject_cast<GeneratorProcess *>(sender());
    if (process->exitStatus() == QProcess::NormalExit) {
        SaveLogBtn->setEnabled(true);
        process->exitCode() == 0 ? reportSuccess() : reportFailure();
    }
    writeSettings();
}

void Calyx::reportSuccess()
{
    appendToDetails(QStringLiteral("Personality Generated Successfully!"));
    setButtonText(QWizard::CancelButton, tr("Close"));
    AddCompilerBtn->setEnabled(true);
}

void Calyx::reportFailure()
{
    QMessageBox::about(nullptr, QStringLiteral("Calyx"),
                       QStringLiteral("Personality Generation Failed!\nPlease check the details on "
                                      "screen and try again."));
    showFailureDetails();
}

void Calyx::showFailureDetails()
{
    for (const LogFile &file : logFiles) {
        appendToDetails(QLatin1String(file.heading));
        showLogFile(QLatin1String(file.name));
    }
}

void Calyx::showLogFile(const QString &name)
{
    std::optional<QString> text = platform::readTextFile(name);
    if (!text)
        return;
    // Each line is followed by an empty one; all are appended at once, since appending lays out.
    QTextStream stream(&*text);
    QString line, lines;
    while (stream.readLineInto(&line))
        lines += line + QLatin1String("\n\n");
    DetailsText->append(lines);
}

void Calyx::SaveLogBtn_clicked()
{
    QFileDialog dialog(this, QStringLiteral("Save Log File as .."),
                       platform::hostPath(PersonDestEdit->text()),
                       QStringLiteral("Log Files (*.txt *.log)"));
    dialog.setObjectName(QStringLiteral("save log dialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (dialog.exec() != QDialog::Accepted)
        return;
    platform::writeTextFile(dialog.selectedFiles().value(0),
                            detailsText + QLatin1Char('\n') + DetailsText->toPlainText());
}
