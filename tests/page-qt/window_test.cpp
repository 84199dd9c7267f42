// The window in a host with a Qt application of its own, driven by events as a person would.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "tarq/page.h"
#include "tarq/tarq.h"

namespace tarq {
namespace {

using testing::HasSubstr;
using Values = std::map<std::string, std::string>;

/// The window, as a person finds things in it.
struct Page {
    QWidget& window;

    template <class Widget = QWidget>
    [[nodiscard]] Widget& find(const char* name) const {
        auto* const found = window.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    void click(const char* name) const { QTest::mouseClick(&find(name), Qt::LeftButton); }
    void type(const char* name, const char* text) const {
        find(name).setFocus();
        QTest::keyClick(&find(name), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&find(name), QLatin1String(text));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) const {
        QTest::keyClick(QApplication::focusWidget(), key, with);
    }
    [[nodiscard]] std::string focus() const { return QApplication::focusWidget()->objectName().toStdString(); }
    [[nodiscard]] std::string help() const { return find<QTextEdit>("help").toPlainText().toStdString(); }
    [[nodiscard]] std::string count() const { return find<QLabel>("count").text().toStdString(); }
};
using Person = std::function<void(const Page&)>;

struct Shown {
    bool isOk = false;
    std::int32_t isDirty = -1;
    std::vector<std::string> messages;
    Values changed;  ///< the model's parameters that differ from their defaults
};

class WindowTest : public testing::Test {
protected:
    /// Shows the page and has a person do something with it, who closes it at last. Messages are read and closed.
    Shown show(const Person& person) {
        Shown shown;
        QTimer::singleShot(0, [&] {
            QWidget* const window = QApplication::activeModalWidget();
            if (window == nullptr || !QTest::qWaitForWindowActive(window)) return;
            person({*window});
            if (window->isVisible()) window->close();
        });
        QTimer reader;
        QObject::connect(&reader, &QTimer::timeout, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            const char* const icon = box->icon() == QMessageBox::Warning ? "warning: " : "stop: ";
            shown.messages.push_back(icon + box->text().toStdString());
            box->accept();
        });
        reader.start(5);
        shown.isOk = model_->ShowPropertyPage(&shown.isDirty).isOk();
        shown.changed = changedValues();
        return shown;
    }

    Values changedValues() {
        Values changed;
        for (std::int32_t id = 1; id <= 121; ++id) {
            std::int32_t type = 0, length = 0, options = 0, category = 0, control = 0;
            std::string name, description;
            Variant minimum, maximum, byDefault, value;
            EXPECT_TRUE(model_
                            ->GetParameterInfo(id, &type, &name, &minimum, &maximum, &byDefault, &value, &length,
                                               &options, &description, &category, &control)
                            .isOk());
            if (value.toText() && byDefault.toText() && value.text() != byDefault.text()) changed[name] = value.text();
        }
        return changed;
    }

