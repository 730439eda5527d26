// SPDX-License-Identifier: GPL-3.0-or-later
// The tense headings as links to the help.
#include <QTest>

#include "app/controls/form_columns.h"
#include "app/controls/form_surface.h"
#include "app/help/tense_headings.h"
#include "app/layout/scaled_layout.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// Remembers what it was asked to open.
class NotedHelp final : public app::HelpOpener {
 public:
  void open(Utf8View page) override { pages += QString::fromUtf8(page.data(), page.size()); }
  void openContext(int context) override { pages += QString::number(context); }
  QStringList pages;
};

// The controls of the main window and what the headings among them open.
struct HeadingsUnderTest {
  app::FormSurface surface{nullptr};
  app::Controls controls{surface};
  app::FormColumns columns{controls};
  app::ScaledLayout layout{controls, surface, columns};
  NotedHelp help;
  app::TenseHeadings headings{controls, help, nullptr};
};

}  // namespace

class TenseHeadingsSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    made_ = std::make_unique<HeadingsUnderTest>();
    made_->surface.show();
  }
  void cleanup() { made_.reset(); }

  void nothingIsUnderlinedAtFirst();
  void theHeadingUnderThePointerIsUnderlined();
  void movingFromThreeToEightLeavesOnlyEightUnderlined();
  void theUnderlineStaysWhenThePointerLeaves();
  void theHeadingsOfInfinitiveAndParticipleAreNeverUnderlined();
  void theHeadingsOfInfinitiveAndParticipleOpenNothing();
  void aClickAfterAMoveOpensThePage_data();
  void aClickAfterAMoveOpensThePage();
  void aClickOnAHeadingThatIsNotUnderlinedOpensNothing();
  void aHeadingPointedAtAgainOpensItsPageAgain();
  void otherMouseButtonsOpenNothing();
  void aReleaseOutsideTheHeadingOpensNothing();
  void theUnderlineOutlivesAChangeOfSize();
  void theTagsOfTheDesignAreThePagesThatOpen();

 private:
  [[nodiscard]] QLabel& label(int heading) const {
    return *made_->surface.findChild<QLabel*>(QStringLiteral("lblCzas_%1").arg(heading));
  }
  [[nodiscard]] QList<int> underlined() const {
    QList<int> found;
    for (int i = 0; i < app::kTenseHeadings; ++i)
      if (label(i).font().underline()) found += i;
    return found;
  }
  void point(int heading) const {
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label(heading).mapToGlobal(QPointF(3, 3)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&label(heading), &move);
  }

  std::unique_ptr<HeadingsUnderTest> made_;
};

void TenseHeadingsSuite::nothingIsUnderlinedAtFirst() {
  QCOMPARE(underlined(), QList<int>());
  QVERIFY(label(0).hasMouseTracking());
}

void TenseHeadingsSuite::theHeadingUnderThePointerIsUnderlined() {
  point(0);
  QCOMPARE(underlined(), QList<int>{0});
}

void TenseHeadingsSuite::movingFromThreeToEightLeavesOnlyEightUnderlined() {
  point(3);
  point(8);
  QCOMPARE(underlined(), QList<int>{8});
}

// deliberate: the underline marks the last topic that was pointed at.
void TenseHeadingsSuite::theUnderlineStaysWhenThePointerLeaves() {
  point(5);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&label(5), &leave);
  QCOMPARE(underlined(), QList<int>{5});
}

void TenseHeadingsSuite::theHeadingsOfInfinitiveAndParticipleAreNeverUnderlined() {
  point(2);
  for (int i = app::kTopicHeadings; i < app::kTenseHeadings; ++i) point(i);
  QCOMPARE(underlined(), QList<int>{2});
}

void TenseHeadingsSuite::theHeadingsOfInfinitiveAndParticipleOpenNothing() {
  for (int i = app::kTopicHeadings; i < app::kTenseHeadings; ++i) {
    point(i);
    QTest::mouseClick(&label(i), Qt::LeftButton);
  }
  QCOMPARE(made_->help.pages, QStringList());
}

