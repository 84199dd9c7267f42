// The items of the option tree: a parameter's name, help, editor, limits and default, one class for each kind of
// editor.
//
// An item holds its value as text and changes it only when the person does: a value that its editor can't show stays
// what it is. Editors bear the parameter's name as object name, the buttons of a radio group NAME=VALUE.
#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "../page.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QToolButton;
class QVBoxLayout;

namespace tarq::page {

/// What all kinds have in common. The kinds differ in their editor alone.
class COptionTreeItem : public QWidget {
public:
    /// An item of the class for its kind.
    static COptionTreeItem* make(const Item& item, QWidget* parent);

    [[nodiscard]] const Item& item() const { return item_; }
    /// As it would be handed to the component.
    [[nodiscard]] const std::string& value() const { return value_; }
    /// Whether the value differs from what it was at the beginning, or at the last `keep`.
    [[nodiscard]] bool isEdited() const { return value_ != kept_; }
    /// Whether the value is the default, be it written in another way.
    [[nodiscard]] bool isDefault() const;
    /// Takes the present value as the one from which edits differ.
    void keep() { kept_ = value_; }
    void restoreDefault();
    /// Whether each of the words, in lower case, stands in the name, the description or an option.
    [[nodiscard]] bool holds(const QStringList& words) const;
    /// Marks the item that the person is at.
    void setCurrent(bool isCurrent);
    /// What gets the keyboard when the person goes to the item.
    [[nodiscard]] virtual QWidget* focusTarget() const = 0;
    /// Name, description, limits and default as rich text.
    [[nodiscard]] QString help() const;

    /// Called after each change of the value.
    std::function<void()> onChange;

protected:
    COptionTreeItem(const Item& item, QWidget* parent);

    /// The place below the name for the editor.
    [[nodiscard]] QVBoxLayout* body() const { return body_; }
    /// Shows a value in the editor, without an answer through `take`.
    virtual void display(const std::string& value) = 0;
    /// A value that the person has chosen or typed.
    void take(std::string value);
    /// Gives an editor its names and the help.
    void introduce(QWidget* editor, const QString& objectName, const QString& accessibleName) const;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    static COptionTreeItem* makeOfKind(const Item& item, QWidget* parent);
    void makeHead();
    /// Shows whether the value differs from the default.
    void mark();

    const Item item_;
    std::string value_;
    std::string kept_;
    QString searched_;
    bool isCurrent_ = false;
    QVBoxLayout* body_ = nullptr;
    QLabel* name_ = nullptr;
    QToolButton* restore_ = nullptr;
};

/// A button for each option; a value that none has leaves all of them up and is told below.
class COptionTreeItemRadio final : public COptionTreeItem {
public:
    COptionTreeItemRadio(const Item& item, QWidget* parent);
    [[nodiscard]] QWidget* focusTarget() const override;

protected:
    void display(const std::string& value) override;

private:
    QButtonGroup* buttons_;
    QLabel* unnamed_;
};

/// One box, checked for the first option.
class COptionTreeItemCheckBox final : public COptionTreeItem {
public:
    COptionTreeItemCheckBox(const Item& item, QWidget* parent);
    [[nodiscard]] QWidget* focusTarget() const override;

protected:
    void display(const std::string& value) override;

private:
    QCheckBox* box_;
};

/// A list with an entry for each option.
class COptionTreeItemComboBox final : public COptionTreeItem {
public:
    COptionTreeItemComboBox(const Item& item, QWidget* parent);
    [[nodiscard]] QWidget* focusTarget() const override;

protected:
    void display(const std::string& value) override;

private:
    QComboBox* box_;
};

/// A field to type in, with a hint where the value would hardly be stored.
class COptionTreeItemEdit : public COptionTreeItem {
public:
    COptionTreeItemEdit(const Item& item, QWidget* parent);
    [[nodiscard]] QWidget* focusTarget() const override;

protected:
    void display(const std::string& value) override;
    [[nodiscard]] QLineEdit* field() const { return field_; }
    /// The field and what stands beside it.
    [[nodiscard]] QHBoxLayout* line() const { return line_; }

private:
    void giveHint();

    QHBoxLayout* line_;
    QLineEdit* field_;
    QLabel* hintSign_;
    QLabel* hint_;
};

/// The same with a button to look for a file.
class COptionTreeItemEditFile final : public COptionTreeItemEdit {
public:
    COptionTreeItemEditFile(const Item& item, QWidget* parent);

private:
    void browse();
};

/// Text that is less important than what it stands beside, and breaks its lines.
[[nodiscard]] QLabel* makeQuietLabel(const QString& text, QWidget* parent);

}  // namespace tarq::page
