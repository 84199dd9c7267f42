#include "optiontree.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "owned.h"

namespace tarq::page {
namespace {

QLabel* makeHeading(const QString& title, QWidget* parent) {
    constexpr double enlargement = 1.2;
    auto* const heading = makeOwned<QLabel>(title, parent);
    heading->setTextFormat(Qt::PlainText);
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * enlargement);
    heading->setFont(font);
    constexpr QMargins margins(12, 12, 0, 4);
    heading->setContentsMargins(margins);
    return heading;
}

}  // namespace

COptionTree::COptionTree(const Page& page, QWidget* parent)
    : QWidget(parent),
      tree_(makeOwned<QTreeWidget>()),
      view_(makeOwned<QScrollArea>()),
      nothing_(makeQuietLabel(QStringLiteral("No parameter fits to this search."), this)) {
    constexpr int treeWidth = 215;
    constexpr int viewWidth = 620;
    tree_->setObjectName(QStringLiteral("sections"));
    tree_->setAccessibleName(QStringLiteral("Sections"));
    tree_->setHeaderHidden(true);
    tree_->setMinimumWidth(treeWidth / 2);
    auto* const content = makeOwned<QWidget>();
    auto* const column = makeOwned<QVBoxLayout>(content);
    column->setContentsMargins({});
    column->setSpacing(0);
    nothing_->setAlignment(Qt::AlignCenter);
    nothing_->hide();
    column->addWidget(nothing_);
    sections_.reserve(page.sections.size());
    for (const Section& section : page.sections) addSection(section, content);
    column->addStretch(1);
    view_->setWidget(content);
    view_->setWidgetResizable(true);
    view_->setFocusPolicy(Qt::NoFocus);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* const splitter = makeOwned<QSplitter>(this);
    splitter->addWidget(tree_);
    splitter->addWidget(view_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({treeWidth, viewWidth});
    splitter->setChildrenCollapsible(false);
    auto* const whole = makeOwned<QHBoxLayout>(this);
    whole->setContentsMargins({});
    whole->addWidget(splitter);
    connectTree();
}

void COptionTree::addSection(const Section& section, QWidget* content) {
    const QString title = QString::fromStdString(section.title);
    ShownSection& shown = sections_.emplace_back();
    shown.heading = makeHeading(title, content);
    content->layout()->addWidget(shown.heading);
    shown.branch = makeOwned<QTreeWidgetItem>(tree_, QStringList(title));
    shown.branch->setToolTip(0, title);
    shown.branch->setSizeHint(0, QSize(0, branchHeight()));
    for (const Item& item : section.items) addItem(item, shown, content);
}

int COptionTree::branchHeight() const {
    constexpr int air = 6;
    return fontMetrics().lineSpacing() + air;
}

void COptionTree::addItem(const Item& item, ShownSection& section, QWidget* content) {
    COptionTreeItem* const shown = COptionTreeItem::make(item, content);
    content->layout()->addWidget(shown);
    section.items.push_back(shown);
    items_.push_back(shown);
    branches_.push_back(makeOwned<QTreeWidgetItem>(section.branch, QStringList(QString::fromStdString(item.name))));
    branches_.back()->setToolTip(0, shown->toolTip());
    branches_.back()->setSizeHint(0, QSize(0, branchHeight()));
    markBranch(*shown);
    shown->onChange = [this, shown] {
        markBranch(*shown);
        setCurrent(shown);
        if (onChange) onChange();
    };
}

void COptionTree::connectTree() {
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* branch) {
        if (const auto at = std::ranges::find(branches_, branch); at != branches_.end()) {
            COptionTreeItem* const item = items_[static_cast<std::size_t>(at - branches_.begin())];
            view_->ensureWidgetVisible(item, 0, item->height());
            setCurrent(item);
        }
        const auto section = std::ranges::find(sections_, branch, &ShownSection::branch);
        if (section != sections_.end()) view_->verticalScrollBar()->setValue(section->heading->y());
    });
    tree_->installEventFilter(this);
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { followScrolling(); });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* focused) {
        for (QWidget* widget = focused; widget != nullptr; widget = widget->parentWidget()) {
            const auto at = std::ranges::find(items_, widget);
            if (at != items_.end()) return setCurrent(*at);
        }
    });
}

/// Return goes from the tree to the editor of an item, or of a section's first one, and doesn't close the window.
bool COptionTree::eventFilter(QObject* object, QEvent* event) {
    if (object != tree_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(object, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    const QTreeWidgetItem* const at = tree_->currentItem();
    const auto goal = std::ranges::find_if(branches_, [at](QTreeWidgetItem* branch) {
        return branch == at || (branch->parent() == at && !branch->isHidden());
    });
    if (goal != branches_.end()) items_[static_cast<std::size_t>(goal - branches_.begin())]->focusTarget()->setFocus();
    return true;
}

void COptionTree::setCurrent(COptionTreeItem* item) {
    if (item == current_) return;
    if (current_ != nullptr) current_->setCurrent(false);
    current_ = item;
    current_->setCurrent(true);
    if (onCurrent) onCurrent(*current_);
}

void COptionTree::markBranch(const COptionTreeItem& item) {
    const auto at = std::ranges::find(items_, &item);
    QTreeWidgetItem* const branch = branches_[static_cast<std::size_t>(at - items_.begin())];
    const auto setBold = [](QTreeWidgetItem* marked, bool isBold) {
        QFont font = marked->font(0);
        font.setBold(isBold);
        marked->setFont(0, font);
    };
    setBold(branch, !item.isDefault());
    bool isOneChanged = false;
    for (int child = 0; child < branch->parent()->childCount(); ++child) {
        isOneChanged = isOneChanged || branch->parent()->child(child)->font(0).bold();
    }
    setBold(branch->parent(), isOneChanged);
}

void COptionTree::followScrolling() {
    const int top = view_->verticalScrollBar()->value();
    QTreeWidgetItem* branch = nullptr;
    for (const ShownSection& section : sections_) {
        if (section.heading->isHidden()) continue;
        if (branch == nullptr || section.heading->y() <= top) branch = section.branch;
    }
    // Where the person goes about in the tree itself, its own place holds.
    if (branch == nullptr || tree_->hasFocus()) return;
    const QSignalBlocker quiet(tree_);
    tree_->setCurrentItem(branch);
}

int COptionTree::filter(const QString& search, bool isOnlyChanged) {
    const QStringList words = search.toLower().simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    int count = 0;
    std::size_t position = 0;
    for (const ShownSection& section : sections_) {
        int countHere = 0;
        for (COptionTreeItem* const item : section.items) {
            const bool isShown = item->holds(words) && !(isOnlyChanged && item->isDefault());
            item->setVisible(isShown);
            branches_[position++]->setHidden(!isShown);
            countHere += isShown ? 1 : 0;
        }
        section.heading->setVisible(countHere > 0);
        section.branch->setHidden(countHere == 0);
        section.branch->setExpanded(!words.isEmpty() || isOnlyChanged);
        count += countHere;
    }
    nothing_->setVisible(count == 0);
    view_->verticalScrollBar()->setValue(0);
    return count;
}

void COptionTree::goToFirst() {
    const auto shown = std::ranges::find_if(items_, [](const COptionTreeItem* item) { return !item->isHidden(); });
    if (shown != items_.end()) (*shown)->focusTarget()->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace tarq::page