void TenseHeadingsSuite::aClickAfterAMoveOpensThePage_data() {
  QTest::addColumn<int>("heading");
  QTest::addColumn<QString>("page");
  const char* pages[] = {"PresentIndicatif",   "ImparfaitIndicatif",
                         "PasseCompose",       "Plus-que-parfaitIndicatif",
                         "FuturAnterieur",     "PasséAntérieur",
                         "FuturSimple",        "PasseSimple",
                         "PresentSubjonctif",  "ImparfaitSubjonctif",
                         "Passé_Subjonctif",   "Plus-que-parfait_Subjonctif",
                         "ConditionnelPassé2", "ConditionnelPassé1",
                         "ConditionelPrésent", "PasséImpératif",
                         "PrésentImpératif"};
  for (int i = 0; i < app::kTopicHeadings; ++i)
    QTest::addRow("%d", i) << i << "strony\\" + QString::fromUtf8(pages[i]) + ".htm";
}

void TenseHeadingsSuite::aClickAfterAMoveOpensThePage() {
  QFETCH(int, heading);
  QFETCH(QString, page);
  point(heading);
  QTest::mouseClick(&label(heading), Qt::LeftButton);
  QCOMPARE(made_->help.pages, QStringList{page});
}

void TenseHeadingsSuite::aClickOnAHeadingThatIsNotUnderlinedOpensNothing() {
  point(3);
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(3, 3), QPointF(3, 3), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&label(8), &release);
  QCOMPARE(made_->help.pages, QStringList());
}

void TenseHeadingsSuite::aHeadingPointedAtAgainOpensItsPageAgain() {
  point(3);
  point(8);
  point(3);
  QTest::mouseClick(&label(3), Qt::LeftButton);
  QCOMPARE(made_->help.pages, QStringList{"strony\\Plus-que-parfaitIndicatif.htm"});
}

void TenseHeadingsSuite::otherMouseButtonsOpenNothing() {
  point(0);
  QTest::mouseClick(&label(0), Qt::RightButton);
  QCOMPARE(made_->help.pages, QStringList());
}

void TenseHeadingsSuite::aReleaseOutsideTheHeadingOpensNothing() {
  point(0);
  QTest::mousePress(&label(0), Qt::LeftButton);
  QTest::mouseRelease(&label(0), Qt::LeftButton, {}, QPoint(3, -40));
  QCOMPARE(made_->help.pages, QStringList());
}

void TenseHeadingsSuite::theUnderlineOutlivesAChangeOfSize() {
  point(4);
  const int before = QFontInfo(label(4).font()).pixelSize();
  const app::TwipSize design = made_->layout.layout().design;
  const app::TwipSize larger{design.width * 2, design.height * 2};
  const bool isMinimised = false;
  QVERIFY(made_->layout.dragged().resize(larger, isMinimised, {}, [] { return true; }) ==
          app::Rescaled::rescaled);
  made_->layout.apply();
  QVERIFY(QFontInfo(label(4).font()).pixelSize() > before);
  QCOMPARE(underlined(), QList<int>{4});
}

void TenseHeadingsSuite::theTagsOfTheDesignAreThePagesThatOpen() {
  int headings = 0;
  made_->controls.forEach("lblCzas", [&](const app::ControlRow& row, QWidget&) {
    const Utf8View page = app::kTenseTopics[static_cast<std::size_t>(row.index)].page;
    QCOMPARE(row.tag, page.empty() ? Utf8View("lblCzas") : page);
    ++headings;
  });
  QCOMPARE(headings, app::kTenseHeadings);
}

std::unique_ptr<QObject> tenseHeadingsSuite() { return std::make_unique<TenseHeadingsSuite>(); }

}  // namespace odmiennik::window_test

#include "tense_headings_test.moc"
