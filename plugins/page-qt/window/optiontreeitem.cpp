#include "optiontreeitem.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "owned.h"
#include "valuetext.h"

namespace tarq::page {
namespace {

/// One line, cut at the right where there is no room for more.
class ElidedLabel final : public QLabel {
public:
    ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    }
};

void makeQuiet(QWidget* widget) {
    QPalette palette = widget->palette();
    const QColor text = palette.color(QPalette::WindowText);
    const QColor behind = palette.color(QPalette::Window);
    const auto blend = [](int strong, int weak) { return (7 * strong + 3 * weak) / 10; };
    palette.setColor(QPalette::WindowText, QColor(blend(text.red(), behind.red()), blend(text.green(), behind.green()),
                                                  blend(text.blue(), behind.blue())));
    widget->setPalette(palette);
}

QString fromText(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

QLabel* makeQuietLabel(const QString& text, QWidget* parent) {
    auto* const label = makeOwned<QLabel>(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    makeQuiet(label);
    return label;
}

COptionTreeItem* COptionTreeItem::make(const Item& item, QWidget* parent) {
    COptionTreeItem* const made = makeOfKind(item, parent);
    // By the keyboard one comes to the editor first.
    setTabOrder(made->focusTarget(), made->restore_);
    return made;
}

COptionTreeItem* COptionTreeItem::makeOfKind(const Item& item, QWidget* parent) {
    switch (item.kind) {
        case TARQPageRadioGroup:
            return makeOwned<COptionTreeItemRadio>(item, parent);
        case TARQPageCheckBox:
            return makeOwned<COptionTreeItemCheckBox>(item, parent);
        case TARQPageComboBox:
            return makeOwned<COptionTreeItemComboBox>(item, parent);
        case TARQPageFileEdit:
            return makeOwned<COptionTreeItemEditFile>(item, parent);
        case TARQPageEditField:
            break;
    }
    return makeOwned<COptionTreeItemEdit>(item, parent);
}

COptionTreeItem::COptionTreeItem(const Item& item, QWidget* parent)
    : QWidget(parent), item_(item), value_(item.value), kept_(item.value) {
    QStringList searched{fromText(item.name), fromText(item.description)};
    for (const Option& option : item.options) searched << fromText(option.text);
    searched_ = searched.join(QLatin1Char('\n')).toLower();
    constexpr QMargins margins(12, 6, 8, 8);
    body_ = makeOwned<QVBoxLayout>(this);
    body_->setContentsMargins(margins);
    body_->setSpacing(3);
    makeHead();
}

void COptionTreeItem::makeHead() {
    auto* const head = makeOwned<QHBoxLayout>();
    name_ = makeOwned<QLabel>(fromText(item_.name), this);
    name_->setTextFormat(Qt::PlainText);
    QFont bold = name_->font();
    bold.setBold(true);
    // Wide enough for the marked name, so that nothing moves when it is marked.
    name_->setMinimumWidth(std::max(QFontMetrics(bold).horizontalAdvance(QStringLiteral("xmmmmm")),
                                    QFontMetrics(bold).horizontalAdvance(name_->text())));
    head->addWidget(name_);
    auto* const about = makeOwned<ElidedLabel>(fromText(item_.description), this);
    makeQuiet(about);
    head->addWidget(about, 1);
    restore_ = makeOwned<QToolButton>(this);
    restore_->setText(QStringLiteral("Restore default"));
    restore_->setFocusPolicy(Qt::StrongFocus);
    restore_->setObjectName(fromText(item_.name + ".restore"));
    restore_->setAccessibleName(QStringLiteral("Restore the default of ") + fromText(item_.name));
    restore_->setToolTip(QStringLiteral("Back to the default: ") + fromText(shownValue(item_, item_.defaultValue)));
    connect(restore_, &QToolButton::clicked, this, [this] {
        restoreDefault();
        focusTarget()->setFocus();  // the button goes
    });
    head->addWidget(restore_);
    const int height = restore_->sizeHint().height();
    name_->setMinimumHeight(height);
    body_->addLayout(head);
    setToolTip(QStringLiteral("<qt>%1</qt>").arg(fromText(item_.description).toHtmlEscaped()));
    mark();
}

bool COptionTreeItem::isDefault() const { return isSameValue(item_, value_, item_.defaultValue); }

void COptionTreeItem::restoreDefault() {
    if (isDefault()) return;
    take(item_.defaultValue);
    display(item_.defaultValue);
}

bool COptionTreeItem::holds(const QStringList& words) const {
    return std::ranges::all_of(words, [this](const QString& word) { return searched_.contains(word); });
}

void COptionTreeItem::setCurrent(bool isCurrent) {
    isCurrent_ = isCurrent;
    update();
}

QString COptionTreeItem::help() const {
    QString text = QStringLiteral("<p style='margin:0'><b>%1</b>").arg(fromText(item_.name).toHtmlEscaped());
    if (!item_.description.empty()) {
        text += QStringLiteral(" &nbsp;%1").arg(fromText(item_.description).toHtmlEscaped());
    }
    text += QStringLiteral("</p><p style='margin:4px 0 0 0'>");
    if (const std::string limits = limitsText(item_); !limits.empty()) {
        text += QStringLiteral("Limits: %1. &nbsp; ").arg(fromText(limits).toHtmlEscaped());
    }
    QString byDefault = fromText(shownValue(item_, item_.defaultValue)).toHtmlEscaped();
    if (byDefault.endsWith(QLatin1Char('.'))) byDefault.chop(1);
    text += QStringLiteral("Default: %1.</p>").arg(byDefault);
    return text;
}

void COptionTreeItem::take(std::string value) {
    if (value == value_) return;
    value_ = std::move(value);
    mark();
    if (onChange) onChange();
}

void COptionTreeItem::mark() {
    const bool differs = !isDefault();
    QFont font = name_->font();
    font.setBold(differs);
    name_->setFont(font);
    restore_->setVisible(differs);
    const QString byDefault = fromText(shownValue(item_, item_.defaultValue));
    setAccessibleName(fromText(item_.name));
    setAccessibleDescription(differs ? QStringLiteral("Differs from its default, %1").arg(byDefault) : QString());
    update();
}

void COptionTreeItem::introduce(QWidget* editor, const QString& objectName, const QString& accessibleName) const {
    editor->setObjectName(objectName);
    editor->setAccessibleName(accessibleName);
    editor->setAccessibleDescription(fromText(item_.description));
}

void COptionTreeItem::paintEvent(QPaintEvent* /*event*/) {
    constexpr int currentTint = 28;
    constexpr int barWidth = 3;
    QPainter painter(this);
    QColor colour = palette().color(QPalette::Highlight);
    if (!isDefault()) painter.fillRect(0, 0, barWidth, height(), colour);
    if (!isCurrent_) return;
    colour.setAlpha(currentTint);
    painter.fillRect(rect(), colour);
}

void COptionTreeItem::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    focusTarget()->setFocus(Qt::MouseFocusReason);
}

}  // namespace tarq::page
