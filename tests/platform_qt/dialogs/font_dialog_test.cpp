#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <functional>
#include <tuple>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/dialogs/common_dialog.h"
#include "platform_qt/dialogs/common_dialog_font.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/dialogs/font_families.h"
#include "platform_qt/dialogs/modal_driver.h"
#include "platform_qt/windows/window_focus.h"

namespace verlume::qt {
namespace {

enum List { kFamilies, kStyles, kSizes };

QListView* ListOf(const QFontDialog& fonts, List list) {
  return fonts.findChildren<QListView*>(Qt::FindDirectChildrenOnly).at(list);
}

QString ChosenIn(const QFontDialog& fonts, List list) {
  return ListOf(fonts, list)->currentIndex().data().toString();
}

// What the field above the list says.
QString FieldOf(const QFontDialog& fonts, List list) {
  return fonts.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly).at(list)->text();
}

void Choose(const QFontDialog& fonts, List list, const QString& name) {
  QListView* view = ListOf(fonts, list);
  const QModelIndexList found =
      view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
  ASSERT_FALSE(found.isEmpty()) << name.toStdString();
  view->setCurrentIndex(found.front());
}

// Lists a family by the name that Qt gives it where several makers offer it.
void ListFamily(const QFontDialog& fonts, const QString& name) {
  QAbstractItemModel* families = ListOf(fonts, kFamilies)->model();
  const int row = families->rowCount();
  families->insertRow(row);
  families->setData(families->index(row, 0), name);
}

void ChooseWritingSystem(const QFontDialog& fonts, QFontDatabase::WritingSystem system) {
  auto* systems = fonts.findChild<QComboBox*>();
  systems->setCurrentIndex(system);
  emit systems->activated(system);
}

QLineEdit* SampleOf(const QFontDialog& fonts) {
  for (const QGroupBox* box : fonts.findChildren<QGroupBox*>()) {
    if (auto* sample = box->findChild<QLineEdit*>()) return sample;
  }
  return nullptr;
}

// What a choice says besides the size, which the dialog holds within its limits.
auto All(const FontChoice& choice) {
  return std::tuple(choice.name, choice.bold, choice.italic, choice.underline, choice.strikethrough,
                    choice.color, choice.size);
}

// Every installed family, and one that is not.
QStringList Families() {
  return QFontDatabase::families() << QStringLiteral("No Such Font");
}

class FontDialogTest : public testing::Test {
 protected:
  FontDialogTest() { EXPECT_TRUE(ShowAndWait(mainWindow)); }

  FontChoice Ask(std::function<void(QFontDialog&)> act) {
    const ModalDriver driver([act = std::move(act)](QDialog& dialog) {
      act(dynamic_cast<QFontDialog&>(dialog));
      dialog.accept();
    });
    return dialogs.ShowFont(start, 8, 11);
  }
  // The same without showing the dialog, for what is tried with many fonts.
  FontChoice AskQuietly(const std::function<void(FontDialog&)>& act) {
    FontDialog fonts(&mainWindow, start, 8, 11);
    act(fonts);
    fonts.accept();
    return fonts.Choice();
  }

