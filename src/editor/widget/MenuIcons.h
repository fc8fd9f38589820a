#pragma once

// The icons of the editor's context menu: XPM images of 16 x 16 pixels in two colours.
namespace MenuIcons {

extern const char* const kCut[];
extern const char* const kCopy[];
extern const char* const kPaste[];
extern const char* const kSelectAll[];
extern const char* const kFind[];
extern const char* const kFindNext[];
extern const char* const kReplace[];
extern const char* const kUndo[];
extern const char* const kRedo[];
extern const char* const kBookmark[];
extern const char* const kNextBookmark[];
extern const char* const kPreviousBookmark[];

}  // namespace MenuIcons
