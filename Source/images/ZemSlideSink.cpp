#include "ZemSlideSink.h"

void CZemSlideSink::slideSize(int, int) {}