  QWidget mainWindow;
  QtCommonDialog dialogs{&mainWindow};
  FontChoice start{.name = u"DejaVu Sans",
                   .bold = true,
                   .italic = false,
                   .underline = true,
                   .strikethrough = false,
                   .color = 0x1234,
                   .size = 10};
};

TEST_F(FontDialogTest, StyleGoesInAndComesOutUnchanged) {
  const FontChoice choice = Ask([](QFontDialog& fonts) {
    EXPECT_EQ(fonts.currentFont().family(), "DejaVu Sans");
    EXPECT_TRUE(fonts.currentFont().bold());
    EXPECT_TRUE(fonts.currentFont().underline());
    EXPECT_FALSE(fonts.currentFont().strikeOut());
  });
  EXPECT_EQ(choice.name, u"DejaVu Sans");
  EXPECT_TRUE(choice.bold);
  EXPECT_FALSE(choice.italic);
  EXPECT_TRUE(choice.underline);
  EXPECT_FALSE(choice.strikethrough);
  EXPECT_EQ(choice.color, 0x1234);
  EXPECT_EQ(choice.size, 10);
}

TEST_F(FontDialogTest, StyleGoesInAndComesOutInGreekToo) {
  QtDialogs boxes(&mainWindow);
  boxes.SetLanguage(true);
  start.italic = true;
  const FontChoice choice = Ask([](QFontDialog&) {});
  EXPECT_TRUE(choice.bold);
  EXPECT_TRUE(choice.italic);
}

TEST_F(FontDialogTest, AFontThatIsNotInstalledIsShownByItsNameAndInItsStyle) {
  start.name = u"No Such Font";
  start.italic = true;
  const FontChoice choice = Ask([](QFontDialog& fonts) {
    EXPECT_EQ(ChosenIn(fonts, kFamilies), "No Such Font");
    EXPECT_EQ(FieldOf(fonts, kFamilies), "No Such Font");
    EXPECT_EQ(FieldOf(fonts, kStyles), ChosenIn(fonts, kStyles));
    EXPECT_TRUE(SampleOf(fonts)->font().bold());
    EXPECT_TRUE(SampleOf(fonts)->font().italic());
    EXPECT_TRUE(SampleOf(fonts)->font().underline());
  });
  EXPECT_EQ(All(choice), All(start));
}

TEST_F(FontDialogTest, OkWithoutAChangeChangesNothingInAnyFont) {
  for (const QString& family : Families()) {
    for (const bool isBold : {false, true}) {
      start.name = FromQt(family);
      start.bold = isBold;
      start.italic = !isBold;
      start.size = 9.5;
      const FontChoice choice = AskQuietly([&](FontDialog& fonts) {
        EXPECT_EQ(FieldOf(fonts, kFamilies), family);
        EXPECT_EQ(SampleOf(fonts)->font().bold(), isBold);
        EXPECT_EQ(SampleOf(fonts)->font().italic(), !isBold);
      });
      EXPECT_EQ(All(choice), All(start)) << family.toStdString();
    }
  }
}

TEST_F(FontDialogTest, AnotherFamilyKeepsTheStyle) {
  start.name = u"No Such Font";
  for (const QString& family : QFontDatabase::families()) {
    for (const bool isBold : {false, true}) {
      start.bold = isBold;
      start.italic = !isBold;
      const FontChoice choice = AskQuietly([&](FontDialog& fonts) {
        Choose(fonts, kFamilies, family);
        EXPECT_EQ(FieldOf(fonts, kFamilies), family);
        EXPECT_EQ(SampleOf(fonts)->font().bold(), isBold);
        EXPECT_EQ(SampleOf(fonts)->font().italic(), !isBold);
      });
      FontChoice expected = start;
      expected.name = FromQt(WithoutMaker(family));
      EXPECT_EQ(All(choice), All(expected));
    }
  }
}

TEST_F(FontDialogTest, OnlyWhatIsChangedChanges) {
  start.name = u"No Such Font";
  FontChoice expected = start;
  expected.size = 9;
  EXPECT_EQ(All(AskQuietly([](FontDialog& fonts) { Choose(fonts, kSizes, "9"); })), All(expected));
  expected = start;
  expected.bold = false;
  expected.italic = true;
  const auto chooseSecondLook = [](FontDialog& fonts) {
    const QAbstractItemModel* styles = ListOf(fonts, kStyles)->model();
    for (int row = 0; row < styles->rowCount(); ++row) {
      const QString style = styles->index(row, 0).data().toString();
      if (style == "Italic" || style == "Oblique") return Choose(fonts, kStyles, style);
    }
    ADD_FAILURE() << "no italic style";
  };
  EXPECT_EQ(All(AskQuietly(chooseSecondLook)), All(expected));
}

TEST_F(FontDialogTest, AStyleThatTheFamilyLacksStaysUntilAnotherIsChosen) {
  const auto act = [](FontDialog& fonts) {
    ListFamily(fonts, "No Family Of This Name");
    Choose(fonts, kFamilies, "No Family Of This Name");
    EXPECT_EQ(ChosenIn(fonts, kStyles), "");
    EXPECT_EQ(FieldOf(fonts, kStyles), "Bold");
  };
  EXPECT_TRUE(AskQuietly(act).bold);
  const auto chooseRegular = [&act](FontDialog& fonts) {
    act(fonts);
    Choose(fonts, kFamilies, "DejaVu Sans Mono");
    Choose(fonts, kStyles, "Book");
  };
  EXPECT_FALSE(AskQuietly(chooseRegular).bold);
}

TEST_F(FontDialogTest, ChosenStyleComesOut) {
  const FontChoice choice = Ask([](QFontDialog& fonts) {
    Choose(fonts, kFamilies, "DejaVu Sans Mono");
    Choose(fonts, kStyles, "Oblique");
    Choose(fonts, kSizes, "9");
    for (auto* effect : fonts.findChildren<QCheckBox*>()) effect->click();
  });
  EXPECT_EQ(choice.name, u"DejaVu Sans Mono");
  EXPECT_FALSE(choice.bold);
  EXPECT_TRUE(choice.italic);
  EXPECT_FALSE(choice.underline);
  EXPECT_TRUE(choice.strikethrough);
  EXPECT_EQ(choice.size, 9);
}

TEST_F(FontDialogTest, AFamilyIsStoredUnderTheNameThatOthersHave) {
  EXPECT_EQ(WithoutMaker("C059 [urw]"), "C059");
  EXPECT_EQ(WithoutMaker("Nimbus Sans [URW ]"), "Nimbus Sans");
  EXPECT_EQ(WithoutMaker("C059"), "C059");
  EXPECT_EQ(WithoutMaker("[urw]"), "[urw]");
  EXPECT_EQ(WithoutMaker("Odd [name] Sans"), "Odd [name] Sans");
  for (const char* name : {"Twin [one]", "Twin [two]"}) {
    const auto chooseTwin = [name](FontDialog& fonts) {
      ListFamily(fonts, "Twin [one]");
      ListFamily(fonts, "Twin [two]");
      Choose(fonts, kFamilies, name);
    };
    EXPECT_EQ(AskQuietly(chooseTwin).name, u"Twin");
  }
}

TEST_F(FontDialogTest, TheOwnFamilyStaysInEveryWritingSystem) {
  for (const char16_t* name : {u"No Such Font", u"DejaVu Sans Mono"}) {
    start.name = name;
    const auto tryAll = [&](FontDialog& fonts) {
      for (const auto system : {QFontDatabase::Greek, QFontDatabase::Thai, QFontDatabase::Any}) {
        ChooseWritingSystem(fonts, system);
        EXPECT_EQ(ChosenIn(fonts, kFamilies), ToQt(start.name));
        EXPECT_EQ(FieldOf(fonts, kFamilies), ToQt(start.name));
        EXPECT_TRUE(SampleOf(fonts)->font().bold());
      }
    };
    EXPECT_EQ(All(AskQuietly(tryAll)), All(start));
  }
}

TEST_F(FontDialogTest, WhatIsChosenAroundAWritingSystemComesOut) {
  const auto act = [](FontDialog& fonts) {
    Choose(fonts, kSizes, "9");
    for (const auto system : {QFontDatabase::Thai, QFontDatabase::Greek}) {
      ChooseWritingSystem(fonts, system);
    }
    Choose(fonts, kStyles, "Oblique");
    Choose(fonts, kFamilies, "DejaVu Sans Mono");
  };
  const FontChoice choice = AskQuietly(act);
  EXPECT_EQ(choice.name, u"DejaVu Sans Mono");
  EXPECT_FALSE(choice.bold);
  EXPECT_TRUE(choice.italic);
  EXPECT_EQ(choice.size, 9);
}

TEST_F(FontDialogTest, TheSampleShowsBothAlphabetsInBothLanguages) {
  QtDialogs boxes(&mainWindow);
  for (const bool isGreek : {true, false}) {
    boxes.SetLanguage(isGreek);
    AskQuietly([](FontDialog& fonts) {
      EXPECT_EQ(SampleOf(fonts)->text(), QStringLiteral("AaBbYy ΑαΒβΩω"));
      ChooseWritingSystem(fonts, QFontDatabase::Thai);
      ChooseWritingSystem(fonts, QFontDatabase::Any);
      EXPECT_EQ(SampleOf(fonts)->text(), QStringLiteral("AaBbYy ΑαΒβΩω"));
    });
  }
}

TEST_F(FontDialogTest, ChosenColorComesOut) {
  for (const bool accepted : {true, false}) {
    const FontChoice choice = Ask([accepted](QFontDialog& fonts) {
      const ModalDriver colors([accepted](QDialog& dialog) {
        dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::red);
        accepted ? dialog.accept() : dialog.reject();
      });
      fonts.findChild<QPushButton*>("cmdColor")->click();
    });
    EXPECT_EQ(choice.color, accepted ? 255 : 0x1234);
  }
}

