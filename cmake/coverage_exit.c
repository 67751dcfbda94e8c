/* In a build for coverage, calls of _exit come here: see options.cmake. */
void __gcov_dump(void);
_Noreturn void __real__exit(int status);
_Noreturn void __wrap__exit(int status);

_Noreturn void __wrap__exit(int status)
{
    __gcov_dump();
    __real__exit(status);
}
