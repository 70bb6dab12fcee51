// What the plot adds over the FFT's result when the accuracy features ran,
// computed without drawing: the error band as one closed outline (upper edge
// forward, lower edge back), the unreliable ends of the record, and the
// accurate curve with its flagged points apart.
#pragma once

#include "transform/accurate/accuracy_run.h"
#include "transform/window/plot/plot_model.h"

namespace lapdesk {

struct AccuracyLayers {
    Curve bandOutline;  // empty without a band
    AxisRange unreliableStart;
    AxisRange unreliableEnd;  // from 0.8 T to T
    Curve accurate;           // points the accurate inversion vouches for
    Curve flagged;            // its points that missed the target or the FFT
};

AccuracyLayers MakeAccuracyLayers(const TransformDriver& fft, const AccuracyReport& report);

}  // namespace lapdesk
