#pragma once

#include <string_view>

#include "module/results.h"

// The gauges' pictures for the inspection table. A gauge that isn't there or hasn't painted yet has none.

int PaintPending(GaugeInstance* instance);
int CopyPicture(const char* gauge, uint64_t after, ByteSink sink, void* context);
int CopyPicturePng(const char* gauge, double scale, ByteSink sink, void* context);
int CopyStreamImage(const char* name, ByteSink sink, void* context);
int ListFonts(ResultSink sink, void* context);

/// The lines of `text` and `draws` for a gauge's last picture.
int PrintPictureTexts(std::string_view gauge, const Results& results);
int PrintPictureDraws(std::string_view gauge, const Results& results);
