subroutine fortran_real_field(value, field) bind(c)
    use, intrinsic :: iso_c_binding, only: c_char, c_double
    real(c_double), intent(in) :: value
    character(kind=c_char), intent(out) :: field(11)
    character(len=11) :: text
    integer :: i
    write (text, '(g11.4)') value
    field = [(text(i:i), i = 1, 11)]
end subroutine
