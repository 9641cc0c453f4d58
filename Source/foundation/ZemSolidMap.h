#pragma once

class CZem_Solid;

// The solids of the process under integer keys, which the drawing code
// hands around in place of pointers.
namespace ZEM {

// Makes an empty solid under the smallest unused key from 1; true.
bool newSolidFromMap(int& key);
// The solid of a key; false, out untouched, if there is none.
bool getSolidFromMap(CZem_Solid*& out, int key);
// Destroys the solid of a key and sets key to 0; false, key untouched, if
// there is none.
bool removeSolidFromMap(int& key);

}  // namespace ZEM
