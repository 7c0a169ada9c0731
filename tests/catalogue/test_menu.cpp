#include "compiler_menu.h"
#include "product_conflict.h"
#include "product_language.h"
#include "row.h"
#include "sub_popup_menu.h"

namespace {

const CompilerCatalogue catalogue {{"Alpha & Co", "Beta", "Plus", "Empty"},
                                   {{"a - C", "Alpha & Co"},
                                    {"a&b - C++", "Alpha & Co"},
                                    {"XC", "Beta"},
                                    {"p - C++", "Plus"},
                                    {"orphan", "Gamma"}}};

QString shownItem(const QAction *action)
{
    return (action->isEnabled() ? "" : "-") + action->text();
}

struct Owner : CompilerMenuOwner
{
    void applyCatalogueCompiler(QString, QString) override { }
};

} // namespace

class TestMenu : public QObject
{
    Q_OBJECT

private slots:
    void offersWhatIsForTheProduct_data()
    {
        // What is shown has "-" before it where it is disabled.
        const Columns<QString, QString, QString> row("familySet", "product", "shown");
        row("C", "", "kov", "Alpha && Co|a - C|-a&&b - C++|Beta|XC|-Plus|-p - C++|-Empty");
        row("C++", "", "kovpp", "Alpha && Co|-a - C|a&&b - C++|Beta|XC|Plus|p - C++|-Empty");
        row("some families", "x;Empty;beta;Alpha & Co", "kov",
            "Alpha && Co|a - C|-a&&b - C++|-Empty");
    }
    void offersWhatIsForTheProduct()
    {
        QFETCH(QString, familySet);
        QFETCH(QString, product);
        Owner owner;
        CompilerMenu menu(&owner);
        for (int again = 0; again < 2; ++again) {
            menu.build(catalogue, familySet);
            menu.applyProduct("kov");
            menu.applyProduct(product);
        }
        QStringList shown;
        for (const QAction *family : menu.actions()) {
            shown << shownItem(family);
            for (const QAction *action : family->menu()->actions())
                shown << shownItem(action);
        }
        QTEST(shown.join('|'), "shown");
    }

    void holdsAnyNumberOfCompilers()
    {
        Owner owner;
        CompilerMenu menu(&owner);
        CompilerCatalogue large {{"Alpha"}, {2001, {"a - C", "Alpha"}}};
        large.compilers.last().Name = "last - C++";
        menu.build(large, "");
        menu.applyProduct("kov");
        QMenu *family = menu.actions().first()->menu();
        emit family->aboutToShow();
        QCOMPARE(family->actions().size(), 2001);
        QCOMPARE(shownItem(family->actions().last()), "-last - C++");
    }

    void tellsLanguages_data()
    {
        const Columns<QString, QString, bool, bool> row("name", "product", "offered", "conflicts");
        row("C++ under KOV", "C++", "kov", false, true);
        row("x - C++ under KOV", "x - C++", "kov", false, true);
        row("x C++ under KOV", "x C++", "kov", true, true);
        row("x - C under KOV", "x - C", "kov", true, false);
        row("C under KOV++", "C", "kovpp", false, true);
        row("x - C under KOV++", "x - C", "kovpp", false, true);
        row("XC under KOV++", "XC", "kovpp", true, true);
        row("xc under KOV++", "xc", "kovpp", true, false);
        row("C++ under KOV++", "C++", "kovpp", true, false);
        row("none", "", "kovpp", true, false);
    }
    void tellsLanguages()
    {
        QFETCH(QString, name);
        QFETCH(QString, product);
        QTEST(isOffered(name, product), "offered");
        QTEST(!conflictWith(name, product).isEmpty(), "conflicts");
    }
};

QTEST_MAIN(TestMenu)
#include "test_menu.moc"
