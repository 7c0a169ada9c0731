#pragma once

#include <QMenu>

class Calyx;

/// The compilers of one family, as a sub-menu of the Exe Command menu.
class SubPopupMenu : public QMenu
{
    Q_OBJECT

public:
    SubPopupMenu();

    Calyx *owner = nullptr; ///< is told which compiler has been chosen
    QString family;

    /// Adds the compiler \a name at the end. It is shown as it is, and has no shortcut.
    void insertItem(const QString &name);
    void enableAllItems();
    /// Disables the compilers that are not for the product, see isOffered().
    void disableOtherLanguage(const QString &productCode);

public slots:
    /// Applies the compiler of item \a id, which is its index.
    void slot_activated(int id);
};

/// \a name as a menu shows it literally: an ampersand would mark a shortcut.
QString menuText(QString name);
