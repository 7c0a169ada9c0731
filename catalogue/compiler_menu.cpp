#include "compiler_menu.h"

#include "sub_popup_menu.h"

#include <QMultiHash>

CompilerMenu::CompilerMenu(CompilerMenuOwner *owner) : m_owner(owner) { }

CompilerMenu::~CompilerMenu() = default;

void CompilerMenu::build(const CompilerCatalogue &catalogue, const QString &familySet)
{
    m_families.clear();                          // which takes them out of this menu, too
    QMultiHash<QString, SubPopupMenu *> menusOf; // a family that is listed twice has two
    for (const QString &family : catalogue.families) {
        if (!familySet.isEmpty() && !familySet.contains(family))
            continue;
        auto menu = std::make_unique<SubPopupMenu>();
        menu->setStyle(style());
        menu->setTitle(menuText(family));
        menu->family = family;
        menu->owner = m_owner;
        menusOf.insert(family, menu.get());
        addMenu(menu.get());
        m_families.push_back(std::move(menu));
    }
    for (const CompilerRecord &record : catalogue.compilers) {
        const auto [first, last] = menusOf.equal_range(record.Family);
        for (auto menu = first; menu != last; ++menu)
            (*menu)->insertItem(record.Name);
    }
}

void CompilerMenu::applyProduct(const QString &productCode)
{
    for (const auto &menu : m_families) {
        menu->enableAllItems();
        menu->disableOtherLanguage(productCode);
        menu->menuAction()->setEnabled(menu->offersAny());
    }
}
