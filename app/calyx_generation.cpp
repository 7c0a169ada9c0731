#include "calyx.h"

#include "argument_texts.h"
#include "comma_list.h"
#include "command_order.h"
#include "form_answers.h"
#include "generator_arguments.h"
#include "generator_run.h"
#include "host_path.h"
#include "log_browser.h"
#include "review.h"
#include "text_file.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

struct LogFile
{
    QLatin1StringView heading;
    QLatin1StringView name;
};

const LogFile logFiles[] = {
    {"\n\nCommand Attempted:\n"_L1, generator::attemptedCommand},
    {"\n ---- stdout details ----\n"_L1, generator::standardOutput},
    {"\n ---- stderr details ----\n"_L1, generator::standardError},
};

/// The log's name is that of the personality, with another extension.
QString logName(const Answers &answers)
{
    const QString personality = personalityPath(answers.destination, answers.name);
    return QFileInfo(platform::hostPath(personality)).completeBaseName() + ".log"_L1;
}

} // namespace

void Calyx::updateCommandPreview()
{
    const QString preview = commandPreview(answersOn(*this, answers, AnswerField::InCommand));
    CmpCmdOrder->setText(preview);
    for (QLabel *label : {DefSwitchCompileCmdTxt, SearchCompileCmdTxt})
        label->setText("Compile Command - "_L1 + preview);
}

QString Calyx::commandOrderString() const
{
    return ::commandOrderString(currentAnswers());
}

void Calyx::applyOrderString(const QString &order)
{
    changeAnswers([&order](Answers &changed) { ::applyOrderString(changed, order); },
                  AnswerField::InCommand);
}

QString Calyx::toCommaList(QString text)
{
    return ::toCommaList(std::move(text));
}

void Calyx::CmpExeFlagChkBox_clicked()
{
    updateCommandPreview();
}

void Calyx::CmpDefFlagChkBox_clicked()
{
    updateCommandPreview();
}

void Calyx::CmdOrderUpBtn_clicked()
{
    moveOrderItem(-1);
}

void Calyx::CmdOrderDwnBtn_clicked()
{
    moveOrderItem(1);
}

void Calyx::moveOrderItem(int distance)
{
    const int from = CmpOrderListBox->currentRow();
    const int to = from + distance;
    if (from < 0 || to < 0 || to >= CmpOrderListBox->count())
        return;
    CmpOrderListBox->insertItem(to, CmpOrderListBox->takeItem(from));
    CmpOrderListBox->setCurrentRow(to);
    updateCommandPreview();
}

void Calyx::buildReview()
{
    changeAnswers(&tidy, AnswerField::Tidied);
    updateCommandPreview();
    DetailsText->setReview(reviewText(answers, AnswerField::Shown));
    detailsText = reviewText(answers, AnswerField::Kept);
    setFinishEnabled(Page4, true);
}

void Calyx::accept()
{
    // Two runs would write the same files.
    if (generatorProcess)
        generatorProcess->end();
    generatorProcess = new GeneratorRun(this);
    showBusy(true);
    DetailsText->setText(u"Initialising Compiler Personality Generation ...\n"_s);
    connect(generatorProcess, &QProcess::readyReadStandardOutput, this, &Calyx::readFromStdout);
    connect(generatorProcess, &QProcess::finished, this, &Calyx::processExit);
    connect(generatorProcess, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            showFailedStart();
    });
    generatorProcess->startProgram(generatorArguments(currentAnswers()));
    setFinishEnabled(Page4, false);
}

void Calyx::showFailedStart()
{
    showBusy(false);
    DetailsText->append(u"Compiler Personality Generation could not be executed: Please ensure "
                        "Bexlor is set on the path.\n"_s);
    // It is, and something else is wrong, such as more defines than a command line may have.
    if (QFileInfo(generatorProcess->program()).isAbsolute())
        DetailsText->append(generatorProcess->errorString() + u'\n');
}

void Calyx::readFromStdout()
{
    DetailsText->write(generatorProcess->readText());
}

void Calyx::showBusy(bool on)
{
    // The text has a pointer of its own.
    for (QWidget *widget : {static_cast<QWidget *>(Page4), DetailsText->viewport()})
        widget->setCursor(on ? Qt::BusyCursor : Qt::ArrowCursor);
}

void Calyx::processExit()
{
    showBusy(false);
    if (generatorProcess->exitStatus() == QProcess::NormalExit) {
        SaveLogBtn->setEnabled(true);
        if (generatorProcess->exitCode() == 0) {
            DetailsText->append(u"Personality Generated Successfully!"_s);
            setButtonText(QWizard::CancelButton, tr("Close"));
            if (currentPage() == Page4)
                makeCancelDefault();
            AddCompilerBtn->setEnabled(true);
        } else {
            QMessageBox::about(nullptr, u"Calyx"_s,
                               u"Personality Generation Failed!\nPlease check the details on "
                               "screen and try again."_s);
            showPage(Page4); // any other way there makes the review anew
            showFailureDetails();
        }
    }
    writeSettings();
}

void Calyx::showFailureDetails()
{
    for (const LogFile &file : logFiles) {
        DetailsText->append(file.heading);
        showLogFile(file.name);
    }
}

void Calyx::showLogFile(const QString &name)
{
    const platform::FileContent file = platform::readFile(name);
    if (file.state != platform::FileContent::Whole)
        return;
    // Each line is followed by an empty one; all are appended at once, since appending lays out.
    QString text = platform::decodedText(file.bytes); // as the compiler has written it
    QTextStream stream(&text);
    QString line, lines;
    while (stream.readLineInto(&line))
        lines += line + "\n\n"_L1;
    DetailsText->append(lines);
}

void Calyx::SaveLogBtn_clicked()
{
    QFileDialog dialog(this, u"Save Log File as .."_s, platform::hostPath(PersonDestEdit->text()),
                       u"Log Files (*.txt *.log)"_s);
    dialog.setObjectName(u"save log dialog"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"log"_s);
    dialog.selectFile(logName(currentAnswers()));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = platform::literalPath(dialog.selectedFiles().value(0));
    const bool isSaved = platform::FileReplacement(path).write([this](QIODevice &device) {
        const QByteArray head = (detailsText + u'\n').toLocal8Bit();
        return device.write(head) == head.size() && DetailsText->save(device);
    });
    if (isSaved)
        DetailsText->append("Log Saved: "_L1 + normalisePath(path));
}
