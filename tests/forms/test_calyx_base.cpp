#include "command_order.h"
#include "save_compiler_details_base.h"
#include "wizard_test.h"

#include <QAccessible>

namespace {

/// The size that the text of a widget needs, and the size that it has.
using Room = std::pair<QSize, QSize>;

Room roomOf(const QLabel *label)
{
    if (!label->wordWrap())
        return {label->sizeHint(), label->size()};
    return {{label->minimumSizeHint().width(), label->heightForWidth(label->width())},
            label->size()};
}

Room roomOf(const QAbstractButton *button)
{
    const auto contents = qobject_cast<const QCheckBox *>(button) ? QStyle::SE_CheckBoxContents
                        : qobject_cast<const QRadioButton *>(button)
                            ? QStyle::SE_RadioButtonContents
                            : QStyle::SE_PushButtonContents;
    QStyleOptionButton option;
    option.initFrom(button);
    return {button->fontMetrics().size(Qt::TextShowMnemonic, button->text()),
            button->style()->subElementRect(contents, &option, button).size()};
}

/// The names of those of \a widgets that cut their text off.
template <typename Widget>
QStringList cutOff(const QList<Widget *> &widgets)
{
    QStringList names;
    for (const Widget *widget : widgets) {
        const auto [needed, available] = roomOf(widget);
        // Two labels lie under the banner.
        if (!widget->text().isEmpty() && needed.boundedTo(available) != needed
            && !widget->objectName().startsWith("textLabel3_3"))
            names << widget->objectName();
    }
    return names;
}

/// Those of the widgets of \a form that its tables name.
QList<QWidget *> named(const QWidget *form)
{
    QList<QWidget *> widgets = form->findChildren<QWidget *>(QRegularExpression("^[A-Za-z]"));
    widgets.removeIf([](const QWidget *widget) { return widget->objectName().startsWith("qt_"); });
    return widgets;
}

/// The first of \a widgets, all on the screen, that others or the edge of a form hide.
QString hiddenOf(const QList<QWidget *> &widgets)
{
    for (const QWidget *widget : widgets) {
        const QSize hidden = widget->size() - widget->visibleRegion().boundingRect().size();
        if (std::max(hidden.width(), hidden.height()) > 8) // lines lie across edges
            return widget->objectName();
    }
    return QString();
}

/// Whether \a widget, one of the forms' tables, shows what it must.
bool isComplete(const QWidget *widget)
{
    const auto shows = [](const QString &text, const auto &picture) {
        return text.isEmpty() != picture.isNull();
    };
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return shows(label->text(), label->pixmap()) || label->objectName().endsWith("ErrorLabel");
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return shows(button->text(), button->icon()) && button->shortcut().isEmpty()
            && button->palette().color(button->backgroundRole()) == Qt::white;
    return !qobject_cast<const QLineEdit *>(widget) || !widget->toolTip().isEmpty();
}

/// How tall the dark part of \a image is.
int darkHeight(const QImage &image)
{
    return QRegion(QBitmap::fromImage(image, Qt::ThresholdDither)).boundingRect().height();
}

/// Tells which text has been painted last.
class TextSpy : public QProxyStyle
{
public:
    mutable QString painted;

    TextSpy() : QProxyStyle("windows") { }
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
        const QRect page(0, 0, 760, 380);
        QRegion decorationOfFirst;
        for (const int id : user->pageIds()) {
            user->showPage(qobject_cast<WizardPage *>(user->page(id)));
            QTest::qWait(20);
            QCOMPARE(user->size(), QSize(768, 455));
            QCOMPARE(user->currentPage()->visibleRegion().boundingRect() & page, page);
            QCOMPARE(hiddenOf(named(user->currentPage())), "");
            QRegion decoration;
            for (const QWidget *part : user->currentPage()->findChildren<QWidget *>(
                     QRegularExpression("^(line1|pixmapLabel[35]|P[0-4]_)")))
                decoration += part->geometry();
            if (id == 0)
                decorationOfFirst = decoration;
            QCOMPARE(decoration, decorationOfFirst);
        }
        for (const QLabel *label :
             {user->CmpCmdOrder, user->SearchCompileCmdTxt, user->DefSwitchCompileCmdTxt,
              user->DestErrorLabel, user->CmpPathErrorLabel})
            QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(user->CmpCmdOrder->font().italic() && !user->CmpExeEdit->font().italic());
        QVERIFY(user->DestErrorLabel->font().bold());
        QCOMPARE(user->textLabel1_3->font().pointSize(), 12);
    }

