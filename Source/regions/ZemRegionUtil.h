#pragma once

// Small helpers shared by the hatching operations.

// value truncated towards zero, as a 32-bit integer would hold it; false if
// value is not finite or lies outside that range.
bool zem_reg_trunc(double value, long long& out);
