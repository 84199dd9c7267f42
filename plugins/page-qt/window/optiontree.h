// COptionTree: the sections of a page and their items, with a tree to go about in at the left.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "../page.h"
#include "optiontreeitem.h"

class QLabel;
class QScrollArea;
class QTreeWidget;
class QTreeWidgetItem;

namespace tarq::page {

class COptionTree final : public QWidget {
public:
    /// Makes an item for each of the page's, and a branch for each section and item.
    COptionTree(const Page& page, QWidget* parent);

    /// All items, in the order of the page; they live as long as the tree.
    [[nodiscard]] const std::vector<COptionTreeItem*>& items() const { return items_; }

    /// Shows the items that hold all words of `search`, in any case of letters, and that differ from their default if
    /// only those are wanted. Returns how many those are.
    int filter(const QString& search, bool isOnlyChanged);
    /// Gives the keyboard to the first item that is shown.
    void goToFirst();

    /// Called when a value has changed.
    std::function<void()> onChange;
    /// Called when the person goes to an item.
    std::function<void(const COptionTreeItem&)> onCurrent;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// A section as it stands on both sides: above its items, and in the tree.
    struct ShownSection {
        QLabel* heading = nullptr;
        QTreeWidgetItem* branch = nullptr;
        std::vector<COptionTreeItem*> items;
    };

    void addSection(const Section& section, QWidget* content);
    void addItem(const Item& item, ShownSection& section, QWidget* content);
    [[nodiscard]] int branchHeight() const;
    /// Has a branch that is chosen lead to its section or item.
    void connectTree();
    void setCurrent(COptionTreeItem* item);
    void markBranch(const COptionTreeItem& item);
    /// Has the tree show which section is at the top of the view.
    void followScrolling();

    QTreeWidget* tree_;
    QScrollArea* view_;
    QLabel* nothing_;  ///< stands there where the filter shows nothing
    std::vector<ShownSection> sections_;
    std::vector<COptionTreeItem*> items_;
    std::vector<QTreeWidgetItem*> branches_;  ///< one for each of the items
    COptionTreeItem* current_ = nullptr;
};

}  // namespace tarq::page
