// SPDX-License-Identifier: Apache-2.0
#include "filter/sheet_assembly.h"

#include "job/job_state.h"
#include "protocol/print_image.h"

namespace {

// White in each of the three 16-bit channels, as the printer takes it.
unsigned char g_white_pixel[] = {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F};

// The first page of a sheet waits in its lower half.
bool park_page(const tagPRINTSETTING* settings, const tagMVBandImageParams* image) {
  const MV_TYPEDEF::tagRECT sheet{0, 0, settings->nPaperWidth, settings->nPaperHeight};
  // In the page's line order: both bands of a copy must have the same one.
  CImageUtility::CreateBandImage(&gImageCache, sheet, kImageDepth,
                                 static_cast<int>(image->lStride));
  if (gImageCache.pBits == nullptr) {
    return false;
  }
  CImageUtility::FillBandImage(&gImageCache, kImageDepth, g_white_pixel);
  tagMVBandImageParams placed = *image;
  OffsetRect(&placed.rcBand, 0, settings->nImageHeight + settings->nJoinGap);
  CImageUtility::CopyBandImage(&gImageCache, &placed, kImageDepth);
  ++gImageCount;
  return true;
}

// The second page goes into the upper half and completes the sheet.
bool print_joined(const tagPRINTSETTING* settings, const tagMVBandImageParams* image) {
  CImageUtility::CopyBandImage(&gImageCache, image, kImageDepth);
  const bool printed = print_image(settings, &gImageCache);
  release_sheet();
  return printed;
}

// Makes a sheet of image size of the only image of a sheet. No paper uses it yet. The image is
// looked for one sheet height down, as a paper that uses it would place it.
void cut_to_half(tagPRINTSETTING* settings, tagMVBandImageParams* band) {
  const std::int64_t stride = band->lStride;
  unsigned char* top = band->pBits;
  if (stride >= 0) {
    top += stride * (band->rcBand.bottom - band->rcBand.top - 1);
  }
  band->pBits = top - stride * (settings->nPaperHeight + settings->nJoinGap);
  band->rcBand.top = 0;
  band->rcBand.bottom = settings->nImageHeight;
  settings->nPaperWidth = settings->nImageWidth;
  settings->nPaperHeight = settings->nImageHeight;
  settings->byTwoUpMode = 0;
  settings->nTwoUpSplit = 0;
}

}  // namespace

void release_sheet() {
  CImageUtility::DeleteBandImage(&gImageCache);
  gImageCount = 0;
  CImageUtility::DeleteBandImage(&gMatteImage);
}

bool print_page(const tagPRINTSETTING* settings, tagMVBandImageParams* image) {
  if (settings->nJoinPages != 1) {
    return print_image(settings, image);
  }
  return gImageCount == 0 ? park_page(settings, image) : print_joined(settings, image);
}

bool print_last_page(const tagPRINTSETTING* settings) {
  if (settings->nJoinPages != 1 || gImageCount <= 0) {
    return true;
  }
  tagPRINTSETTING sheet_settings = *settings;
  tagMVBandImageParams sheet = gImageCache;
  if (settings->bHalfSheetLast) {
    cut_to_half(&sheet_settings, &sheet);
  }
  const bool printed = print_image(&sheet_settings, &sheet);
  release_sheet();
  return printed;
}
