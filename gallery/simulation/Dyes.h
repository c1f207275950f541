#ifndef PELORIN_GALLERY_DYES_H
#define PELORIN_GALLERY_DYES_H

#include <Pelorin/FluorophoreData>

namespace Simulation {

/// The dyes of the data file, with model spectra in percent, a point for each nm from 300 to 850.
tFluorophoreDataList dyes();

} // namespace Simulation

#endif
