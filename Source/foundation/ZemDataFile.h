#pragma once

#include "ZemObj.h"
#include "ZemString.h"

#include <memory>

class CZemDataItem;

// A data set file: loads and saves a whole data tree. A save writes a
// temporary file beside the file and renames it over the file, so a failed
// or interrupted save leaves the previous file as it was.
//
// The file is UTF-8 text (a byte order mark is skipped; bytes that are not
// UTF-8 read as Latin-1). Blanks and line breaks separate tokens; '#' starts
// a comment to the end of the line.
//
//   ZEMDATA 1                   first: the format and its version
//   { entry... }                then the root: a directory,
//   = atom... ;                 or a value,
//                               or nothing: a data set without a root
//
//   entry:  key { entry... }    a directory
//           key = atom... ;     a value: its result chain, node by node
//   key:    NAME                string level (RTSTR): ASCII letters, digits and
//                               _ * $ . - @ ! % & + ? ~ ^ : not starting with a
//                               digit, '-', '+' or '.'
//           "text"              string level (RTSTR), any text
//           N"text"             name level (RTDXF0)
//           -12                 whole number level (RTSHORT, RTLONG), 32 bits
//   atom:   1.5  -0.0  1e+300  inf  nan    RTREAL (a point or exponent needed)
//           12                             RTSHORT, -32768 to 32767
//           L(70000)                       RTLONG, 32 bits
//           A(1.5707963267948966)          RTANG
//           P(x y z)  P2(x y)              RT3DPOINT, RTPOINT
//           "text"  N"text"                RTSTR, RTDXF0
//           (  )  .  nil  T                RTLB, RTLE, RTDOTE, RTNIL, RTT
//   text:   between double quotes, with the escapes \\ \" \n \r \t, \uXXXX
//           and \UXXXXXXXX (hex code of one wide character, not 0).
//
// Keys are unique within a directory; directories nest at most 200 deep.
// Reals are written in the shortest form that reads back to the same bits.
// Example:
//   ZEMDATA 1
//   {
//     KAL_MENU { COLOR { PDSIZE = 5; BACKGROUND = "255,255,255"; } }
//     "*WALL_EDIT*" { BT = 2; VL = ( P(0 0 1) ( P(0 0 0) P(5 0 0) 0.0 ) ); }
//     7 = L(100000) "seven" ;
//   }
class CZemDataFile : public CZemObj {
public:
    explicit CZemDataFile(const wchar_t* path);

    // Reads the file into root (null for a file without a root). A missing,
    // unreadable or malformed file gives false with a ZEM::dump message, and
    // root stays as it was.
    bool load(std::unique_ptr<CZemDataItem>& root) const;
    // Writes the data set with this root (null: none) atomically.
    bool save(const CZemDataItem* root) const;

    // The two steps of save: the whole text into the temporary file, then
    // the temporary file renamed over the file. A temporary file that a save
    // left behind is overwritten by the next one.
    bool writeTemporary(const CZemDataItem* root) const;
    bool commitTemporary() const;

    const CZemString& path() const { return m_path; }
    CZemString temporaryPath() const;

private:
    CZemString m_path;
};
