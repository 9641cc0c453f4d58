#pragma once

#include "ZemArrayTempl.h"
#include "ZemDtaFilePointer.h"
#include "ZemMatProp.h"
#include "ZemObj.h"
#include "ZemString.h"

#include <memory>

// Access to the material library: the data set of configuration key
// MATERIALS (a directory there, or the name of a data set file on the
// support path; default zem_mat.dta), read at the first question and kept
// for the life of the manager. One directory a material, under its name
// (ASCII case ignored), in library order:
//   MODE     int       drawing mode (default 1)
//   PROPS    strings   its properties
//   SUB      strings   the materials nested in it
//   LABEL    label     its name in the languages (ZemLabel.h)
//   SHADOW   int       not 0: a shadow material of the drawing
//   DRAW     int       0: left out of the drawable materials
class CZemMatMgr : public CZemObj {
public:
    CZemMatMgr() = default;
    ~CZemMatMgr() override;
    CZemMatMgr(const CZemMatMgr&) = delete;
    CZemMatMgr& operator=(const CZemMatMgr&) = delete;

    // Fills out (replaced); false, out untouched, for an unknown material.
    bool propGet(const wchar_t* name, CZemMatProp& out) const;
    // The label in a language (null: the message language), else its first
    // language; empty for no label or an unknown material.
    CZemString matLabel(const wchar_t* name, const wchar_t* language) const;
    bool isShadowMat(const wchar_t* name) const;
    // The names of the drawable materials in library order (all of them for
    // all true) into out (replaced); false if there are none.
    bool matDrawAll(CZemArrayTempl<CZemString>& out, bool all) const;

private:
    const CZemDataItem* material(const wchar_t* name) const;

    mutable std::unique_ptr<CZemDtaFilePointer> m_library;
    mutable bool m_read = false;
};
