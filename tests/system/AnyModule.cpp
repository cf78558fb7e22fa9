// A module that answers which one it is.
extern "C" __attribute__((visibility("default"))) int ambertaskTestModule()
{
    return AMBERTASK_TEST_MODULE;
}
