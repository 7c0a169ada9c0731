#include "answer_table.h"

#include "calyx_base.h"
#include "comma_list.h"
#include "command_order.h"
#include "compiler_catalogue.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

QString shown(const QLineEdit *edit)
{
    return edit->text();
}

QString shown(const QTextEdit *edit)
{
    return edit->toPlainText();
}

bool shown(const QCheckBox *box)
{
    return box->isChecked();
}

QStringList shown(const QListWidget *list)
{
    QStringList rows;
    for (int row = 0; row < list->count(); ++row)
        rows << list->item(row)->text();
    return rows;
}

void show(QLineEdit *edit, const QString &text)
{
    edit->setText(text);
    edit->home(false); // a long text shows its beginning
}

void show(QTextEdit *edit, const QString &text)
{
    edit->setPlainText(text);
}

void show(QCheckBox *box, bool isChecked)
{
    box->setChecked(isChecked);
}

void show(QListWidget *list, const QStringList &rows)
{
    list->clear();
    list->addItems(rows);
}

/// The words for a check box that the review shows, and those that only the settings file holds.
struct Capitalised
{
    static QLatin1StringView word(bool value) { return value ? "Yes"_L1 : "No"_L1; }
};
struct LowerCase
{
    static QLatin1StringView word(bool value) { return yesOrNo(value); }
};

/// How a value of each type is told in lines and in a record's text, and understood from them.
template <typename Words>
struct Text
{
    static QStringList lines(const QString &value) { return {value}; }
    static QStringList lines(const QStringList &value) { return value; }
    static QStringList lines(bool value) { return {Words::word(value)}; }

    static void setLines(QString &value, const QStringList &lines) { value = lines.first(); }
    static void setLines(QStringList &value, const QStringList &lines) { value = lines; }
    static void setLines(bool &value, const QStringList &lines)
    {
        value = lines.first() == Words::word(true);
    }

    static QString record(const QString &value) { return value; }
    static QString record(bool value) { return yesOrNo(value); }

    static void setRecord(QString &value, const QString &text) { value = text; }
    static void setRecord(bool &value, const QString &text) { value = isYes(text); }
};

/// \a field with what follows from the type of its value, which no widget shows.
template <auto Value, typename Words = Capitalised>
AnswerField unseen(AnswerField field)
{
    using As = Text<Words>;
    field.lines = [](const Answers &answers) { return As::lines(answers.*Value); };
    field.setLines = [](Answers &answers, const QStringList &lines) {
        As::setLines(answers.*Value, lines);
    };
    // What holds several rows goes into a record in its own way.
    if constexpr (!std::is_same_v<decltype(Answers::order),
                                  std::remove_cvref_t<decltype(Answers().*Value)>>) {
        field.recordText = [](const Answers &answers) { return As::record(answers.*Value); };
        field.setRecordText = [](Answers &answers, const QString &text) {
            As::setRecord(answers.*Value, text);
        };
    }
    field.reset = [](Answers &answers) { answers.*Value = Answers().*Value; };
    return field;
}

/// The same for a value that the widget \a Widget shows.
template <auto Value, auto Widget, typename Words = Capitalised>
AnswerField seen(AnswerField field)
{
    field = unseen<Value, Words>(field);
    field.take = [](Answers &answers, const CalyxBase &form) {
        answers.*Value = shown(form.*Widget);
    };
    field.show = [](const Answers &answers, CalyxBase &form) {
        show(form.*Widget, answers.*Value);
    };
    return field;
}

/// The same for a value of several lines that a user types, which a record holds as a comma list.
template <auto Value, auto Widget>
AnswerField typedLines(AnswerField field)
{
    field = seen<Value, Widget>(field);
    field.isList = true;
    field.setLines = [](Answers &answers, const QStringList &lines) {
        answers.*Value = lines.join(u'\n') + (lines.isEmpty() ? ""_L1 : "\n"_L1);
    };
    field.recordText = [](const Answers &answers) { return toCommaList(answers.*Value); };
    return field;
}

/// The same for the rows of a list.
template <auto Value, auto Widget>
AnswerField rows(AnswerField field)
{
    field = seen<Value, Widget>(field);
    field.isList = true;
    return field;
}

/// The product, which two radio buttons show.
AnswerField product(AnswerField field)
{
    field = unseen<&Answers::productCode>(field);
    field.take = [](Answers &answers, const CalyxBase &form) {
        answers.productCode =
            form.KOVRadioButton->isChecked() ? generator::productC : generator::productCpp;
    };
    field.show = [](const Answers &answers, CalyxBase &form) {
        const bool isC = answers.productCode == generator::productC;
        (isC ? form.KOVRadioButton : form.KOVPPRadioButton)->setChecked(true);
    };
    return field;
}

/// The order, which a record holds together with what follows the two flags.
AnswerField order(AnswerField field)
{
    field = rows<&Answers::order, &CalyxBase::CmpOrderListBox>(field);
    field.recordText = &commandOrderString;
    field.setRecordText = &applyOrderString;
    field.shownLines = [](const Answers &answers) { return QStringList {commandPreview(answers)}; };
    field.reset = [](Answers &answers) { answers.order = defaultOrder(); };
    return field;
}

