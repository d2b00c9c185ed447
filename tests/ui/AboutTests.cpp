#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include "tests/ui/Desk.h"
#include "ui/windows/animations/Canvas.h"
#include "ui/windows/animations/frmAbout.h"

namespace {

// The colours that a screen of few colours has for the initials and the title.
const QList<QRgb> FewColors{0xFF00FF00, 0xFF00FFFF, 0xFFFFFF00, 0xFFFFFFFF,
                            0xFFFF00FF, 0xFFC0C0C0, 0xFFFF0000, 0xFF0000FF};

class About : public Desk {
 protected:
  void InAbout(const std::function<void(frmAbout& window)>& work) {
    WhenNextModalOpens([work](QWidget& modal) {
      auto* window = qobject_cast<frmAbout*>(&modal);
      ASSERT_NE(window, nullptr);
      work(*window);
      if (window->isVisible()) window->reject();
    });
    Choose("mnuHelpAbout");
    EXPECT_TRUE(AllVisitsMade());
  }

  static QImage Picture(QWidget& window) {
    return Child<Canvas>(window, "picAboutImage").Picture().toImage();
  }

  static void DoubleClick(QWidget& window) {
    QTest::mouseDClick(&Child<QWidget>(window, "picAboutImage"), Qt::LeftButton);
  }

  // Waits until the animation has drawn something more.
  static void WaitForPass(QWidget& window) {
    const QImage before = Picture(window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Picture(window) != before; }));
  }

  // One tick of the animation.
  static void MakePass(QWidget& window) {
    auto& timer = Child<QTimer>(window, "tmrAnimation");
    QTimerEvent tick(timer.timerId());
    QCoreApplication::sendEvent(&timer, &tick);
  }

  static int PixelsOf(const QImage& picture, const QColor& color) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
  }

  // All colours that are seen after some passes on black.
  QSet<QRgb> ColorsOfPasses(bool manyColors, int passes) {
    Open();
    frmAbout window(globals, manyColors, &Window());
    auto& view = Child<Canvas>(window, "picAboutImage");
    view.Clear(Qt::black);
    window.picAboutImage_DblClick();
    for (int pass = 0; pass < passes; ++pass) MakePass(window);
    const QImage seen = view.Picture().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) colors.insert(seen.pixel(x, y));
    }
    window.done(QDialog::Rejected);
    return colors;
  }
};

QString TextOf(QWidget& window, const char* label) {
  return Child<QLabel>(window, label).text();
}

}  // namespace

TEST_F(About, GrowsWithTheLettersOfTheDesktop) {
  Open();
  const QFont usual = QApplication::font();
  const auto heights = [this] {
    frmAbout window(globals, true, &Window());
    QList<int> found;
    for (const char* label : {"lblProgramTitle", "lblVersion", "lblDisclaimer", "lblOwner"}) {
      found << Child<QLabel>(window, label).fontMetrics().height();
    }
    return found;
  };
  const QList<int> small = heights();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 2);
  QApplication::setFont(large);
  const QList<int> grown = heights();
  QApplication::setFont(usual);
  for (qsizetype i = 0; i < small.size(); ++i) EXPECT_GT(grown[i], small[i] * 3 / 2);
}

TEST_F(About, TellsWhatTheProgramIs) {
  Open();
  InAbout([](frmAbout& window) {
    EXPECT_EQ(window.windowTitle(), "About Gallopade Nova");
    EXPECT_EQ(TextOf(window, "lblProgramTitle"), "Gallopade Nova");
    EXPECT_TRUE(TextOf(window, "lblDisclaimer").contains("\"as is\""));
    EXPECT_TRUE(TextOf(window, "lblDisclaimer").contains("without warranties"));
    EXPECT_FALSE(TextOf(window, "lblOwner").isEmpty());
    for (const char* label : {"lblProgramTitle", "lblVersion", "lblDisclaimer", "lblOwner"}) {
      EXPECT_EQ(Child<QLabel>(window, label).font().family(), "Arial") << label;
    }
  });
}

TEST_F(About, TellsVersionAndBuild) {
  QCoreApplication::setApplicationVersion("2.1.7");
  Open();
  InAbout([](frmAbout& window) {
    EXPECT_EQ(TextOf(window, "lblVersion"), "Version 2.1 (Build 7.32bit.050216-1945)");
  });
  QCoreApplication::setApplicationVersion(QString());
}

TEST_F(About, ShowsThePictureOfTheSettings) {
  QImage picture(60, 45, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(ProgramFile("mine.bmp")));
  Open("[Settings]\nAbout Image=mine.bmp\n");
  InAbout([](frmAbout& window) {
    const QImage seen = Picture(window);
    EXPECT_EQ(seen.pixelColor(seen.rect().center()), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(0, 0), QColor(Qt::red));
  });
}

TEST_F(About, ShowsAPictureInItsProportions) {
  QImage picture(45, 45, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(ProgramFile("About.gif"), "BMP"));
  Open();
  InAbout([](frmAbout& window) {
    const QImage seen = Picture(window);
    EXPECT_EQ(seen.pixelColor(seen.rect().center()), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(0, 0), window.palette().color(QPalette::Window));
  });
}

