#include <clocale>

#include <gtest/gtest.h>

#include "ui/windows/history/Paper.h"

namespace {

QSize PointsOf(const QByteArray& options) {
  const auto paper = DefaultPaperIn(options);
  return paper ? paper->sizePoints() : QSize();
}

}  // namespace

TEST(Paper, IsTheOneThatTheQueueMarks) {
  EXPECT_EQ(PointsOf("ColorModel/Color: *Gray RGB\nPageSize/Media Size: A4 *Letter A5\n"),
            QSize(612, 792));
  EXPECT_EQ(PointsOf("PageSize/Media Size: *A4 Letter\n"), QSize(595, 842));
  EXPECT_EQ(PointsOf("PageSize/Taille: A3 A4 *A5 Custom.WIDTHxHEIGHT\n"), QSize(420, 595));
}

TEST(Paper, MayHaveANameWithItsSize) {
  EXPECT_EQ(PointsOf("PageSize/Media Size: *w288h432 A4\n"), QSize(288, 432));
  EXPECT_EQ(PointsOf("PageSize/Media Size: *na_invoice_5.5x8.5in A4\n"), QSize(396, 612));
  EXPECT_EQ(PointsOf("PageSize/Media Size: *custom_photo_100x200mm A4\n"), QSize(283, 567));
  EXPECT_EQ(PointsOf("PageSize/Media Size: *A4.Borderless A4\n"), QSize(595, 842));
}

TEST(Paper, IsNotToldByAQueueThatMarksNone) {
  EXPECT_FALSE(DefaultPaperIn(""));
  EXPECT_FALSE(DefaultPaperIn("PageSize/Media Size: A4 Letter\n"));
  EXPECT_FALSE(DefaultPaperIn("PageSize/Media Size: *Napkin A4\n"));
  EXPECT_FALSE(DefaultPaperIn("MediaType/Media Type: *A4\n"));
}

TEST(Paper, IsA4InTheLocaleOfNoCountry) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(PaperOfLocale().id(), QPageSize::A4);
  std::setlocale(LC_ALL, before.c_str());
}
