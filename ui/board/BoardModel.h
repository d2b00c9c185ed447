#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "core/GameState.h"
#include "storage/BoardLook.h"

// The five source pictures, in the order of imgImages.
enum class SquarePicture { Light, Dark, Visited, Knight, Highlight };
inline constexpr int SquarePictureCount = 5;

// Twips.
struct PictureSize {
  double width = 0;
  double height = 0;
};

// What one square shows: a coloured cell, pctGrid(i), with an image on top of it, imgGridImage(i).
// The image's placement is in twips, relative to the inside of the cell.
struct BoardCell {
  std::optional<Color> backColor;
  bool border = false;
  std::optional<SquarePicture> picture;
  bool imageVisible = false;
  bool stretch = false;
  double imageLeft = 0;
  double imageTop = 0;
  double imageWidth = 0;
  double imageHeight = 0;

  friend bool operator==(const BoardCell&, const BoardCell&) = default;
};

// The 64 cells of the board, brought into the look that the game asks for. A property is written
// only when it differs from the value wanted, so that TakeChanges names just the cells that have to
// be painted again. A square that shows the wanted colour already keeps its picture, whatever
// picture that is: a change of pictures needs a repaint of the whole board.
//
// A refresh looks only at the cells that may have to change. A search refreshes the board a million
// times a second, and then these are few.
class BoardModel {
 public:
  // Bit i stands for cell i.
  using CellSet = std::uint64_t;

  const BoardCell& Cell(int index) const { return cells_[static_cast<std::size_t>(index)]; }

  // (x, y) is the square about to be highlighted, (-1, -1) a full refresh. Draws nothing while the
  // solver runs or when the square is that of the call before.
  void RestoreColors(const GameState& state, const BoardLook& look, int x, int y);

  // forced: highlight the square whatever the method says.
  void HighlightSquare(const GameState& state, const BoardLook& look, int index, bool forced);

  // Puts the image of every cell into its place: centred or stretched.
  void ReCenterImages(const BoardLook& look);

  // side: the inside of a cell, in twips. Takes effect with the next ReCenterImages.
  void SetCellSide(double side);
  void SetPictureSize(SquarePicture picture, PictureSize size);

  // The cells that changed since the last call.
  CellSet TakeChanges();
  bool HasChanged() const { return changes_ != 0; }

 private:
  // What the looks of the squares follow from, highlights left out.
  struct Subject {
    CellSet visited = 0;
    int knight = 0;
    bool firstMoveMade = false;
    BoardLook look;
  };

  static Subject SubjectOf(const GameState& state, const BoardLook& look);
  CellSet CellsToRestore(const Subject& subject) const;
  template <typename Property, typename Value>
  void Write(int index, Property BoardCell::*property, Value value);
  void GiveLook(int index, const BoardLook& look, Color color, SquarePicture picture);
  void RestoreCell(int index, const Subject& subject);
  void RestoreImage(int index, const BoardLook& look);
  void Highlight(int index, const BoardLook& look);
  void Centre(int index);
  void Stretch(int index);

  std::array<BoardCell, SquareCount> cells_{};
  std::array<PictureSize, SquarePictureCount> pictureSizes_{};
  double cellSide_ = 0;
  int lastRestoreX_ = 0;
  int lastRestoreY_ = 0;
  CellSet changes_ = 0;
  Subject restored_;               // of the last refresh
  CellSet touched_ = ~CellSet{0};  // the cells that may have another look since then
};
