#pragma once

/// While it lives, no job that ends reaches a printer. For a platform whose printing cannot abort a job: what
/// has been painted would be printed when its painter ends.
class WithheldPrinting
{
public:
    WithheldPrinting();
    ~WithheldPrinting();
    WithheldPrinting(const WithheldPrinting&) = delete;
    WithheldPrinting& operator=(const WithheldPrinting&) = delete;
};
