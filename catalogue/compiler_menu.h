#pragma once

#include "compiler_catalogue.h"

#include <QMenu>
#include <memory>
#include <vector>

class CompilerMenuOwner;
class SubPopupMenu;

/// The Exe Command menu: the known compilers, in one sub-menu for each family.
class CompilerMenu : public QMenu
{
    Q_OBJECT

public:
    /// \a owner is told which compiler has been chosen.
    explicit CompilerMenu(CompilerMenuOwner *owner);
    ~CompilerMenu() override;

    /// Replaces the sub-menus by those of \a catalogue, all items enabled. When \a familySet is not
    /// empty, only families whose names occur in it have one.
    void build(const CompilerCatalogue &catalogue, const QString &familySet);
    /// Enables the compilers that are for the product and the families that have one, and no
    /// others.
    void applyProduct(const QString &productCode);

private:
    CompilerMenuOwner *const m_owner;
    std::vector<std::unique_ptr<SubPopupMenu>> m_families;
};
