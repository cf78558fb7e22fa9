// Prints the median CPU time, in milliseconds, of a bare scan of the task list of a data file.
#include "limits/BareEngine.h"
#include "support/Bench.h"

#include <cstdio>

int main(int argc, char** argv)
{
    const Bench bench(argc, argv);
    const QString file = QString::fromLocal8Bit(argv[argc - 1]);
    const QString query =
        QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");
    std::printf("%.4f\n", bench.median(15, [&] { bareScan(file, query); }));
    return 0;
}
