// Pattern hatching of a wall-sized region: a 10,000 by 3,000 contour with two
// 1,000 by 1,000 holes, hatched with patterns of the shipped pattern file, or
// the file ZEM_PATTERN_FILE names (ANSI31, BRICK, GRAVEL, HONEY, DOTS) at scales that give about 1,000, 10,000 and
// 100,000 segments. Reports segments, total length and the rate of hatch
// lines and segments; Bench/regions_hatch_vs_ezdxf.py runs the same cases
// through ezdxf. The Prototype benchmarks hatch one region with prototypes
// cut only where they can meet it and with whole prototypes, and report the
// dashes measured per hatch line.
#include "ZemPatternFile.h"
#include "ZemPatternHatcher.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace {

using PatternLines = CZemArrayTempl<CZemArrayTempl<double>>;

std::string patternFilePath() {
    if (const char* path = std::getenv("ZEM_PATTERN_FILE")) return path;
    const std::string source = __FILE__;
    return source.substr(0, source.rfind('/')) + "/../Source/resources/zem.pat";
}

// The patterns of the file, read by the library's pattern file reader.
std::map<std::string, PatternLines> readPatternFile(const std::string& path) {
    std::map<std::string, PatternLines> patterns;
    CZemPatternFile file;
    if (!file.load(std::wstring(path.begin(), path.end()).c_str())) return patterns;
    for (int k = 0; k < file.len(); ++k) {
        const std::wstring name(static_cast<const wchar_t*>(file.name(k)));
        patterns[std::string(name.begin(), name.end())] = file.lines(k);
    }
    return patterns;
}

const std::map<std::string, PatternLines>& patterns() {
    static const std::map<std::string, PatternLines> all = readPatternFile(patternFilePath());
    return all;
}

CZemVertexArray rectangle(double x0, double y0, double x1, double y1) {
    const CZemPoint3d p[] = {{x0, y0, 0}, {x1, y0, 0}, {x1, y1, 0}, {x0, y1, 0}};
    CZemVertexArray out;
    for (int k = 0; k < 4; ++k) out.append(CZemVertex(p[k], p[(k + 1) % 4], 0.0));
    return out;
}

CZemArrayTempl<CZemVertexArray> wall() {
    CZemArrayTempl<CZemVertexArray> regs;
    regs.append(rectangle(0, 0, 10000, 3000));
    regs.append(rectangle(2000, 1000, 3000, 2000));
    regs.append(rectangle(6000, 1000, 7000, 2000));
    return regs;
}

struct Output {
    long long segments = 0;
    double length = 0.0;
    int lines = 0;
};

Output measureOutput(const CZemArrayTempl<CZemVertexArray>& lines) {
    Output out;
    out.lines = lines.len();
    for (int k = 0; k < lines.len(); ++k) {
        out.segments += lines[k].len();
        for (int v = 0; v < lines[k].len(); ++v) out.length += lines[k][v].m_start.distanceTo(lines[k][v].m_end);
    }
    return out;
}

Output hatchWall(const std::string& name, double scale) {
    const std::wstring wide(name.begin(), name.end());
    CZemPatternHatcher hatcher(wall(), CZemMatrix3d::kIdentity, CZemHatchProp(wide.c_str(), 0.0, scale));
    return measureOutput(hatcher.hatch(patterns().at(name)));
}

// The scale at which the pattern gives about `target` segments: segments
// grow with 1/scale for continuous lines and with 1/scale^2 for dashes.
double scaleFor(const std::string& name, long long target) {
    bool dashed = false;
    const PatternLines& lines = patterns().at(name);
    for (int k = 0; k < lines.len(); ++k) dashed = dashed || lines[k].len() > 5;
    const double power = dashed ? 0.5 : 1.0;
    double scale = 200.0;
    for (int round = 0; round < 3; ++round) {
        const Output out = hatchWall(name, scale);
        if (out.segments == 0) return scale;
        scale *= std::pow(static_cast<double>(out.segments) / static_cast<double>(target), power);
    }
    return scale;
}

void peerCase(benchmark::State& state, const std::string& name, long long target) {
    const double scale = scaleFor(name, target);
    const std::wstring wide(name.begin(), name.end());
    const CZemArrayTempl<CZemVertexArray> regs = wall();
    for (auto _ : state) {
        CZemPatternHatcher hatcher(regs, CZemMatrix3d::kIdentity, CZemHatchProp(wide.c_str(), 0.0, scale));
        const CZemArrayTempl<CZemVertexArray> lines = hatcher.hatch(patterns().at(name));
        benchmark::DoNotOptimize(lines.data());
    }
    // Every run gives the same lines; they are counted once, outside the timing.
    const Output out = hatchWall(name, scale);
    state.counters["scale"] = scale;
    state.counters["segments"] = static_cast<double>(out.segments);
    state.counters["length"] = out.length;
    state.counters["hatch_lines"] = out.lines;
    state.counters["segments_per_second"] =
        benchmark::Counter(static_cast<double>(out.segments), benchmark::Counter::kIsIterationInvariantRate);
    state.SetItemsProcessed(state.iterations() * out.lines);
}

// One region, one dashed family: dashes measured per hatch line when only
// the stretch over the region is cut, and when the whole prototype is.
void prototypeCase(benchmark::State& state, CZemHatchFamily::Measure measure) {
    CZemArrayTempl<CZemVertexArray> regs;
    regs.append(rectangle(0, 0, 200, 60));
    regs.append(rectangle(40, 20, 60, 40));
    PatternLines lines;
    CZemArrayTempl<double> line;
    for (double v : {30.0, 0.0, 0.0, 0.3, 1.0, 0.8, -0.4, 0.0, -0.4}) line.append(v);
    lines.append(line);
    long long measured = 0;
    Output out;
    for (auto _ : state) {
        CZemPatternHatcher hatcher(regs, CZemMatrix3d::kIdentity, CZemHatchProp(L"P", 0.0, 1.0), measure);
        const CZemArrayTempl<CZemVertexArray> result = hatcher.hatch(lines);
        benchmark::DoNotOptimize(result.data());
        measured = hatcher.measuredDashes();
        out.lines = result.len();
        out.segments = 0;
        for (int k = 0; k < result.len(); ++k) out.segments += result[k].len();
    }
    state.counters["segments"] = static_cast<double>(out.segments);
    state.counters["dashes_measured_per_line"] = static_cast<double>(measured) / std::max(1, out.lines);
    state.counters["segments_per_line"] = static_cast<double>(out.segments) / std::max(1, out.lines);
    state.SetItemsProcessed(state.iterations() * out.lines);
}

}  // namespace

int main(int argc, char** argv) {
    if (patterns().empty()) {
        std::fprintf(stderr, "no patterns in %s (set ZEM_PATTERN_FILE)\n", patternFilePath().c_str());
        return 1;
    }
    for (const char* name : {"ANSI31", "BRICK", "GRAVEL", "HONEY", "DOTS"}) {
        for (long long target : {1000LL, 10000LL, 100000LL}) {
            const std::string label = std::string("Peer/") + name + "/" + std::to_string(target);
            benchmark::RegisterBenchmark(label.c_str(), peerCase, std::string(name), target)
                ->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::RegisterBenchmark("Prototype/window", prototypeCase, CZemHatchFamily::Measure::window)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Prototype/whole", prototypeCase, CZemHatchFamily::Measure::whole)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
