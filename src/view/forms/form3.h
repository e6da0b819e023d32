// The file chooser: its boxes, its prompt line and its buttons. The title, by which the window knows what it
// is to do, is written by whoever opens it.
#pragma once

#include "view/list_boxes.h"
#include "view/window.h"

namespace veldrin {

struct Form3 : Window {
  explicit Form3(Desk& theDesk);
  ~Form3();

  // clang-format off
  Label     Label1  {"Label1",   *this, { 150,  150, 3600,  240}, {.caption = "File Name"}};
  ComboBox  Combo1  {"Combo1",   *this, { 150,  420, 3600,  315}, {.caption = "Combo1", .back = kWhite}};
  FileBox   File1   {"File1",    *this, { 150,  810, 3600, 2955}, {.back = kWhite}, "*.rat"};
  ComboBox  Combo2  {"Combo2",   *this, { 150, 3840, 3600,  315}, {.back = kWhite}, {}, false};
  Label     Label2  {"Label2",   *this, {3960,  150, 4170,  240}, {.caption = "Directory"}};
  DriveBox  Drive1  {"Drive1",   *this, {3960,  420, 4170,  315}, {.back = kWhite}};
  FolderBox Dir1    {"Dir1",     *this, {3960,  810, 4170, 3345}, {.back = kWhite}};
  Label     Label3  {"Label3",   *this, { 150, 4275, 7980,  285}, {.border = true}};
  Label     Label4  {"Label4",   *this, { 150, 4710, 7980,  270}, {.caption = "Not exist selected file", .visible = false}};
  Button    Command1{"Command1", *this, { 150, 5115, 1260,  405}, {.caption = "OK", .enabled = false}};
  Button    Command2{"Command2", *this, {1530, 5115, 1260,  405}, {.caption = "CANCEL"}};
  Button    Command3{"Command3", *this, {6870, 5115, 1260,  405}, {.caption = "QUIT"}};
  // clang-format on
};

}  // namespace veldrin
