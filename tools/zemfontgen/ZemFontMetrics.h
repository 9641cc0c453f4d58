#pragma once

// Measures of the font cell (height 1.0, baseline at y = 0) and the centre
// lines that put stroke outlines on them: a vertical stem whose outline
// starts at the left edge has its centre line at kXL, and so on.
constexpr double kStroke = 0.022373;
constexpr double kHalf = kStroke / 2;

constexpr double kLeft = 0.155932;
constexpr double kRight = 0.844746;
constexpr double kXL = kLeft + kHalf;
constexpr double kXR = kRight - kHalf;
constexpr double kXM = (kLeft + kRight) / 2;
// Horizontal radius of the centre line of a full-width round letter.
constexpr double kRx = (kXR - kXL) / 2;

constexpr double kCap = 1.0;
constexpr double kYT = kCap - kHalf;
constexpr double kYB = kHalf;
constexpr double kXHeight = 0.677966;
constexpr double kYX = kXHeight - kHalf;

// Round letters and digits reach a little beyond the lines they sit on.
constexpr double kRoundLow = -0.0101695;
constexpr double kRoundHigh = 1.01085;
constexpr double kRB = kRoundLow + kHalf;
constexpr double kRT = kRoundHigh - kHalf;

constexpr double kDescGjy = -0.343729;
constexpr double kDescPq = -0.332203;
constexpr double kCommaLow = -0.174237;
constexpr double kUnderscoreLow = -0.176949;

constexpr double kRightV = 1.17627;
constexpr double kRightW = 1.17763;
constexpr double kRightL = 0.341695;
constexpr double kRightI = 0.500339;

// Free bars of signs (minus, plus, equals) span these x, and the upright
// bar of the plus reaches as far each way from its middle.
constexpr double kBarLeft = 0.16678;
constexpr double kBarRight = 0.83322;
constexpr double kBarHalf = (kBarRight - kBarLeft) / 2;

// Height of the short bar that serves as a dot (period, i, umlauts).
constexpr double kDot = 0.16678;
