#include "command_order.h"
#include "row.h"
#include "save_compiler_details_base.h"
#include "wizard_test.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTest>
#include <QToolTip>
#include <cmath>

namespace {

// A form whose texts can be set again from outside.
class Form : public CalyxBase
{
public:
    using CalyxBase::languageChange;
};

QString cutOff(const QWidget *widget, const QSize &needed, const QSize &available)
{
    if (needed.width() <= available.width() && needed.height() <= available.height())
        return QString();
    return QString("%1 needs %2 x %3 and has %4 x %5\n")
        .arg(widget->objectName())
        .arg(needed.width())
        .arg(needed.height())
        .arg(available.width())
        .arg(available.height());
}

/// Adds to \a problems if \a label cuts its text off. Whether it has one.
bool checkRoom(const QLabel *label, QString &problems)
{
    // Two labels lie under the banner.
    if (label->text().isEmpty() || label->objectName().startsWith("textLabel3_3"))
        return false;
    QSize needed = label->sizeHint();
    if (label->wordWrap()) {
        int widestWord = 0;
        for (const QString &word : label->text().split(' '))
            widestWord = std::max(widestWord, label->fontMetrics().horizontalAdvance(word));
        const bool isMarkup = label->text().contains('<');
        needed = QSize(isMarkup ? 0 : widestWord, label->heightForWidth(label->width()));
    }
    problems += cutOff(label, needed, label->size());
    return true;
}

/// The same for a button.
bool checkRoom(const QAbstractButton *button, QString &problems)
{
    if (button->text().isEmpty())
        return false;
    QStyle::SubElement contents = QStyle::SE_PushButtonContents;
    if (qobject_cast<const QCheckBox *>(button))
        contents = QStyle::SE_CheckBoxContents;
    else if (qobject_cast<const QRadioButton *>(button))
        contents = QStyle::SE_RadioButtonContents;
    QStyleOptionButton option;
    option.initFrom(button);
    problems += cutOff(button, button->fontMetrics().size(Qt::TextShowMnemonic, button->text()),
                       button->style()->subElementRect(contents, &option, button).size());
    return true;
}

/// How far two colours are apart, from 1 for none to 21: the contrast ratio of the Web Content
/// Accessibility Guidelines.
qreal contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](qreal part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
             + 0.0722 * linear(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// Tells which text has been painted last.
class TextSpy : public QProxyStyle
{
public:
    mutable QString painted;

    void drawItemText(QPainter *, const QRect &, int, const QPalette &, bool, const QString &text,
                      QPalette::ColorRole) const override
    {
        painted = text;
    }
};

/// A wizard and a save dialog.
struct Forms
{
    WizardUser user;
    SaveCompilerDetailsBase dialog;

    /// Their widgets of type \a Widget.
    template <typename Widget>
    QList<Widget *> all() const
    {
        return user->findChildren<Widget *>() + dialog.findChildren<Widget *>();
    }
};

} // namespace

class TestCalyxBase : public QObject
{
    Q_OBJECT

private slots:
    void showsTheWholePageInTheGivenSize()
    {
        const WizardUser user;
        QCOMPARE(user->size(), QSize(768, 455));
        QCOMPARE(user->focusWidget(), user->KOVRadioButton);
        for (const int id : user->pageIds()) {
            user->showPage(qobject_cast<WizardPage *>(user->page(id)));
            QTest::qWait(20);
            QCOMPARE(user->size(), QSize(768, 455));
            QVERIFY(
                QRect(QPoint(), QSize(760, 380))
                == (user->currentPage()->visibleRegion().boundingRect() & QRect(0, 0, 760, 380)));
        }
    }

    void laysNoControlOverAnother()
    {
        const Forms forms;
        QStringList problems;
        int controls = 0;
        for (const QWidget *control : forms.all<QWidget>()) {
            const QWidget *parent = control->parentWidget();
            const QString name = control->objectName();
            if (control->focusPolicy() == Qt::NoFocus || name.isEmpty() || name.startsWith("qt_")
                || control->isWindow())
                continue;
            ++controls;
            // Two stand on the frames of their groups.
            if (!parent->rect().adjusted(0, -2, 0, 0).contains(control->geometry()))
                problems << name + " leaves " + parent->objectName();
            for (const QWidget *other :
                 parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
                if (other > control && other->focusPolicy() != Qt::NoFocus
                    && other->geometry().intersects(control->geometry()))
                    problems << name + " meets " + other->objectName();
            }
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
        QVERIFY2(controls >= 60, qPrintable(QString::number(controls)));
    }

    void hasRoomForEveryText_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Language::all())
            row(qPrintable(language), language);
    }
    void hasRoomForEveryText()
    {
        QFETCH(QString, language);
        const Language spoken(language);
        Forms forms;
        forms.user->DestErrorLabel->setText(
            QObject::tr("Destination folder does not exist please select a different folder."));
        forms.user->CmpPathErrorLabel->setText(
            QObject::tr("Command specified is not on the path, please amend the path or fully "
                        "qualify this command."));
        forms.dialog.show();
        QString problems;
        int texts = 0;
        for (const QLabel *label : forms.all<QLabel>())
            texts += checkRoom(label, problems);
        for (const QAbstractButton *button : forms.all<QAbstractButton>())
            texts += checkRoom(button, problems);
        QVERIFY2(problems.isEmpty(), qPrintable(problems));
        QVERIFY2(texts >= 44, qPrintable(QString::number(texts)));
    }

    void canBeReadUnderEveryPalette_data()
    {
        QTest::addColumn<QPalette>("palette");
        QPalette highContrast(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            highContrast.setColor(role, Qt::yellow);
        row("dark", QPalette(QColor(40, 40, 40)));
        row("high contrast", highContrast);
    }
    void canBeReadUnderEveryPalette()
    {
        QFETCH(QPalette, palette);
        const QPalette previous = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(previous); });
        QApplication::setPalette(palette);
        const Forms forms;
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::ButtonText, QPalette::Button}};
        for (const QWidget *widget : forms.all<QWidget>()) {
            for (const auto &[text, ground] : pairs) {
                const QPalette &shown = widget->palette();
                QVERIFY2(contrast(shown.color(text), shown.color(ground)) > 3.5,
                         qPrintable(widget->objectName()));
            }
        }
    }

    void looksAsItIsMeantTo()
    {
        const Forms forms;
        QVERIFY(forms.user->CmpCmdOrder->font().italic()
                && !forms.user->CmpExeEdit->font().italic());
        QVERIFY(forms.user->DestErrorLabel->font().bold());
        QCOMPARE(forms.user->textLabel1_3->font().pointSize(), 12);
        for (const QPushButton *button :
             {forms.dialog.buttonOk,
              qobject_cast<QPushButton *>(forms.user->button(QWizard::NextButton))})
            QCOMPARE(button->palette().color(QPalette::Button), QColor(Qt::white));
    }

    void namesEveryStopOfTheFocus()
    {
        const Forms forms;
        QStringList titles;
        for (const QGroupBox *box : forms.all<QGroupBox>())
            titles << box->title();
        int stops = 0;
        for (QWidget *widget : forms.all<QWidget>()) {
            // The list of a combo box is told of through the box.
            if (widget->focusPolicy() == Qt::NoFocus || widget->window()->windowType() == Qt::Popup)
                continue;
            ++stops;
            const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
            const QString name = told->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty() && !titles.contains(name), qPrintable(widget->objectName()));
        }
        QVERIFY2(stops >= 70, qPrintable(QString::number(stops)));
        for (int page = 0; page < SideBar::steps; ++page) {
            for (int step = 0; step < SideBar::steps; ++step)
                QCOMPARE(forms.user->sideBar.button(page, step)->accessibleDescription(),
                         page == step ? "Current step" : "");
        }
    }

    void takesOneLineOnly_data()
    {
        QTest::addColumn<QString>("pasted"); // between two characters
        QTest::addColumn<QString>("held");
        row("line feed at the end", "cc\n", "cc");
        row("two lines", "gcc\r\n-m32\r\n", "gcc -m32");
        row("tabs", "gcc\t\t-m32\t", "gcc -m32");
        row("other controls", QString("gcc%1-c%2\a").arg(QChar(0x2028), QChar(0x7f)), "gcc -c");
        row("spaces", "  gcc  ", "  gcc  ");
    }
    void takesOneLineOnly()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, held);
        const Forms forms;
        QGuiApplication::clipboard()->setText(pasted);
        int fields = 0;
        for (QLineEdit *edit : forms.all<QLineEdit>()) {
            ++fields;
            edit->setText("<>");
            edit->setCursorPosition(1);
            edit->paste();
            QCOMPARE(edit->text(), '<' + held + '>');
            edit->setText('\n' + pasted);
            QCOMPARE(edit->text(), held);
        }
        QCOMPARE(fields, 9);
    }

    void cutsLongTextsAtTheirEnd()
    {
        TextSpy style; // outlives the widgets
        const Forms forms;
        forms.user->showPage(forms.user->Page1);
        const QString text = "cc <b>" + QString("x").repeated(200) + " -c";
        QLabel *preview = forms.user->CmpCmdOrder;
        QComboBox *list = forms.dialog.ExstCmpNameComboBox;
        preview->setText(text);
        list->addItem(text);
        for (QWidget *widget : {static_cast<QWidget *>(preview), static_cast<QWidget *>(list)}) {
            widget->setStyle(&style);
            widget->grab();
            QVERIFY2(style.painted.startsWith("cc <b>x"), qPrintable(style.painted));
            QVERIFY2(style.painted.endsWith(QChar(0x2026)), qPrintable(style.painted));
        }
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QApplication::sendEvent(preview, &event);
        QVERIFY(QToolTip::text().contains(text.toHtmlEscaped().replace(' ', '\n')));
        list->showPopup();
        QVERIFY(list->view()->isVisible());
        QVERIFY(list->view()->viewport()->width() >= list->view()->sizeHintForColumn(0));
    }

    void showsSharpPictures()
    {
        const int scale = int(qApp->devicePixelRatio());
        const WizardUser user;
        const QString file = scale > 1 ? "logo@2x.png" : "logo.xpm";
        QCOMPARE(user->pixmapLabel5->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 QImage(":/images/" + file).convertToFormat(QImage::Format_RGB32));
        QCOMPARE(user->P0_RevBtn->iconSize(), QSize(175, 23));
        int pictures = 0;
        for (const QString &folder : {QString(":/images/"), QString(SOURCE_FOLDER "/images/")}) {
            for (const QString &name : QDir(folder).entryList({"*.xpm", "icon.png", "*.bmp"})) {
                const QImage larger(folder + QFileInfo(name).baseName() + "@2x.png");
                QCOMPARE(larger.size(), 2 * QImage(folder + name).size());
                ++pictures;
            }
        }
        QCOMPARE(pictures, 30);
        for (const QString name : {"bandLeft.xpm", "bandRight.xpm"}) {
            const QImage band(":/images/" + name);
            for (const int y : {2, 15}) {
                int rises = 0, falls = 0;
                for (int x = 1; x < band.width(); ++x) {
                    const int step = qGray(band.pixel(x, y)) - qGray(band.pixel(x - 1, y));
                    rises += step > 0;
                    falls += step < 0;
                }
                QVERIFY2(rises == 0 || falls == 0, qPrintable(name));
            }
        }
    }

    void setsItsTextsAgain()
    {
        Form form;
        form.CmpOrderListBox->insertItem(0, form.CmpOrderListBox->takeItem(5));
        form.CmpOrderListBox->addItem("extra");
        form.DestErrorLabel->setText("wrong");
        form.languageChange();
        QCOMPARE(rows(form.CmpOrderListBox), defaultOrder());
        QCOMPARE(form.DestErrorLabel->text(), QString());
        QCOMPARE(form.CmpCmdOrder->text(), "          <exe> <src>");
    }
};

QTEST_MAIN(TestCalyxBase)
#include "test_calyx_base.moc"
