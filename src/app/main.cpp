#include "app/modAmbertaks.h"

int main(int argc, char** argv)
{
    return runAmbertask(argc, argv);
}
