// The window of a page: search field, option tree, help for the item at hand, and the buttons.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "../page.h"

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QTextEdit;
class QHBoxLayout;
class QPushButton;

namespace tarq::page {

class COptionTree;

class PageWindow final : public QDialog {
public:
    /// Stores edits and gives back what there is to tell.
    using Apply = std::function<std::vector<Message>(const std::vector<Edit>&)>;

    /// Shows nothing yet; `exec` does, and returns when the person has closed the window.
    PageWindow(const Page& page, Apply apply);

    /// OK: stores the edits and closes.
    void accept() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QHBoxLayout* makeSearch();
    void makeHelp();
    void makeButtons();
    void connectKeys();
    /// Puts the window where the page wants it, as far as the screen goes.
    void place(const Page& page);
    /// Shows what fits to the search field and the box beside it.
    void search();
    /// What follows from a changed value.
    void refresh();
    void applyEdits();
    void restoreDefaults();

    Apply apply_;
    // Made in the order in which they are read: the keyboard goes through the window so.
    QLineEdit* search_;
    QCheckBox* onlyChanged_;
    QLabel* count_;
    COptionTree* tree_;
    QTextEdit* help_;
    QDialogButtonBox* buttons_;
    QPushButton* applyButton_ = nullptr;
    QPushButton* restoreButton_ = nullptr;
    int foundCount_ = 0;
};

}  // namespace tarq::page
