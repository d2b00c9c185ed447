#include "core/Menus.h"

#include <span>

namespace {

using enum MenuEntry;

struct MenuSwitch {
  MenuEntry entry;
  bool on;
};

constexpr MenuSwitch FreshGame[] = {
    {mnuEditUndo, false},       {mnuViewHistory, false}, {mnuEditHistory, false},
    {mnuFileRestart, false},    {mnuViewReplay, false},  {mnuFileSave, false},
    {mnuFileSaveReplay, false}, {mnuFileAutoplay, true}, {mnuFileSolve, true}};

constexpr MenuSwitch FirstSquareTaken[] = {{mnuEditUndo, true},     {mnuViewHistory, true},
                                           {mnuEditHistory, true},  {mnuFileSave, true},
                                           {mnuFileAutoplay, true}, {mnuFileSolve, true}};

constexpr MenuSwitch MoveMade[] = {
    {mnuEditUndo, true},   {mnuViewHistory, true}, {mnuEditHistory, true},  {mnuFileRestart, true},
    {mnuViewReplay, true}, {mnuFileSave, true},    {mnuFileAutoplay, true}, {mnuFileSolve, true}};

constexpr MenuSwitch FinishedGame[] = {{mnuFileSave, false},
                                       {mnuFileSaveReplay, true},
                                       {mnuFileAutoplay, false},
                                       {mnuFileSolve, false}};

constexpr MenuSwitch AutoplayEnded[] = {{mnuFileAutoplay, false},
                                        {mnuFileSolve, false},
                                        {mnuFileSave, false},
                                        {mnuFileSaveReplay, true}};

constexpr MenuSwitch GameGoesOn[] = {
    {mnuFileSave, true}, {mnuFileSaveReplay, false}, {mnuFileAutoplay, true}, {mnuFileSolve, true}};

constexpr MenuSwitch UnfinishedGameOpened[] = {{mnuFileSaveReplay, false}};

constexpr MenuSwitch PlayersSquareUndone[] = {{mnuEditUndo, false},       {mnuViewHistory, false},
                                              {mnuViewReplay, false},     {mnuFileSave, false},
                                              {mnuFileAutoplay, true},    {mnuFileSolve, true},
                                              {mnuFileSaveReplay, false}, {mnuEditRedo, true}};

constexpr MenuSwitch BackOnPlayersSquare[] = {{mnuFileSave, true},     {mnuFileAutoplay, true},
                                              {mnuFileSolve, true},    {mnuFileSaveReplay, false},
                                              {mnuFileRestart, false}, {mnuViewReplay, false},
                                              {mnuEditRedo, true}};

constexpr MenuSwitch MoveUndone[] = {{mnuFileSave, true},
                                     {mnuFileAutoplay, true},
                                     {mnuFileSolve, true},
                                     {mnuFileSaveReplay, false},
                                     {mnuEditRedo, true}};

constexpr MenuSwitch BackOnFixedSquare[] = {{mnuEditUndo, false},    {mnuViewHistory, false},
                                            {mnuFileRestart, false}, {mnuViewReplay, false},
                                            {mnuFileSave, false},    {mnuFileSaveReplay, false}};

constexpr MenuSwitch NothingToRedo[] = {{mnuEditRedo, false}};

std::span<const MenuSwitch> SwitchesOf(MenuChange change) {
  switch (change) {
    case MenuChange::FreshGame:
      return FreshGame;
    case MenuChange::FirstSquareTaken:
      return FirstSquareTaken;
    case MenuChange::MoveMade:
      return MoveMade;
    case MenuChange::FinishedGame:
      return FinishedGame;
    case MenuChange::AutoplayEnded:
      return AutoplayEnded;
    case MenuChange::GameGoesOn:
      return GameGoesOn;
    case MenuChange::UnfinishedGameOpened:
      return UnfinishedGameOpened;
    case MenuChange::PlayersSquareUndone:
      return PlayersSquareUndone;
    case MenuChange::BackOnPlayersSquare:
      return BackOnPlayersSquare;
    case MenuChange::MoveUndone:
      return MoveUndone;
    case MenuChange::BackOnFixedSquare:
      return BackOnFixedSquare;
    case MenuChange::NothingToRedo:
      return NothingToRedo;
  }
  return {};
}

}  // namespace

void SwitchMenus(GameWindow& window, MenuChange change) {
  for (const MenuSwitch& menuSwitch : SwitchesOf(change)) {
    window.SetMenuEnabled(menuSwitch.entry, menuSwitch.on);
  }
}
