#pragma once

// The tolerances and limits of the polyline geometry, all in one place.
namespace ZEM {

// Two points closer than this (drawing units) are one point: joints meet,
// a point lies on a vertex, crossings at one place merge.
constexpr double kDistTol = 1e-8;

// A bulge of smaller magnitude than this is a straight segment.
constexpr double kBulgeTol = 1e-12;

// A unit normal whose x and y are both below this lies along the Z axis.
constexpr double kAxisTol = 1e-12;

// Two lines are parallel when the cross product of their directions is below
// this fraction of the product of their lengths.
constexpr double kParallelTol = 1e-15;

// The most chords one arc is flattened into, whatever the tolerance asked.
constexpr int kMaxChords = 100000;

// Where a caller gives a flattening tolerance that is not positive, this
// fraction of the arc's radius stands for it.
constexpr double kRelFlattenTol = 1e-6;

// The most dashes and dots ZEM::g_vl_measure lays on one polyline; a pattern
// that would lay more leaves the polyline solid.
constexpr int kMaxMeasurePieces = 200000;

}  // namespace ZEM
