#include "widgets/printing/WithheldPrinting.h"

// QPrinter::abort() ends a job here.

WithheldPrinting::WithheldPrinting() = default;
WithheldPrinting::~WithheldPrinting() = default;