    void showsAndNamesEveryWidget()
    {
        const ProgramFolder folder; // with pictures for the side bar
        Forms forms;
        forms.dialog.show();
        QCOMPARE(hiddenOf(named(&forms.dialog)), "");
        for (const QWidget *widget : named(forms.user.wizard()) + named(&forms.dialog)) {
            // A property that the toolkit does not know is not shown.
            QVERIFY2(isComplete(widget) && !widget->size().isEmpty()
                         && widget->dynamicPropertyNames().isEmpty(),
                     qPrintable(widget->objectName()));
        }
        for (const auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton})
            QCOMPARE(forms.user->button(which)->palette().color(QPalette::Button), Qt::white);
        QStringList titles {""};
        for (const QGroupBox *box : forms.all<QGroupBox>())
            titles << box->title();
        for (QWidget *widget : forms.all<QWidget>()) {
            // The list of a combo box is told of through the box.
            if (widget->focusPolicy() == Qt::NoFocus || widget->window()->windowType() == Qt::Popup)
                continue;
            const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!titles.contains(told->text(QAccessible::Name)),
                     qPrintable(widget->objectName()));
        }
        for (int button = 0; button < SideBar::steps * SideBar::steps; ++button) {
            const int page = button / SideBar::steps, step = button % SideBar::steps;
            QCOMPARE(forms.user->sideBar.button(page, step)->accessibleDescription(),
                     page == step ? "Current step" : "");
        }
    }

    void movesTheFocusDownOrToTheRight()
    {
        Forms forms;
        QList<QWidget *> pages {&forms.dialog};
        for (const int id : forms.user->pageIds())
            pages << forms.user->page(id);
        for (QWidget *page : pages) {
            QRect previous;
            QWidget *start = page->isWindow() ? page->focusWidget() : page->window();
            for (QWidget *stop = start->nextInFocusChain(); stop != start;
                 stop = stop->nextInFocusChain()) {
                if (!page->isAncestorOf(stop) || !(stop->focusPolicy() & Qt::TabFocus))
                    continue;
                const QRect place(stop->mapTo(page, QPoint()), stop->size());
                const int sideBar = 560;
                const bool leavesSideBar = previous.left() >= sideBar && place.left() < sideBar;
                QVERIFY2((place.top() > previous.top() && !leavesSideBar)
                             || place.left() > previous.right(),
                         qPrintable(stop->objectName()));
                previous = place;
            }
        }
    }

    void hasRoomForEveryText_data()
    {
        const Columns<QString> row("language");
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
        QCOMPARE(cutOff(forms.all<QLabel>()) + cutOff(forms.all<QAbstractButton>()), QStringList());
    }

    void drawsTallTitlesWhole()
    {
        const Language spoken("ja");
        const Forms forms;
        const QString sign(QChar(0x56fd)); // is as tall as any of its script
        QImage alone(60, 60, QImage::Format_RGB32);
        alone.fill(Qt::white);
        QPainter painter(&alone);
        painter.setFont(forms.dialog.font());
        painter.drawText(20, 40, sign);
        painter.end();
        QGroupBox *box = forms.dialog.SaveNewGrpBox;
        box->setTitle("       " + sign + "   ");
        QVERIFY(darkHeight(alone) > 8);
        QCOMPARE(darkHeight(box->grab(QRect(27, 0, 30, 19)).toImage()), darkHeight(alone));
        const QImage edge = box->grab(QRect(0, 40, 4, 40)).toImage();
        QVERIFY(edge.pixel(0, 20) != edge.pixel(3, 20)); // the frame
    }

    void canBeReadUnderEveryPalette_data()
    {
        const Columns<QPalette> row("palette");
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
        for (const QWidget *widget : forms.all<QWidget>()) {
            const QPalette &shown = widget->palette();
            for (const auto &[text, ground] : {std::pair(shown.windowText(), shown.window()),
                                               std::pair(shown.text(), shown.base()),
                                               std::pair(shown.buttonText(), shown.button())}) {
                const int lightness = text.color().lightness(), other = ground.color().lightness();
                QVERIFY2(std::abs(lightness - other) > 80, qPrintable(widget->objectName()));
            }
        }
    }

    void takesOneLineOnly_data()
    {
        const Columns<QString, QString> row("pasted", "held"); // between two characters
        row("line feed at the end", "cc\n", "cc");
        row("two lines", "gcc\r\n-m32\r\n", "gcc -m32");
        row("tabs", "gcc\t\t-m32\t", "gcc -m32");
        row("other controls", "gcc\u2028-c\u007f\a", "gcc -c");
        row("spaces", "  gcc  ", "  gcc  ");
    }
    void takesOneLineOnly()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, held);
        const Forms forms;
        QGuiApplication::clipboard()->setText(pasted);
        for (QLineEdit *edit : forms.all<QLineEdit>()) {
            edit->setText("<>");
            edit->setCursorPosition(1);
            edit->paste();
            QCOMPARE(edit->text(), '<' + held + '>');
            QCOMPARE(edit->cursorPosition(), 1 + held.size());
            edit->setText('\n' + pasted);
            QCOMPARE(edit->text(), held);
        }
    }

    void cutsLongTextsAtTheirEnd()
    {
        TextSpy style; // outlives the widgets
        const Forms forms;
        forms.user->showPage(forms.user->Page1);
        const QString text = "cc <b>" + QString("x").repeated(95) + " -c";
        QLabel *preview = forms.user->CmpCmdOrder;
        QComboBox *list = forms.dialog.ExstCmpNameComboBox;
        preview->setText(text);
        list->addItem(text);
        for (QWidget *widget : std::initializer_list<QWidget *> {preview, list}) {
            widget->setStyle(&style);
            style.painted.clear();
            widget->grab();
            QVERIFY2(style.painted.startsWith("cc <b>x"), qPrintable(style.painted));
            QVERIFY2(style.painted.endsWith(QChar(0x2026)), qPrintable(style.painted));
        }
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QApplication::sendEvent(preview, &event);
        QVERIFY(QToolTip::text().contains(text.toHtmlEscaped().replace(' ', '\n')));
        list->showPopup();
        QVERIFY(list->view()->viewport()->width() >= list->view()->sizeHintForColumn(0));

        const QString longText = text + QString("x").repeated(20'000);
        list->hidePopup();
        list->addItem(longText);
        list->showPopup();
        preview->setText(longText);
        QApplication::sendEvent(preview, &event);
        const QRect screen = preview->screen()->availableGeometry();
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel") || window == list->view()->window())
                QVERIFY2(screen.contains(window->geometry()), window->metaObject()->className());
        }
        QVERIFY(QToolTip::text().contains("xx\u2026</p>"));
    }

    void showsSharpPictures()
    {
        const WizardUser user;
        const QString file = qApp->devicePixelRatio() > 1 ? "logo@2x.png" : "logo.xpm";
        QCOMPARE(user->pixmapLabel5->grab().toImage().convertToFormat(QImage::Format_RGB32),
                 QImage(":/images/" + file).convertToFormat(QImage::Format_RGB32));
        QCOMPARE(user->P0_RevBtn->iconSize(), QSize(175, 23));
    }

    void setsItsTextsAgain()
    {
        const Language spoken("de");
        CalyxBase form;
        form.CmpOrderListBox->insertItem(0, form.CmpOrderListBox->takeItem(5));
        form.CmpOrderListBox->addItem("extra");
        form.DestErrorLabel->setText("wrong");
        QVERIFY(QMetaObject::invokeMethod(&form, "languageChange"));
        QCOMPARE(rows(form.CmpOrderListBox), defaultOrder());
        const auto *told = QAccessible::queryAccessibleInterface(form.CmpOrderListBox);
        QCOMPARE(told->child(1)->text(QAccessible::Name), "Ausgabe-Flag");
        QVERIFY(form.CmpExeFlagChkBox->accessibleName() != form.CmpDefFlagChkBox->accessibleName());
        QCOMPARE(form.DestErrorLabel->text(), "");
        QCOMPARE(form.CmpCmdOrder->text(), "          <exe> <src>");
    }
};

QTEST_MAIN(TestCalyxBase)
#include "test_calyx_base.moc"
