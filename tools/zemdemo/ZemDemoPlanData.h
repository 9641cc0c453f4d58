#pragma once

// Measures of the demo's house in millimetres, shared by the parts of its plan.
namespace zemdemo {

constexpr double kWidth = 12000.0;
constexpr double kDepth = 9000.0;
constexpr double kOuter = 365.0;
constexpr double kQuarterBulge = 0.41421356237309503;  // tan(90 / 4 degrees): a quarter circle
constexpr double kPi = 3.14159265358979323846;

// Windows colour values: 0x00BBGGRR.
constexpr unsigned long kInk = 0x1E1E1E;
constexpr unsigned long kBrick = 0x3246AA;
constexpr unsigned long kMasonry = 0x6E6E6E;
constexpr unsigned long kConcrete = 0x505050;
constexpr unsigned long kBoards = 0x6496BE;
constexpr unsigned long kTiles = 0xAAAAAA;
constexpr unsigned long kBathTiles = 0xB4A08C;
constexpr unsigned long kFitting = 0x464646;
constexpr unsigned long kAxis = 0x2828C8;
constexpr unsigned long kDimension = 0x6E3C00;
constexpr unsigned long kLight = 0x0078DC;
constexpr unsigned long kDetail = 0x783C28;

// Groups (first stack element) of the plan's items.
enum Group {
    groupOuterWalls = 1,
    groupInnerWalls,
    groupFloors,
    groupWindows,
    groupDoors,
    groupLabels,
    groupFittings,
    groupAxes,
    groupDimensions,
    groupSheet,
    groupDetail,
    groupPicture,
    groupLights
};

struct Box {
    double x0, y0, x1, y1;
};

}  // namespace zemdemo