TEST_F(FontDialogTest, SizeIsHeldWithinItsLimits) {
  const auto sized = [this](int size) {
    return Ask([size](QFontDialog& fonts) {
             QFont font = fonts.currentFont();
             font.setPointSize(size);
             fonts.setCurrentFont(font);
           })
        .size;
  };
  EXPECT_EQ(sized(72), 11);
  EXPECT_EQ(sized(6), 8);
}

TEST_F(FontDialogTest, SizeWithAFractionStaysWhenLeftAlone) {
  start.size = 9.5;
  EXPECT_EQ(Ask([](QFontDialog&) {}).size, 9.5);
}

TEST_F(FontDialogTest, OnlySizesWithinTheLimitsAreOffered) {
  Ask([](QFontDialog& fonts) {
    QStringList offered;
    for (const QListView* list : fonts.findChildren<QListView*>()) {
      for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QString text = list->model()->index(row, 0).data().toString();
        bool isNumber = false;
        text.toInt(&isNumber);
        if (isNumber && !list->isRowHidden(row)) offered.append(text);
      }
    }
    EXPECT_EQ(offered, (QStringList{"8", "9", "10", "11"}));
  });
}

TEST_F(FontDialogTest, CancelledFontIsACancel) {
  const ModalDriver driver([](QDialog& dialog) { dialog.reject(); });
  try {
    dialogs.ShowFont(start, 8, 11);
    FAIL() << "nothing was thrown";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, FailureNumber::Cancelled);
  }
}

}  // namespace
}  // namespace verlume::qt
