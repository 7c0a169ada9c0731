#pragma once

#include <QMenu>

/// Who is told which compiler of the menu has been chosen. That is the wizard, of which this folder
/// knows no more: the wizard stands above it.
class CompilerMenuOwner
{
public:
    /// Both texts are those of the catalogue.
    virtual void applyCatalogueCompiler(QString family, QString name) = 0;

protected:
    ~CompilerMenuOwner() = default;
};

/// The compilers of one family, as a sub-menu of the Exe Command menu.
class SubPopupMenu : public QMenu
{
    Q_OBJECT

public:
    SubPopupMenu();

    CompilerMenuOwner *owner = nullptr;
    QString family;

    /// Adds the compiler \a name at the end. It is shown as it is, and has no shortcut. Of very
    /// many the later ones come when the menu is about to be shown.
    void insertItem(const QString &name);
    void enableAllItems();
    /// Disables the compilers that are not for the product, see isOffered().
    void disableOtherLanguage(const QString &productCode);
    /// Whether a compiler is enabled; not when there is none.
    bool offersAny() const;

public slots:
    /// Applies the compiler of item \a id, which is its index.
    void slot_activated(int id);

private:
    void addItem(const QString &name);
    void addWaitingItems();
    bool isEnabledFor(const QString &name) const;

    QStringList m_waitingItems;
    QString m_productCode; ///< that items are disabled for; empty: all are enabled
};

/// \a name as a menu shows it literally: an ampersand would mark a shortcut.
QString menuText(QString name);
