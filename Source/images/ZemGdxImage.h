#pragma once

#include "ZemGdxImageReg.h"

// The process's table of image functions. It starts empty: every name comes
// from the application. Registration and calls belong to the user interface
// thread.

// Stores fcn under name (a later registration replaces an earlier one); a
// null fcn removes the name.
void setGdxImageFcn(const wchar_t* name, ZemGdxImageFcn fcn);

// Calls the function registered under name with the other arguments and
// returns its result; false, with gdx untouched, for a null or unknown name.
bool zem_gdx_image(const wchar_t* name, CZemGDX* gdx, CZemDtaFilePointer* object, CZemDtaFilePointer* parameters);
