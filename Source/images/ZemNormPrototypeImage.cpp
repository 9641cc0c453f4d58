#include "ZemNormPrototypeImage.h"

#include "ZemApp.h"
#include "ZemDataAccess.h"
#include "ZemGDX.h"
#include "ZemMatrix3d.h"
#include "ZemObjGen.h"

#include <cmath>
#include <memory>

namespace {

// A first view at least this many times as wide as high gets the second view
// above it; a narrower one gets it beside.
const double kBesideRatioLimit = 3.0;

template <class T>
void setValue(CZemDataItem& item, const wchar_t* key, const T& value)
{
    const CZemDataKey path(key);
    ZEM::dataItemSet(&item, &path, value);
}

}  // namespace

CZemNormPrototypeImage::CZemNormPrototypeImage(CZemGDX& gdx, CZemDataItem* parameters)
    : m_gdx(gdx), m_parameters(CZemDataItem::typeDir)
{
    if (!parameters || !parameters->isDir())
        return;
    bool main = false;
    if (ZEM::itemGet(parameters, L"MAIN", main) && main)
        m_gdx.backColorSet(CZemColor().setColorIndex(-15));
    int single = 0;
    if (!ZEM::itemGet(parameters, L"STACK", m_path) && ZEM::itemGet(parameters, L"STACK", single))
        m_path.append(single);
    m_parameters = *parameters;
}

bool CZemNormPrototypeImage::image(const wchar_t* key)
{
    std::unique_ptr<CZemDataItem> part(key ? zem_obj_key_to_gen(key) : nullptr);
    if (!part || !part->isDir())
        return false;
    generate(*part);
    CZemArrayTempl<CZemString> kind;
    ZEM::itemGet(part.get(), L"STACK", kind);
    setValue(*part, L"AXIS", !kind.isEmpty() && kind[0] == L"BAR" ? 7 : 1);
    m_coordPoints = !zem_norm_scordp(part.get()).isEmpty();
    if (m_coordPoints) {
        setValue(m_parameters, L"VIEW", 0);
        setValue(m_parameters, L"VIEW_CLAMP", 0);
        setValue(m_parameters, L"DEPEND", 1);
    }
    imageView(*part, 0);
    if (!kind.isEmpty() && kind[0] == L"PIECE")
        imageSecondView(*part);
    return true;
}

void CZemNormPrototypeImage::generate(CZemDataItem& part)
{
    setValue(part, L"VIEW", 0);
    ZEM::objGen(&part, 0);
    setValue(part, L"PART_CON", L"0");
}

// The first view goes in as the part stands; the second is the part's view 1,
// which the part and, with coordinate points, the parameters are told of.
void CZemNormPrototypeImage::imageView(CZemDataItem& part, int view)
{
    if (view != 0) {
        if (m_coordPoints)
            setValue(m_parameters, L"VIEW", view);
        setValue(part, L"VIEW", view);
    }
    setValue(m_parameters, L"STACK", viewStack(view));
    zemAppPtr()->imageObject(&m_gdx, &part, &m_parameters);
}

CZemArrayTempl<int> CZemNormPrototypeImage::viewStack(int view) const
{
    CZemArrayTempl<int> stack = m_path;
    stack.append(view);
    return stack;
}

// The bounds of each view start at the origin, so both boxes hold it.
void CZemNormPrototypeImage::imageSecondView(CZemDataItem& part)
{
    CZemPoint3d min, max, min1, max1;
    m_gdx.extmaxGet(viewStack(0), min, max);
    imageView(part, 1);
    m_gdx.extmaxGet(viewStack(1), min1, max1);
    m_gdx.mtxSet(viewStack(1), CZemMatrix3d().setToTranslation(secondViewMove(min, max, min1, max1)));
}

CZemVector3d CZemNormPrototypeImage::secondViewMove(const CZemPoint3d& min, const CZemPoint3d& max,
                                                    const CZemPoint3d& min1, const CZemPoint3d& max1)
{
    const double width = max.x - min.x, height = max.y - min.y;
    const double ratio = height == 0.0 ? width : width / height;
    if (ratio < kBesideRatioLimit)
        return CZemVector3d(max.x - min1.x, 0.0, 0.0);
    return CZemVector3d(max.x - (max1.x - min1.x), (max.y - min1.y) + 0.25 * std::fabs(min1.y), 0.0);
}
