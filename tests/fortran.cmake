# What only a Fortran compiler can say: how its run-time library prints real fields, and that the module compiles and calls.
include(CheckLanguage)
check_language(Fortran)
if(CMAKE_Fortran_COMPILER)
    enable_language(Fortran)
    add_library(fortran_side STATIC
        report/fortran_fields.f90 ${PROJECT_SOURCE_DIR}/bindings/fortran/polyprops.f90 bindings/fortran_calls.f90)
    target_link_libraries(fortran_side PUBLIC polyprops)
    target_link_libraries(polyprops_tests PRIVATE fortran_side)
    target_compile_definitions(polyprops_tests PRIVATE HAS_FORTRAN)
endif()
