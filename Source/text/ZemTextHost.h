#pragma once

struct resbuf;

// The default host's "zem_text_to_regl": lays a stored text out in the
// stroke font. arguments: the text's directory as one list (as
// CZemDataItem::mkLisp makes it), then the scale, a number. The directory:
//   TXT     string   the text (required)
//   ALIGN   string   alignment word, as CZemGDX::imageTxt takes it (default: baseline left)
//   HEIGHT  number   capital height (default 1.0)
//   MOV     point    insertion point (default the origin)
//   ROT     number   angle about Z in radians (default 0)
// Lengths are multiplied by the scale. 5100 with the region lists in result
// (nil for a text without glyphs); -5001 and no result for arguments of
// another form, a missing TXT, or a placement that is not finite or has no size.
// It is registered with the default host when the text library is loaded.
int zem_text_host_layout(const resbuf* arguments, resbuf** result);
