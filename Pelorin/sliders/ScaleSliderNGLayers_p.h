#ifndef PELORIN_SLIDERS_SCALESLIDERNGLAYERS_P_H
#define PELORIN_SLIDERS_SCALESLIDERNGLAYERS_P_H

#include "Pelorin/sliders/ScaleSliderNG.h"
#include "Pelorin/theme/CachedLayer_p.h"

/// What stands still in a drag, and the handle in each of its looks.
struct ScaleSliderNG::Layers
{
    CachedLayer track;
    CachedLayer scale;
    std::array<CachedLayer, 4> handle; // by HandleLook

    void invalidate() { *this = Layers(); }
};

#endif
