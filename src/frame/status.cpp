// Descriptions of the status codes, for callers that print them.
#include "frame/common.h"

namespace {

struct StatusText {
  KelStatus code;
  const char* text;
};

constexpr StatusText kStatusTexts[] = {
    {kelStsOk, "no error"},
    {kelStsSqrtNegArg, "square root of a negative element"},
    {kelStsInvThreshWarn, "inverse of a zero element with a zero level"},
    {kelStsDivByZeroWarn, "division by a zero element"},
    {kelStsLnZeroArg, "logarithm of a zero element"},
    {kelStsLnNegArg, "logarithm of a negative or NaN element"},
    {kelStsNotFinite, "an element is infinite or NaN"},
    {kelStsBadIndex, "delay-line index out of range"},
    {kelStsBadLength, "length or count below 1"},
    {kelStsNullPtr, "null pointer argument"},
    {kelStsNoMemory, "memory allocation failed"},
    {kelStsDivByZero, "division by zero"},
    {kelStsScaleRange, "negative taps scale factor"},
    {kelStsBadOrder, "FFT order out of range"},
    {kelStsBadFlag, "invalid normalisation flag"},
    {kelStsBadContext, "record of the wrong kind"},
    {kelStsBadThreshold, "invalid threshold level"},
    {kelStsNegThreshold, "negative threshold level"},
    {kelStsBadDelayIndex, "delay-line index out of range"},
    {kelStsBadIIROrder, "invalid IIR order or number of sections"},
    {kelStsBadFIRLength, "FIR taps length below 1"},
    {kelStsBadRelFreq, "relative frequency out of range"},
    {kelStsBadMRPhase, "multi-rate phase out of range"},
    {kelStsBadMRFactor, "multi-rate factor below 1"},
    {kelStsBadSamplePhase, "sampling phase out of range"},
    {kelStsBadSampleFactor, "sampling factor below 1"},
    {kelStsBadShift, "negative shift count"},
    {kelStsBadWindowWidth, "window width below 1"},
    {kelStsBadWTOffset, "wavelet filter offset below -1"},
    {kelStsBadJaehneMagn, "negative Jaehne magnitude"},
    {kelStsBadWinAlpha, "Kaiser window alpha out of range"},
    {kelStsTrnglAsym, "triangle asymmetry out of range"},
    {kelStsTrnglPhase, "triangle phase out of range"},
    {kelStsTrnglFreq, "triangle frequency out of range"},
    {kelStsTrnglMagn, "triangle magnitude not positive"},
    {kelStsTonePhase, "tone phase out of range"},
    {kelStsToneFreq, "tone frequency out of range"},
    {kelStsToneMagn, "tone magnitude not positive"},
    {kelStsBadStride, "invalid stride"},
    {kelStsBadSparsePos, "invalid sparse tap positions"},
    {kelStsSingular, "singular matrix"},
    {kelStsBadDesignOrder, "filter design order out of range"},
    {kelStsBadDesignFreq, "filter design frequency out of range"},
    {kelStsBadDesignParam, "filter design parameter out of range"},
};

}  // namespace

KELS_EXPORT const char* kelsGetStatusString(KelStatus status) {
  for (const StatusText& s : kStatusTexts) {
    if (s.code == status) return s.text;
  }
  return "unknown status";
}
