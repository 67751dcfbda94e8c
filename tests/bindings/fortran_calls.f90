! Calls through the module: scalars, vectors, and words of any type.
subroutine fortran_calls(grid, merged) bind(c)
    use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
    use polyprops
    implicit none
    real(c_double), intent(inout) :: grid(5), merged(3)
    integer(c_int64_t) :: unused(1) = 0
    real(c_double) :: weights(2), composite(5), columns(5, 1)

    call poly_csdini(5_c_int64_t, 1_c_int64_t, grid, 1e5_c_double, weights, composite, columns)
    call poly_propmrg(unused, 2_c_int64_t, 1_c_int64_t, [1_c_int64_t, 3_c_int64_t], [2_c_int64_t], &
                      [10.0_c_double, 30.0_c_double], [20.0_c_double], merged)
end subroutine fortran_calls
