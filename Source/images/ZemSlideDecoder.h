#pragma once

#include "ZemSlideSink.h"

#include <vector>

class CZemSlideData;

// Decodes a slide's record stream into a sink: vectors, offset vectors and
// common-endpoint vectors as lines, solid fills as closed polygons, and colour
// records. It stops at the end-of-file record, at an unknown record and at the
// end of the data.
class CZemSlideDecoder {
public:
    explicit CZemSlideDecoder(CZemSlideSink& sink);

    // Reads the header and the records of data from its start. False, with
    // nothing reported, when no slide is held or the level is not 1 or 2.
    bool draw(CZemSlideData& data);

private:
    using Point = CZemSlideSink::Point;

    unsigned short record(CZemSlideData& data, unsigned short word);
    void vector(CZemSlideData& data, unsigned short word);
    void offsetVector(CZemSlideData& data, int dx0);
    void commonEndpoint(CZemSlideData& data, int dx);
    unsigned short solidFill(CZemSlideData& data);
    static Point readPoint(CZemSlideData& data);

    CZemSlideSink& m_sink;
    int m_lastX = 0;
    int m_lastY = 0;
    std::vector<Point> m_points;
};
