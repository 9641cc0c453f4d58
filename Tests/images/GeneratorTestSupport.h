#pragma once

#include "ZemApp.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemDataIterator.h"
#include "ZemDefaultHost.h"
#include "ZemGDX.h"
#include "ZemGdxObjectImage.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

// What the generator tests share: stored data built by hand, an application
// object that records what it is asked to draw, and readers of the list.
namespace gentest {

inline CZemArrayTempl<int> path(std::initializer_list<int> elements)
{
    CZemArrayTempl<int> stack;
    for (int e : elements)
        stack.append(e);
    return stack;
}

template <class T>
std::vector<T> asVector(const CZemArrayTempl<T>& a) { return std::vector<T>(a.data(), a.data() + a.len()); }

template <class T>
void set(CZemDataItem* item, const wchar_t* key, const T& value)
{
    const CZemDataKey path(key);
    ZEM::dataItemSet(item, &path, value);
}

// A polyline through the corners, straight, and an axis-parallel rectangle.
inline CZemVertexArray polygon(std::initializer_list<CZemPoint3d> corners, bool closed = true)
{
    CZemPoint3dArray points;
    for (const CZemPoint3d& p : corners)
        points.append(p);
    return CZemVertexArray().fromPoints(points, closed);
}

inline CZemVertexArray rectangle(double x0, double y0, double x1, double y1)
{
    return polygon({{x0, y0, 0}, {x1, y0, 0}, {x1, y1, 0}, {x0, y1, 0}});
}

// The keys of a directory, as text, in stored order.
inline std::vector<std::wstring> keysOf(const CZemDataItem& item)
{
    std::vector<std::wstring> keys;
    CZemDataIterator it(&item);
    for (it.start(); !it.done(); it.next())
        keys.emplace_back(static_cast<const wchar_t*>(it->key().text()));
    return keys;
}

inline int intAt(const CZemDataItem& item, const wchar_t* key, int fallback = -999)
{
    ZEM::itemGet(&item, key, fallback);
    return fallback;
}

inline std::vector<int> stackAt(const CZemDataItem& item, const wchar_t* key)
{
    CZemArrayTempl<int> stack;
    ZEM::itemGet(&item, key, stack);
    return asVector(stack);
}

// A list that reads no configuration: point size 2, style 3.
inline CZemGDX newList() { return CZemGDX(CZemColor().setColorIndex(7), CZemMatrix3d(), 2.0, 3, {}, {}); }

// An empty configuration in memory.
inline void resetConfiguration()
{
    const CZemDataItem empty(CZemDataItem::typeDir);
    ZEM::cfgSet(&empty);
    ZEM::cfgLibraryDirSet(nullptr);
}

// Installed for its lifetime: records every imageObject call (the pointers
// and copies of both items as they were at the call), answers with
// m_result, and with m_draw lets the library's drawer of stored objects draw.
class RecordingApp : public CZemApp {
public:
    struct Call {
        CZemGDX* gdx;
        CZemDataItem* source;
        CZemDataItem sourceCopy;
        CZemDataItem parameters;
    };

    RecordingApp() : m_previous(zemAppSet(this)) {}
    ~RecordingApp() override { zemAppSet(m_previous); }
    RecordingApp(const RecordingApp&) = delete;
    RecordingApp& operator=(const RecordingApp&) = delete;

    Zem::lFormat numberFormat() const override { return host().numberFormat(); }
    unsigned long backgroundColor() const override { return host().backgroundColor(); }
    bool imageObject(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters) override
    {
        m_calls.push_back({gdx, source, source ? *source : CZemDataItem(), parameters ? *parameters : CZemDataItem()});
        if (m_draw)
            zem_gdx_image_object(gdx, source, parameters);
        return m_result;
    }
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override
    {
        return host().hatchPattern(name, lines);
    }
    int invokeHost(const wchar_t* function, resbuf* arguments, resbuf** result) override
    {
        return host().invokeHost(function, arguments, result);
    }

    std::vector<Call> m_calls;
    bool m_draw = true;
    bool m_result = true;

private:
    static CZemDefaultHost& host() { return CZemDefaultHost::instance(); }
    CZemApp* m_previous;
};

}  // namespace gentest
