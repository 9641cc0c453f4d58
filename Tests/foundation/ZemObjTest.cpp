#include "ZemObj.h"

#include <gtest/gtest.h>

namespace {

struct Counted : CZemObj {
    explicit Counted(int& alive) : m_alive(alive) { ++m_alive; }
    ~Counted() override { --m_alive; }
    int& m_alive;
};

}  // namespace

TEST(ZemObj, ObjectsDieThroughTheRootPointer) {
    int alive = 0;
    CZemObj* one = new Counted(alive);
    EXPECT_EQ(alive, 1);
    delete one;
    EXPECT_EQ(alive, 0);
}
