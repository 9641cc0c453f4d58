#pragma once

// The number of GDI objects this process holds: GetGuiResources where the
// platform answers it, else (as under Wine) the live entries of the GDI
// handle table, found by asking the type of every handle index.
int zemGdiObjectCount();
