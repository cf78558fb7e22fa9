#pragma once

/// Workaround: on CUPS QPrinter::abort() of Qt 6.4.2 does nothing, and what has been painted is printed
/// when the painter ends. While an object of this class lives, no job that ends reaches a printer
/// (tests/desktop/test_report.py, test_cancelled_printing_prints_nothing_...).
class WithheldPrinting
{
public:
    WithheldPrinting();
    ~WithheldPrinting();
    WithheldPrinting(const WithheldPrinting&) = delete;
    WithheldPrinting& operator=(const WithheldPrinting&) = delete;
};