template <auto... Widgets>
void disable(CalyxBase &form)
{
    ((form.*Widgets)->setEnabled(false), ...);
}

using enum AnswerField::Role;
using Form = CalyxBase;
using Record = CompilerRecord;

const AnswerField table[] = {
    product({.key = "Product:"_L1,
             .roles = Shown | Kept,
             .lock = &disable<&Form::KOVRadioButton, &Form::KOVPPRadioButton>}),
    seen<&Answers::destination, &Form::PersonDestEdit>(
        {.key = "Personality Destination Directory:"_L1,
         .roles = Shown | Kept,
         .lock = &disable<&Form::PersonDestEdit, &Form::PersonDestBrowseBtn>}),
    seen<&Answers::name, &Form::PersonNameEdit>({.key = "Personality Name:"_L1,
                                                 .roles = Shown | Kept,
                                                 .lock = &disable<&Form::PersonNameEdit>}),
    seen<&Answers::command, &Form::CmpExeEdit>(
        {.key = "Compiler:"_L1,
         .roles = Shown | Kept | Tidied | Recorded | Reset | InCommand,
         .record = &Record::ExeCommand}),
    seen<&Answers::crossCompiler, &Form::CrossCmpCheckBox>(
        {.key = "Cross Compiler:"_L1,
         .roles = Shown | Kept | Recorded | Reset,
         .record = &Record::CrossCompiler}),
    seen<&Answers::outputFlag, &Form::CmpExeFlagEdit>(
        {.key = "Compiler Output Flag:"_L1,
         .roles = Shown | Kept | Tidied | Recorded | Reset | InCommand,
         .record = &Record::OutputFlag}),
    seen<&Answers::objectFlag, &Form::CmpCmpFlagEdit>(
        {.key = "Compiler Object File Generation Flag:"_L1,
         .roles = Shown | Kept | Tidied | Recorded | Reset | InCommand,
         .record = &Record::ObjectFlag}),
    seen<&Answers::defineFlag, &Form::CmpDefFlagEdit>(
        {.key = "Compiler Define Flag:"_L1,
         .roles = Shown | Kept | Tidied | Recorded | Reset | InCommand,
         .record = &Record::DefineFlag}),
    seen<&Answers::objectExtension, &Form::CmpObjExtFlagEdit>(
        {.key = "Object File Extension:"_L1,
         .roles = Shown | Kept | Tidied | Recorded,
         .record = &Record::ObjectFileExtension}),
    seen<&Answers::reduceFileSize, &Form::ReduceFileSizeCheckBox>(
        {.key = "Reduce File Size:"_L1,
         .roles = Shown | Kept | Recorded | Reset,
         .record = &Record::ReduceFileSize}),
    rows<&Answers::headerDirectories, &Form::CmpHdrDirListBox>(
        {.key = "Compiler Header Directories:"_L1, .roles = Shown | Kept}),
    typedLines<&Answers::defines, &Form::CmpDefEdit>({.key = "Compiler Defines:"_L1,
                                                      .roles = Shown | Kept | Recorded,
                                                      .record = &Record::CompilerDefines}),
    typedLines<&Answers::switches, &Form::CmpSwtchEdit>({.key = "Compiler Switches:"_L1,
                                                         .roles = Shown | Kept | Recorded,
                                                         .record = &Record::CompilerSwitches}),
    order({.key = "Compiler Command Order:"_L1,
           .roles = Shown | Kept | Recorded | Reset | InCommand,
           .record = &Record::Order}),
    seen<&Answers::spaceAfterOutputFlag, &Form::CmpExeFlagChkBox, LowerCase>(
        {.key = "Exe Trailing Space:"_L1, .roles = Recorded | InCommand}),
    seen<&Answers::spaceAfterDefineFlag, &Form::CmpDefFlagChkBox, LowerCase>(
        {.key = "Def Trailing Space:"_L1, .roles = Recorded | InCommand}),
    unseen<&Answers::selectedCompilerFamily>(
        {.key = "Selected Compiler Family:"_L1, .roles = Recorded, .record = &Record::Family}),
    unseen<&Answers::selectedCompilerName>(
        {.key = "Selected Compiler Name:"_L1, .roles = Recorded | Reset, .record = &Record::Name}),
    unseen<&Answers::templatePersonalityFile>({.key = "Template Personality File:"_L1,
                                               .roles = Recorded | Reset,
                                               .record = &Record::Template}),
    unseen<&Answers::forceIncludeFile>({.key = "Force Include File:"_L1,
                                        .roles = Recorded | Reset,
                                        .record = &Record::ForceIncludeFile}),
    unseen<&Answers::substituteHeaders>({.key = "Substitute Headers:"_L1,
                                         .roles = Recorded | Reset,
                                         .record = &Record::SubHeaders}),
    unseen<&Answers::compilerFamilySet>({.key = "Compiler Family Set:*"_L1, .roles = ReadOnly}),
};

} // namespace

std::span<const AnswerField> answerTable()
{
    return table;
}
