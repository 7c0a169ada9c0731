#include "compiler_menu.h"

#include "sub_popup_menu.h"

#include <algorithm>
#include <functional>

CompilerMenu::CompilerMenu(CompilerMenuOwner *owner) : m_owner(owner) { }

CompilerMenu::~CompilerMenu() = default;

void CompilerMenu::build(const CompilerCatalogue &catalogue, const QString &familySet)
{
    m_families.clear(); // which takes them out of this menu, too
    for (const QString &family : catalogue.families) {
        if (!familySet.isEmpty() && !familySet.contains(family))
            continue;
        auto menu = std::make_unique<SubPopupMenu>();
        menu->setStyle(style());
        menu->setTitle(menuText(family));
        menu->family = family;
        menu->owner = m_owner;
        for (const QString &name : namesOf(catalogue.compilers, family))
            menu->insertItem(name);
        addMenu(menu.get());
        m_families.push_back(std::move(menu));
    }
}

void CompilerMenu::applyProduct(const QString &productCode)
{
    for (const auto &menu : m_families) {
        menu->enableAllItems();
        menu->disableOtherLanguage(productCode);
        const QList<QAction *> items = menu->actions();
        menu->menuAction()->setEnabled(
            std::any_of(items.begin(), items.end(), std::mem_fn(&QAction::isEnabled)));
    }
}
