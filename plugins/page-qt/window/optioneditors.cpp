// The editors of the items.
#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStylePainter>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <limits>

#include "optiontreeitem.h"
#include "owned.h"
#include "valuetext.h"

namespace tarq::page {
namespace {

QString fromText(const std::string& text) { return QString::fromStdString(text); }

/// What is typed, without zero bytes, which a value can't hold.
std::string toText(QString typed) { return typed.remove(QChar(u'\0')).toStdString(); }

/// The text of a button, which breaks its lines where the button's own couldn't. A click on it is one on the button.
class ButtonText final : public QLabel {
public:
    ButtonText(const QString& text, QAbstractButton* button, QWidget* parent) : QLabel(text, parent), button_(button) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
    /// One line if there is room. A label that breaks its lines asks for several in any case.
    [[nodiscard]] QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text()), fontMetrics().lineSpacing()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, fontMetrics().lineSpacing()}; }

protected:
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
        button_->setFocus(Qt::MouseFocusReason);
        button_->click();
    }

private:
    QAbstractButton* button_;
};

/// Shows as much of an entry as there is room for. A wheel that turns the page must not change what it passes over.
class ComboBox final : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int margins = 8;  // that a style may leave around the text
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        const QString text = currentIndex() < 0 ? placeholderText() : option.currentText;
        option.currentText = fontMetrics().elidedText(text, Qt::ElideRight, room.width() - margins);
        QStylePainter painter(this);
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

void addButton(QVBoxLayout* place, QAbstractButton* button, const QString& text, QWidget* parent) {
    auto* const line = makeOwned<QHBoxLayout>();
    line->setSpacing(6);
    line->addWidget(button, 0, Qt::AlignTop);
    line->addWidget(makeOwned<ButtonText>(text, button, parent), 1);
    place->addLayout(line);
}

QString withDefaultMark(const Option& option, const Item& item) {
    const QString text = fromText(option.text);
    return option.value == item.defaultValue ? text + QStringLiteral("  (default)") : text;
}

}  // namespace

COptionTreeItemRadio::COptionTreeItemRadio(const Item& item, QWidget* parent)
    : COptionTreeItem(item, parent), buttons_(makeOwned<QButtonGroup>(this)), unnamed_(makeQuietLabel({}, this)) {
    int position = 0;
    for (const Option& option : item.options) {
        auto* const button = makeOwned<QRadioButton>(this);
        const QString text = withDefaultMark(option, item);
        introduce(button, fromText(item.name + '=' + option.value), fromText(item.name) + QStringLiteral(": ") + text);
        buttons_->addButton(button, position++);
        addButton(body(), button, text, this);
    }
    body()->addWidget(unnamed_);
    display(item.value);
    connect(buttons_, &QButtonGroup::idClicked, this, [this](int chosen) {
        unnamed_->hide();
        take(this->item().options[static_cast<std::size_t>(chosen)].value);
    });
}

QWidget* COptionTreeItemRadio::focusTarget() const {
    if (QAbstractButton* const checked = buttons_->checkedButton()) return checked;
    const auto all = buttons_->buttons();
    return all.isEmpty() ? unnamed_ : static_cast<QWidget*>(all.first());
}

void COptionTreeItemRadio::display(const std::string& value) {
    const auto option = std::ranges::find(item().options, value, &Option::value);
    const bool isNamed = option != item().options.end();
    // A group that is exclusive can't have nothing chosen.
    buttons_->setExclusive(false);
    for (QAbstractButton* const button : buttons_->buttons()) {
        button->setChecked(isNamed && buttons_->id(button) == option - item().options.begin());
    }
    buttons_->setExclusive(true);
    unnamed_->setText(QStringLiteral("Now: %1, none of these").arg(fromText(shownValue(item(), value))));
    unnamed_->setVisible(!isNamed);
}

COptionTreeItemCheckBox::COptionTreeItemCheckBox(const Item& item, QWidget* parent)
    : COptionTreeItem(item, parent), box_(makeOwned<QCheckBox>(this)) {
    const QString text = fromText(item.options.front().text);
    introduce(box_, fromText(item.name), fromText(item.name) + QStringLiteral(": ") + text);
    const QString byDefault = fromText(shownValue(item, item.defaultValue));
    addButton(body(), box_, text + QStringLiteral("  (default: %1)").arg(byDefault), this);
    display(item.value);
    connect(box_, &QCheckBox::clicked, this,
            [this](bool isTicked) { take(this->item().options[isTicked ? 0 : 1].value); });
}

