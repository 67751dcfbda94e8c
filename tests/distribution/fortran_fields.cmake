# Real fields as the Fortran run-time library prints them, for the tests to compare with.
include(CheckLanguage)
check_language(Fortran)
if(CMAKE_Fortran_COMPILER)
    enable_language(Fortran)
    add_library(fortran_fields STATIC ${CMAKE_CURRENT_LIST_DIR}/fortran_fields.f90)
    target_link_libraries(polyprops_tests PRIVATE fortran_fields)
    target_compile_definitions(polyprops_tests PRIVATE HAS_FORTRAN_FIELDS)
endif()
