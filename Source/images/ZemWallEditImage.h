#pragma once

#include "ZemString.h"
#include "ZemVertexArray.h"

class CZemDtaFilePointer;
class CZemGDX;

// One drawing of an interactive wall edit: reads the edit state of the
// configuration and the wall, and has the image function "WALL" draw it.
class CZemWallEditImage {
public:
    // wall may be null: then it offers no entries and no corner mode.
    explicit CZemWallEditImage(CZemDtaFilePointer* wall) : m_wall(wall) {}

    // The result of "WALL" on gdx; false, nothing drawn, without an entry
    // number or without a registered "WALL".
    bool image(CZemGDX& gdx);

private:
    void readEntry();
    void readModes();
    bool writesActiveEntry() const;
    void writeParameters(CZemDtaFilePointer& parameters) const;

    CZemDtaFilePointer* m_wall;
    int m_entry = 0;
    bool m_found = false;
    CZemString m_mode;
    CZemString m_cornerMode;
    CZemVertexArray m_vl;
};