TEST_F(About, ShowsTheWindowsIconWithoutAPicture) {
  QPixmap icon(64, 64);
  icon.fill(Qt::blue);
  Open("[Settings]\nAbout Image=missing.gif\n");
  Window().setWindowIcon(QIcon(icon));
  InAbout([](frmAbout& window) {
    const QImage seen = Picture(window);
    EXPECT_EQ(seen.pixelColor(seen.rect().center()), QColor(Qt::blue));
  });
}

TEST_F(About, ClosesOnOkEnterAndEscape) {
  Open();
  InAbout([](frmAbout& window) {
    QTest::mouseClick(&Child<QPushButton>(window, "cmdOK"), Qt::LeftButton);
  });
  InAbout([](frmAbout& window) { QTest::keyClick(&window, Qt::Key_Return); });
  InAbout([](frmAbout& window) { QTest::keyClick(&window, Qt::Key_Escape); });
}

TEST_F(About, RestsTheClock) {
  Open();
  ClickSquare(1, 2);
  InAbout([this](frmAbout&) { EXPECT_FALSE(Window().IsClockEnabled()); });
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(About, StandsStillUntilThePictureIsDoubleClicked) {
  Open();
  InAbout([](frmAbout& window) {
    QTest::mouseClick(&Child<QWidget>(window, "picAboutImage"), Qt::LeftButton);
    EXPECT_FALSE(Child<QTimer>(window, "tmrAnimation").isActive());
    DoubleClick(window);
    EXPECT_TRUE(Child<QTimer>(window, "tmrAnimation").isActive());
    WaitForPass(window);
  });
}

// The initials fall at random, so no single place is sure to stay free of them.
TEST_F(About, DrawsOverThePicture) {
  const QColor blank(1, 2, 3);
  QImage picture(300, 225, QImage::Format_RGB32);
  picture.fill(blank);
  ASSERT_TRUE(picture.save(ProgramFile("About.gif"), "BMP"));
  Open();
  frmAbout window(globals, true, &Window());
  EXPECT_EQ(PixelsOf(Picture(window), blank), 300 * 225);
  window.picAboutImage_DblClick();
  MakePass(window);
  EXPECT_GT(PixelsOf(Picture(window), blank), 300 * 225 / 2);
  EXPECT_LT(PixelsOf(Picture(window), blank), 300 * 225);
  window.done(QDialog::Rejected);
}

TEST_F(About, RunsOnAfterASecondDoubleClick) {
  Open();
  InAbout([](frmAbout& window) {
    DoubleClick(window);
    WaitForPass(window);
    DoubleClick(window);
    WaitForPass(window);
  });
}

TEST_F(About, EndsItsAnimationWithTheWindow) {
  Open();
  frmAbout window(globals, true, &Window());
  window.show();
  window.picAboutImage_DblClick();
  window.reject();
  EXPECT_FALSE(Child<QTimer>(window, "tmrAnimation").isActive());
}

TEST_F(About, RestsItsAnimationWhileItIsNotSeen) {
  Open();
  InAbout([](frmAbout& window) {
    DoubleClick(window);
    QHideEvent hidden;
    QCoreApplication::sendEvent(&window, &hidden);
    EXPECT_FALSE(Child<QTimer>(window, "tmrAnimation").isActive());
    QShowEvent shown;
    QCoreApplication::sendEvent(&window, &shown);
    EXPECT_TRUE(Child<QTimer>(window, "tmrAnimation").isActive());
  });
}

TEST_F(About, PutsTheTwoWordsOfTheTitleIntoTheirPlaces) {
  Open();
  frmAbout window(globals, true, &Window());
  auto& view = Child<Canvas>(window, "picAboutImage");
  view.Clear(Qt::black);
  window.picAboutImage_DblClick();
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return view.Picture().toImage().pixelColor(7, 40) == Qt::yellow; }));
  const QImage seen = view.Picture().toImage();
  EXPECT_EQ(seen.pixelColor(11, 87), QColor(Qt::yellow));
  window.done(QDialog::Rejected);
}

TEST_F(About, MixesItsColorsOnAScreenOfMany) {
  const QSet<QRgb> colors = ColorsOfPasses(true, 500);
  // Red in three steps, green and blue in two; the title is yellow.
  for (const int red : {0, 128, 255}) {
    for (const int green : {0, 128}) {
      for (const int blue : {0, 128}) {
        EXPECT_TRUE(colors.contains(qRgb(red, green, blue))) << red << green << blue;
      }
    }
  }
  EXPECT_TRUE(colors.contains(0xFFFFFF00));
  EXPECT_FALSE(colors.contains(0xFF0000FF));
}

TEST_F(About, HasSevenColorsAndABlueTitleOnAScreenOfFew) {
  const QSet<QRgb> colors = ColorsOfPasses(false, 500);
  for (const QRgb color : FewColors) EXPECT_TRUE(colors.contains(color)) << std::hex << color;
}
