// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/recordingpaintengine.h"

/// Recording device with the pixel ratio of a plain screen: without one, Qt warns at every painter on it.
class ScreenDevice : public RecordingDevice
{
protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmDevicePixelRatio)
            return 1;
        if (metric == PdmDevicePixelRatioScaled)
            return qRound(devicePixelRatioFScale());
        return RecordingDevice::metric(metric);
    }
};
