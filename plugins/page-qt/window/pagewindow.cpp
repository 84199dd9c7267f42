#include "pagewindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "optiontree.h"
#include "owned.h"

namespace tarq::page {

PageWindow::PageWindow(const Page& page, Apply apply)
    : apply_(std::move(apply)),
      search_(makeOwned<QLineEdit>(this)),
      onlyChanged_(makeOwned<QCheckBox>(QStringLiteral("Only &changed"), this)),
      count_(makeQuietLabel({}, this)),
      tree_(makeOwned<COptionTree>(page, this)),
      help_(makeOwned<QTextEdit>(this)),
      buttons_(makeOwned<QDialogButtonBox>(this)) {
    setWindowTitle(QString::fromStdString(page.caption));
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_QuitOnClose, false);
    setSizeGripEnabled(true);
    makeHelp();
    makeButtons();
    auto* const splitter = makeOwned<QSplitter>(Qt::Vertical, this);
    splitter->addWidget(tree_);
    splitter->addWidget(help_);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setChildrenCollapsible(false);
    constexpr int linesOfHelp = 5;
    constexpr int whole = 1000;
    const int helpHeight = linesOfHelp * fontMetrics().lineSpacing();
    splitter->setSizes({whole - helpHeight, helpHeight});
    auto* const column = makeOwned<QVBoxLayout>(this);
    column->addLayout(makeSearch());
    column->addWidget(splitter, 1);
    column->addWidget(buttons_);
    connectKeys();
    tree_->onChange = [this] { refresh(); };
    tree_->onCurrent = [this](const COptionTreeItem& item) { help_->setHtml(item.help()); };
    search();
    search_->setFocus();
    place(page);
}

QHBoxLayout* PageWindow::makeSearch() {
    auto* const line = makeOwned<QHBoxLayout>();
    auto* const label = makeOwned<QLabel>(QStringLiteral("&Search:"), this);
    label->setBuddy(search_);
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(QStringLiteral("Words of names, descriptions and choices"));
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    onlyChanged_->setObjectName(QStringLiteral("onlyChanged"));
    onlyChanged_->setToolTip(QStringLiteral("Show only the parameters that differ from their default"));
    count_->setObjectName(QStringLiteral("count"));
    count_->setWordWrap(false);
    line->addWidget(label);
    line->addWidget(search_, 1);
    line->addWidget(onlyChanged_);
    line->addWidget(count_);
    connect(search_, &QLineEdit::textChanged, this, [this] { search(); });
    connect(onlyChanged_, &QCheckBox::toggled, this, [this] { search(); });
    return line;
}

void PageWindow::makeHelp() {
    help_->setObjectName(QStringLiteral("help"));
    help_->setAccessibleName(QStringLiteral("Help for the parameter at hand"));
    help_->setReadOnly(true);
    help_->setTabChangesFocus(true);
    help_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    help_->setPlaceholderText(QStringLiteral(
        "What a parameter means, its limits and its default are told here for the one you are at. Names of "
        "parameters that differ from their default are bold."));
}

void PageWindow::makeButtons() {
    buttons_->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply);
    applyButton_ = buttons_->button(QDialogButtonBox::Apply);
    applyButton_->setText(QStringLiteral("&Apply"));
    // The platform's own texts may have no letter to press, or one that is taken.
    buttons_->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&OK"));
    buttons_->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancel"));
    restoreButton_ = buttons_->addButton(QStringLiteral("Restore &defaults"), QDialogButtonBox::ResetRole);
    restoreButton_->setToolTip(
        QStringLiteral("All parameters back to their defaults; nothing is stored before you apply"));
    buttons_->button(QDialogButtonBox::Ok)->setDefault(true);
    const std::pair<const char*, QPushButton*> named[] = {{"ok", buttons_->button(QDialogButtonBox::Ok)},
                                                          {"cancel", buttons_->button(QDialogButtonBox::Cancel)},
                                                          {"apply", applyButton_},
                                                          {"restoreDefaults", restoreButton_}};
    for (const auto& [name, button] : named) button->setObjectName(QLatin1String(name));
    connect(buttons_, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons_, &QDialogButtonBox::rejected, this, [this] { reject(); });
    connect(applyButton_, &QPushButton::clicked, this, [this] { applyEdits(); });
    connect(restoreButton_, &QPushButton::clicked, this, [this] { restoreDefaults(); });
}

void PageWindow::connectKeys() {
    const auto onKey = [this](const QKeySequence& key, auto&& action) {
        connect(makeOwned<QShortcut>(key, this), &QShortcut::activated, this, action);
    };
    onKey(QKeySequence::Find, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    onKey(QKeySequence::HelpContents, [this] { help_->setFocus(Qt::ShortcutFocusReason); });
}

/// The search field has keys of its own: Return and Down go to what was found, Escape clears it.
bool PageWindow::eventFilter(QObject* object, QEvent* event) {
    if (object != search_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
    switch (static_cast<const QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Down:
            tree_->goToFirst();
            return true;
        case Qt::Key_Escape:
            if (search_->text().isEmpty()) return false;
            search_->clear();
            return true;
        default:
            return false;
    }
}

/// Return is OK, but for a button that has the keyboard and would do something else.
void PageWindow::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* const button = qobject_cast<QAbstractButton*>(focusWidget());
    if (!isReturn || button == nullptr || button->isCheckable()) return QDialog::keyPressEvent(event);
    button->click();
}

void PageWindow::place(const Page& page) {
    constexpr QSize wanted(900, 700);
    constexpr QSize frame(16, 48);  // room for what the window manager puts around
    const QPoint corner(page.left, page.top);
    const QScreen* screen = QGuiApplication::screenAt(corner);
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    QSize size = wanted;
    if (screen != nullptr) {
        const QRect room = screen->availableGeometry();
        size = size.boundedTo(QRect(corner, room.bottomRight()).size() - frame);
    }
    resize(size.expandedTo(minimumSizeHint()));
    move(corner);
}

void PageWindow::search() {
    foundCount_ = tree_->filter(search_->text(), onlyChanged_->isChecked());
    refresh();
}

void PageWindow::refresh() {
    const auto& items = tree_->items();
    const auto differing = std::ranges::count_if(items, [](const COptionTreeItem* item) { return !item->isDefault(); });
    const QString shown = static_cast<std::size_t>(foundCount_) == items.size()
                              ? QStringLiteral("%1 parameters").arg(foundCount_)
                              : QStringLiteral("%1 of %2 parameters").arg(foundCount_).arg(items.size());
    count_->setText(QStringLiteral("%1, %2 changed").arg(shown).arg(differing));
    restoreButton_->setEnabled(differing > 0);
    applyButton_->setEnabled(std::ranges::any_of(items, &COptionTreeItem::isEdited));
}

void PageWindow::applyEdits() {
    std::vector<Edit> edits;
    for (COptionTreeItem* const item : tree_->items()) {
        if (!item->isEdited()) continue;
        edits.push_back({item->item().name, item->value()});
        item->keep();
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const std::vector<Message> messages = apply_(edits);
    QApplication::restoreOverrideCursor();
    refresh();
    for (const Message& message : messages) {
        QMessageBox box(message.icon == TARQPageStop ? QMessageBox::Critical : QMessageBox::Warning, windowTitle(),
                        QString::fromStdString(message.text), QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
}

void PageWindow::accept() {
    applyEdits();
    QDialog::accept();
}

void PageWindow::restoreDefaults() {
    for (COptionTreeItem* const item : tree_->items()) item->restoreDefault();
}

}  // namespace tarq::page
