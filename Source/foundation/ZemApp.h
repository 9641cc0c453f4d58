#pragma once

#include "ZemArrayTempl.h"
#include "ZemObj.h"
#include "ZemUnitTypes.h"

class CZemDataItem;
class CZemGDX;
struct resbuf;

// The application object: the host side's single instance, whose virtual
// operations the library calls. Applications derive from it and install
// their object with zemAppSet; without one, a default host answers.
class CZemApp : public CZemObj {
public:
    // Default format of value edits and the dialog environment.
    virtual Zem::lFormat numberFormat() const = 0;
    // Background of new display lists, as a Windows colour value.
    virtual unsigned long backgroundColor() const = 0;
    // Lets the host draw a stored object into a list; false if it cannot.
    virtual bool imageObject(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters) = 0;
    // Fills `lines` with the pattern lines of a hatch pattern (angle in
    // degrees, origin x and y, offset dx and dy, then the dashes); false if
    // the pattern is unknown.
    virtual bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) = 0;
    // Calls a host function by name; 5100 is success, and the result chain
    // then belongs to the caller.
    virtual int invokeHost(const wchar_t* function, resbuf* arguments, resbuf** result) = 0;
};

// The application object in force: the installed one, else the default host.
CZemApp* zemAppPtr();
// Installs an application object (not owned); null returns to the default
// host. Returns the object that was installed before.
CZemApp* zemAppSet(CZemApp* app);
