/* In a build for coverage, calls of _exit come here: see options.cmake. */
int __llvm_profile_write_file(void);
_Noreturn void __real__exit(int status);
_Noreturn void __wrap__exit(int status);

_Noreturn void __wrap__exit(int status)
{
    __llvm_profile_write_file();
    __real__exit(status);
}
