#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/solver/SolverDesk.h"

namespace {

std::vector<MoveRow> Squares(const QJsonValue& value) {
  std::vector<MoveRow> squares;
  for (const QJsonValue square : value.toArray()) {
    squares.push_back({static_cast<std::int16_t>(square[0].toInt()),
                       static_cast<std::int16_t>(square[1].toInt())});
  }
  return squares;
}

QList<QByteArray> Cases() {
  QFile file(TEST_DATA_DIRECTORY "solver-cases.jsonl");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().trimmed().split('\n');
}

// FNV-1a over the texts, each followed by a line feed.
std::string Hash(const std::vector<std::string>& texts) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  const auto add = [&](char byte) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
  };
  for (const std::string& text : texts) {
    for (const char byte : text) add(byte);
    add('\n');
  }
  return QByteArray::number(static_cast<qulonglong>(hash), 16)
      .rightJustified(16, '0')
      .toStdString();
}

class SolverCases : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(SolverCases, ComeOutToTheLastEntry) {
  const QJsonObject expected = QJsonDocument::fromJson(Cases()[GetParam()]).object();
  SolverDesk desk;
  desk.refreshRate = static_cast<std::int16_t>(expected["refresh"].toInt());
  const std::vector<MoveRow> moves = Squares(expected["moves"]);
  desk.BeginWith({moves});
  const bool solved = desk.Solve();

  EXPECT_EQ(solved, expected["solved"].toBool());
  EXPECT_EQ(desk.solver.PositionsTested, expected["entries"].toInteger());
  if (solved) {
    EXPECT_EQ(MovesMade(desk.state), Squares(expected["tour"]));
    desk.redraws.pop_back();  // the tour itself
  } else {
    EXPECT_EQ(MovesMade(desk.state), moves);
  }
  EXPECT_EQ(static_cast<int>(desk.redraws.size()), expected["redraws"].toInt());
  const QJsonArray first = expected["first_redraws"].toArray();
  for (qsizetype i = 0; i < first.size(); ++i) {
    EXPECT_EQ(desk.redraws.at(static_cast<std::size_t>(i)), first[i].toString().toStdString());
  }
  EXPECT_EQ(Hash(desk.redraws), expected["redraw_hash"].toString().toStdString());
}

INSTANTIATE_TEST_SUITE_P(Positions, SolverCases, testing::Range(0, 20));