QWidget* COptionTreeItemCheckBox::focusTarget() const { return box_; }

void COptionTreeItemCheckBox::display(const std::string& value) {
    box_->setChecked(value == item().options.front().value);
}

COptionTreeItemComboBox::COptionTreeItemComboBox(const Item& item, QWidget* parent)
    : COptionTreeItem(item, parent), box_(makeOwned<ComboBox>(this)) {
    box_->setFocusPolicy(Qt::StrongFocus);  // the wheel doesn't bring the keyboard along either
    constexpr int fewestLetters = 16;
    constexpr int widestList = 720;
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(fewestLetters);
    introduce(box_, fromText(item.name), fromText(item.name));
    for (const Option& option : item.options) {
        box_->addItem(withDefaultMark(option, item));
        box_->setItemData(box_->count() - 1, fromText(option.text), Qt::ToolTipRole);
    }
    constexpr int margins = 24;
    box_->view()->setMinimumWidth(std::min(box_->view()->sizeHintForColumn(0) + margins, widestList));
    body()->addWidget(box_);
    display(item.value);
    connect(box_, &QComboBox::activated, this,
            [this](int chosen) { take(this->item().options[static_cast<std::size_t>(chosen)].value); });
}

QWidget* COptionTreeItemComboBox::focusTarget() const { return box_; }

void COptionTreeItemComboBox::display(const std::string& value) {
    const auto option = std::ranges::find(item().options, value, &Option::value);
    const bool isNamed = option != item().options.end();
    box_->setPlaceholderText(fromText(value) + QStringLiteral(" (no entry of this list)"));
    box_->setCurrentIndex(isNamed ? static_cast<int>(option - item().options.begin()) : -1);
}

COptionTreeItemEdit::COptionTreeItemEdit(const Item& item, QWidget* parent)
    : COptionTreeItem(item, parent),
      line_(makeOwned<QHBoxLayout>()),
      field_(makeOwned<QLineEdit>(this)),
      hintSign_(makeOwned<QLabel>(this)),
      hint_(makeQuietLabel({}, this)) {
    constexpr int numberLetters = 22;
    introduce(field_, fromText(item.name), fromText(item.name));
    field_->setMaxLength(item.maximumLength > 0 ? item.maximumLength : std::numeric_limits<int>::max());
    const bool isNumber = item.type != TARQPageText;
    if (isNumber) field_->setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * numberLetters);
    const int signSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    hintSign_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(signSize));
    line_->setSpacing(8);
    line_->addWidget(field_, isNumber ? 0 : 2);
    line_->addWidget(hintSign_);
    line_->addWidget(hint_, 1);
    body()->addLayout(line_);
    COptionTreeItemEdit::display(item.value);
    connect(field_, &QLineEdit::textChanged, this, [this](const QString& typed) {
        take(toText(this->item().type == TARQPageText ? typed : typed.trimmed()));
        giveHint();
    });
}

QWidget* COptionTreeItemEdit::focusTarget() const { return field_; }

void COptionTreeItemEdit::display(const std::string& value) {
    const QSignalBlocker quiet(field_);
    field_->setText(fromText(value));
    field_->setCursorPosition(0);
    giveHint();
}

void COptionTreeItemEdit::giveHint() {
    const std::string doubt = doubtAbout(item(), value());
    hintSign_->setVisible(!doubt.empty());
    std::string hint = doubt;
    if (doubt.empty()) {
        hint = item().type == TARQPageText ? std::string() : limitsText(item());
        if (!hint.empty()) hint += ", ";
        hint += "default " + shownValue(item(), item().defaultValue);
    }
    hint_->setText(fromText(hint));
    field_->setAccessibleDescription(fromText(doubt.empty() ? item().description : doubt));
}

COptionTreeItemEditFile::COptionTreeItemEditFile(const Item& item, QWidget* parent)
    : COptionTreeItemEdit(item, parent) {
    auto* const button = makeOwned<QPushButton>(QStringLiteral("Browse…"), this);
    button->setAutoDefault(false);
    introduce(button, fromText(item.name + ".browse"), QStringLiteral("Browse for ") + fromText(item.name));
    line()->insertWidget(1, button);
    connect(button, &QPushButton::clicked, this, [this] { browse(); });
}

void COptionTreeItemEditFile::browse() {
    // The file may be there or not: some of these are read, some are written.
    const QString chosen =
        QFileDialog::getSaveFileName(window(), QStringLiteral("File for ") + fromText(item().name), field()->text(), {},
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) field()->setText(chosen);
}

}  // namespace tarq::page
