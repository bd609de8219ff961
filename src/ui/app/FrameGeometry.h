#pragma once

// The child frame's size rules: it grows and shrinks in steps, widens when the
// graph is shown and lays the graph and the control panel side by side.
namespace sonalyx::ui::frame {

inline constexpr int kInitialWidth = 320;
inline constexpr int kInitialHeight = 480;
inline constexpr int kWidthStep = 40;
inline constexpr int kHeightStep = kInitialHeight / 8;
inline constexpr int kMaxSizeLevel = 6;
// The largest size the child may take.
inline constexpr int kMaxWidth = 2400;
inline constexpr int kMaxHeight = 1800;

// The panel's font size in tenths of a point: 100 + 16 per size level, three
// quarters of that (truncated) on a display of 97 dots per inch or more.
int panelFontTenths(int sizeLevel, int logicalDpiY);
// The pages' small font: three quarters of the unscaled panel size, truncated.
int smallFontTenths(int sizeLevel);

// How much one size step changes the width: two and a half steps while the graph
// takes its share.
int widthStepFor(int widthStep, bool graphShown);
// The outer width after showing the graph (times 1/0.35) and after hiding it
// (times 0.35), truncated; showing then hiding gives the width back within one
// pixel.
int widthWithGraphShown(int width);
int widthWithGraphHidden(int width);
// The graph's part of the client width (65 %, truncated); the panel gets the rest.
int graphWidth(int clientWidth);

}  // namespace sonalyx::ui::frame