    Ref<ITARQModel> model_ = createObject<ITARQModel>("TARQModel");

private:
    int argumentCount_ = 1;
    char name_[5] = "host";
    char* arguments_[2] = {name_, nullptr};
    QApplication application_{argumentCount_, arguments_};
};

TEST_F(WindowTest, WhatIsChosenAndTypedIsInTheModelAfterwardsAndNothingElse) {
    const struct {
        const char* what;
        Person person;
        Values changed;
        std::int32_t isDirty = 1;
        std::vector<std::string> messages = {};
    } cases[] = {
        {"a number and a text typed, OK by the keyboard",
         [](const Page& page) {
             page.type("xmiter", " 123 ");
             page.type("xfnlog", "run of today.log");
             page.key(Qt::Key_Return);
         },
         {{"xmiter", "123"}, {"xfnlog", "run of today.log"}}},
        {"boxes ticked and emptied",
         [](const Page& page) {
             page.click("xchksw");
             page.click("xautom");
             page.click("ok");
         },
         {{"xchksw", "1"}, {"xautom", "0"}}},
        {"buttons of groups, by mouse and by arrow",
         [](const Page& page) {
             page.click("xminmx=max");
             page.find("xlptyp=2").setFocus();
             page.key(Qt::Key_Down);
             page.click("ok");
         },
         {{"xminmx", "max"}, {"xlptyp", "4"}}},
        {"an entry of a list whose values skip one",
         [](const Page& page) {
             page.find("xbrheu").setFocus();
             page.key(Qt::Key_End);
             page.click("ok");
         },
         {{"xbrheu", "6"}}},
        {"what the model refuses, beside what it takes",
         [](const Page& page) {
             page.type("xmreal", "5000");
             page.type("xmiter", "7");
             page.type("xmxnod", "many");
             page.click("ok");
         },
         {{"xmiter", "7"}},
         1,
         {"warning: Parameter xmreal could not be set.", "warning: Parameter xmxnod could not be set."}},
        {"applied, then changed again and cancelled",
         [](const Page& page) {
             page.click("apply");
             page.type("xmiter", "7");
             page.click("apply");
             page.type("xmiter", "8");
             page.click("cancel");
         },
         {{"xmiter", "7"}}},
        {"Escape",
         [](const Page& page) {
             page.type("xmiter", "7");
             page.key(Qt::Key_Escape);
         },
         {},
         0},
        {"a text beyond its length",
         [](const Page& page) {
             page.type("xfnlog", std::string(300, 'x').c_str());
             page.click("ok");
         },
         {{"xfnlog", std::string(256, 'x')}}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        ASSERT_TRUE(model_->ResetParameters().isOk());
        const Shown shown = show(each.person);
        EXPECT_TRUE(shown.isOk);
        EXPECT_EQ(shown.isDirty, each.isDirty);
        EXPECT_EQ(shown.changed, each.changed);
        EXPECT_EQ(shown.messages, each.messages);
    }
}

TEST_F(WindowTest, SearchShowsWhatFitsAndTheKeyboardGoesThere) {
    const Shown shown = show([](const Page& page) {
        EXPECT_EQ(page.count(), "108 parameters, 0 changed");
        EXPECT_EQ(page.focus(), "search");
        page.type("search", "MEMORY  block");
        EXPECT_EQ(page.count(), "1 of 108 parameters, 0 changed");
        EXPECT_FALSE(page.find("xmiter").isVisible());
        page.key(Qt::Key_Down);
        EXPECT_EQ(page.focus(), "xipmem=0") << "found by the text of a choice";
        EXPECT_THAT(page.help(), HasSubstr("Default: Allocate form TARQ memory block."));
        page.key(Qt::Key_F, Qt::ControlModifier);
        page.key(Qt::Key_Escape);
        EXPECT_TRUE(page.find("xmiter").isVisible()) << "Escape clears the search first";
        page.key(Qt::Key_Tab);
        page.key(Qt::Key_Tab);
        EXPECT_EQ(page.focus(), "sections") << "as one reads";
        page.key(Qt::Key_L);
        page.key(Qt::Key_Return);
        EXPECT_EQ(page.focus(), "xautom") << "the first of the LP parameters";
        page.type("search", "xglgap");
        page.key(Qt::Key_Return);
        EXPECT_THAT(page.help(), HasSubstr("Limits: 0 to 1.   Default: 0.0001."));
        page.type("xglgap", "2");
        EXPECT_EQ(page.count(), "2 of 108 parameters, 1 changed") << "a value that looks wrong is no obstacle";
        EXPECT_EQ(page.find("xglgap").accessibleDescription(), "Outside its limits, 0 to 1.");
    });
    EXPECT_EQ(shown.changed, Values());
}

TEST_F(WindowTest, DefaultsComeBackOneByOneAndAllAtOnce) {
    ASSERT_TRUE(model_->put_Parameter("xmiter", Variant(5)).isOk());
    ASSERT_TRUE(model_->put_Parameter("xglgap", Variant(0.5)).isOk());
    ASSERT_TRUE(model_->put_Parameter("xminmx", Variant("sideways")).isOk());
    const Shown one = show([](const Page& page) {
        page.click("onlyChanged");
        EXPECT_EQ(page.count(), "3 of 108 parameters, 3 changed");
        EXPECT_FALSE(page.find("xmreal.restore").isVisible());
        page.find("xmiter.restore").setFocus();
        page.key(Qt::Key_Return);
        page.type("xglgap", "1e-4");
        EXPECT_FALSE(page.find("xglgap.restore").isVisible()) << "the same number";
        page.click("ok");
    });
    EXPECT_EQ(one.changed, (Values{{"xminmx", "sideways"}})) << "no button stands for it";
    const Shown all = show([](const Page& page) {
        page.click("restoreDefaults");
        EXPECT_FALSE(page.find("restoreDefaults").isEnabled());
        page.click("ok");
    });
    EXPECT_EQ(all.changed, Values());
}

TEST_F(WindowTest, HostGoesOnAndNeitherASecondPageNorAnotherThreadDisturbsTheFirst) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(1);
    std::int32_t isDirty = 0;
    const auto failsToShow = [&] { return model_->ShowPropertyPage(&isDirty).failed(); };
    const Shown shown = show([&](const Page& page) {
        EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks > 20; }));
        EXPECT_TRUE(failsToShow()) << "a second page";
        page.type("xmiter", "7");
        page.click("ok");
    });
    EXPECT_EQ(shown.changed, (Values{{"xmiter", "7"}}));
    std::thread([&] { EXPECT_TRUE(failsToShow()) << "another thread"; }).join();
    EXPECT_TRUE(show([](const Page& page) { page.click("cancel"); }).isOk) << "and again on the right one";
}

/// The window is in a process of its own for a host with Qt but without widgets.
TEST(HostTest, EndsWhileAPageIsOpenAndThePageBreaksOff) {
    const auto endsWithin = [](QCoreApplication&& host) {
        const Ref<ITARQModel> model = createObject<ITARQModel>("TARQModel");
        int ticks = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (++ticks == 100) host.exit();
        });
        timer.start(5);
        std::int32_t isDirty = 7;
        EXPECT_EQ(model->ShowPropertyPage(&isDirty), status::propertyPage);
        EXPECT_EQ(ticks, 100);
    };
    int argumentCount = 1;
    char name[] = "host";
    char* arguments[] = {name, nullptr};
    endsWithin(QApplication(argumentCount, arguments));
    endsWithin(QCoreApplication(argumentCount, arguments));
}

}  // namespace
}  // namespace tarq

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
