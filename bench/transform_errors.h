// The accuracy of transforms beside that of FFTW.
#pragma once

namespace bench {

/// Takes a minute, most of it for plans.
void printTransformErrors();

}  // namespace bench
