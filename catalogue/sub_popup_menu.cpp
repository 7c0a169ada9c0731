#include "sub_popup_menu.h"

#include "product_language.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// The toolkit looks through all items of a menu for each that it adds.
const int mostItemsAtOnce = 2000;

} // namespace

SubPopupMenu::SubPopupMenu()
{
    setPalette(QPalette(Qt::white, Qt::white));
    connect(this, &QMenu::triggered, this,
            [this](QAction *action) { slot_activated(int(actions().indexOf(action))); });
    connect(this, &QMenu::aboutToShow, this, &SubPopupMenu::addWaitingItems);
}

void SubPopupMenu::insertItem(const QString &name)
{
    if (actions().size() < mostItemsAtOnce)
        addItem(name);
    else
        m_waitingItems << name;
}

void SubPopupMenu::addItem(const QString &name)
{
    QAction *action = addAction(menuText(name));
    action->setData(name);
    action->setEnabled(isEnabledFor(name));
}

void SubPopupMenu::addWaitingItems()
{
    for (const QString &name : std::exchange(m_waitingItems, {}))
        addItem(name);
}

void SubPopupMenu::enableAllItems()
{
    m_productCode.clear();
    for (QAction *action : actions())
        action->setEnabled(true);
}

void SubPopupMenu::disableOtherLanguage(const QString &productCode)
{
    m_productCode = productCode;
    for (QAction *action : actions()) {
        if (!isOffered(action->data().toString(), productCode))
            action->setEnabled(false);
    }
}

bool SubPopupMenu::offersAny() const
{
    const QList<QAction *> items = actions();
    return std::any_of(items.begin(), items.end(), std::mem_fn(&QAction::isEnabled))
        || std::any_of(m_waitingItems.begin(), m_waitingItems.end(),
                       [this](const QString &name) { return isEnabledFor(name); });
}

bool SubPopupMenu::isEnabledFor(const QString &name) const
{
    return m_productCode.isEmpty() || isOffered(name, m_productCode);
}

void SubPopupMenu::slot_activated(int id)
{
    owner->applyCatalogueCompiler(family, actions().at(id)->data().toString());
}

QString menuText(QString name)
{
    return name.replace(u'&', "&&"_L1);
}
