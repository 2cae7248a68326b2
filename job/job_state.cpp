// SPDX-License-Identifier: Apache-2.0
#include "job/job_state.h"

std::FILE* fpOut = stdout;
int page = 0;
unsigned char* Planes[2] = {nullptr, nullptr};
tagMVBandImageParams gImageCache = {};
tagMVBandImageParams gMatteImage = {};
std::int16_t gImageCount = 0;
std::uint8_t gRgbRate = 0;
std::uint8_t gOpRate = 0;
int curLine = 0;
volatile std::sig_atomic_t gOutputCalls = 0;
