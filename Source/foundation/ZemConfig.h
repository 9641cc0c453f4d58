#pragma once

#include "ZemColor.h"
#include "ZemDataItem.h"
#include "ZemDataKey.h"
#include "ZemDtaFilePointer.h"

// The configuration: one data set for the process, loaded at first use from
// the file named by the environment variable ZEM_CONFIG, else from zem.cfg in
// the library's folder (cfgLibraryDirSet), else empty. Applications may also
// load or set it in code.
//
// Keys the library reads, as paths from the root:
//   KAL_MENU\COLOR\PDSIZE        int        default point size of display lists
//   KAL_MENU\COLOR\PDMODE        int        default point style of display lists
//   KAL_MENU\COLOR\HIGHLIGHT     colour     colour table entry 1 of display lists
//   KAL_MENU\COLOR\REFER         colour     entry 2
//   KAL_MENU\COLOR\AXIS          colour     entry 3
//   KAL_MENU\COLOR\BASE          colour     entry 4
//   KAL_MENU\COLOR\AUX           colour     entry 5
//   KAL_MENU\COLOR\BACKGROUND    colour     background of display lists
//   CURVER                       string     version under which dialogs keep their places
//   _APPL                        string     the application's title for dialogs
//   *ZEM_OUTLINE*                directory  the shared outline catalogue
//   *WALL_EDIT*\BT               int        active entry of an interactive wall edit
//   *WALL_EDIT*\MODE             string     what the wall edit changes: SHELL, CORNER, ...
//   *WALL_EDIT*\VL               polyline   the polyline of the wall edit
//   SUPPORT                      folders    the support path: fileFind, message files
//   HELP                         folders    searched for help files before SUPPORT
//   INSUNITS                     int        the drawing unit, 1 to 20 (default 4, mm)
//   LANGUAGE                     string     the message language at start (default DEU)
//   LUNITS                       int        the application's number format, 1 to 5 (default 2)
//   PATTERN_FILES                files      hatch pattern files, in order (default
//                                           zem.pat;acadiso.pat;acad.pat)
//   MATERIALS                    data set   the material library (default zem_mat.dta)
//   LAYERS                       data set   the layer table (default zem_layer.dta)
//   OBJECTS                      data set   the object library (default zem_obj.dta)
// A data set: a directory in the configuration itself, or the name of a data
// set file on the support path.
// Folders: one string with folders separated by ';', or a list of strings.
// A colour: an int (colour index), a string "R,G,B" (0 to 255 each) or
// "#RRGGBB" (true colour), or a directory with COLOR (index), RGB (true
// colour 0xRRGGBB, as int or decimal string), TBL and NAME (colour book and
// colour name; NAME defaults to TBL).
namespace ZEM {

// The configuration node at a path, or at a key; null if absent. The
// configuration keeps ownership.
CZemDataItem* cfg_get(const wchar_t* path);
CZemDataItem* cfg_get(const CZemDataKey* key);
// The configuration directory at path, made with the directories on its way
// (value nodes there become directories); the root for an empty path.
CZemDataItem* cfg_dir_make(const wchar_t* path);
// Reads a colour from a configuration node as told above. False, with out
// unchanged, for a null item or a node that holds no colour.
bool color_from_cfg(CZemColor& out, CZemDataItem* item);

// The configuration data set; it lives as long as the process.
CZemDtaFilePointer* cfgData();
// Replaces the configuration by a data set file (saved back by
// cfgData()->save()); false, configuration unchanged, if it does not load.
bool cfgLoad(const wchar_t* path);
// Replaces the configuration by a copy of root (null: empty), in memory.
void cfgSet(const CZemDataItem* root);
// Forgets the configuration; the next use loads it again.
void cfgReset();
// The folder of the library, where zem.cfg is looked for; set by the code
// that loads the library.
void cfgLibraryDirSet(const wchar_t* folder);
const CZemString& cfgLibraryDir();

}  // namespace ZEM
