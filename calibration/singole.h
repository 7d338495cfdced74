#pragma once
// Single arithmetic of the calibration rules, one operation at a time, so that
// nothing is fused or kept at a wider precision.

namespace schedine {

// base + passo · k, in Single.
inline float lineare(float base, float passo, int k) { return base + passo * static_cast<float>(k); }

}  // namespace schedine
