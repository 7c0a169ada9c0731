#include "sub_popup_menu.h"

#include "product_language.h"

using namespace Qt::StringLiterals;

SubPopupMenu::SubPopupMenu()
{
    setPalette(QPalette(Qt::white, Qt::white));
    connect(this, &QMenu::triggered, this,
            [this](QAction *action) { slot_activated(int(actions().indexOf(action))); });
}

void SubPopupMenu::insertItem(const QString &name)
{
    addAction(menuText(name))->setData(name);
}

void SubPopupMenu::enableAllItems()
{
    for (QAction *action : actions())
        action->setEnabled(true);
}

void SubPopupMenu::disableOtherLanguage(const QString &productCode)
{
    for (QAction *action : actions()) {
        if (!isOffered(action->data().toString(), productCode))
            action->setEnabled(false);
    }
}

void SubPopupMenu::slot_activated(int id)
{
    owner->applyCatalogueCompiler(family, actions().at(id)->data().toString());
}

QString menuText(QString name)
{
    return name.replace(u'&', "&&"_L1);
}
