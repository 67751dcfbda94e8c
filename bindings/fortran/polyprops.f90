! The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml.
!
! Arrays whose extent the routine does not say are assumed-size. Results are intent(inout), since elements that a
! routine leaves untouched keep their values. docs/routines.md tells what each routine computes.
module polyprops
    implicit none

    interface
        ! ---- chain averages

        ! Number-average degree of polymerization (segments per chain) of listed components.
        subroutine poly_getdpn(sel, n, idx, dpn) &
                bind(c, name="POLY_GETDPN")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: dpn(n)
        end subroutine poly_getdpn

        ! Number-average degree of polymerization from a segment-count matrix.
        subroutine poly_getdpn1(ld, nseg, iseg, scm, n, idx, dpn, iflag) &
                bind(c, name="POLY_GETDPN1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: dpn(n)
            integer(c_int64_t), intent(in) :: iflag(*)
        end subroutine poly_getdpn1

        ! Number-average degree of polymerization from a segment-count matrix; the same as POLY_GETDPN1.
        subroutine poly_getdpn2(ld, nseg, iseg, scm, n, idx, dpn, iflag) &
                bind(c, name="POLY_GETDPN2")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: dpn(n)
            integer(c_int64_t), intent(in) :: iflag(*)
        end subroutine poly_getdpn2

        ! Mean segment molecular weight of listed components.
        subroutine poly_getmrf(sel, n, idx, mrf) &
                bind(c, name="POLY_GETMRF")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: mrf(n)
        end subroutine poly_getmrf

        ! Number-average molecular weight of listed components.
        subroutine poly_getmwn(sel, n, idx, mwn) &
                bind(c, name="POLY_GETMWN")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: mwn(n)
        end subroutine poly_getmwn

        ! Number-average molecular weight from a segment-count matrix.
        subroutine poly_getmwn1(ld, mw, nseg, iseg, scm, n, idx, mwn, iflag) &
                bind(c, name="POLY_GETMWN1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: mwn(n)
            integer(c_int64_t), intent(in) :: iflag(*)
        end subroutine poly_getmwn1

        ! Number-average molecular weight of listed components straight from segment flows and zeroth moment.
        subroutine poly_getmrt(sel, n, idx, mrt) &
                bind(c, name="POLY_GETMRT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: mrt(n)
        end subroutine poly_getmrt

        ! Weight-average molecular weight of listed components.
        subroutine poly_getmww(sel, n, idx, mww) &
                bind(c, name="POLY_GETMWW")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: mww(n)
        end subroutine poly_getmww

        ! Polydispersity index (weight-average over number-average molecular weight) of listed components.
        subroutine poly_getpdi(sel, n, idx, pdi) &
                bind(c, name="POLY_GETPDI")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: pdi(n)
        end subroutine poly_getpdi

        ! Segment mole fractions of a polymer or oligomer.
        subroutine poly_getsmf(sel, c, smf) &
                bind(c, name="POLY_GETSMF")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: c
            real(c_double), intent(inout) :: smf(*)
        end subroutine poly_getsmf

        ! Segment mass fractions of a polymer or oligomer.
        subroutine poly_getswf(sel, c, swf) &
                bind(c, name="POLY_GETSWF")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: c
            real(c_double), intent(inout) :: swf(*)
        end subroutine poly_getswf

        ! Segment mass fractions of listed components, one column each.
        subroutine poly_swfvec(sel, n, ld, idx, swf) &
                bind(c, name="POLY_SWFVEC")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: swf(ld, n)
        end subroutine poly_swfvec

        ! Segment mole fractions of one row of a segment-count matrix.
        subroutine poly_getsmf1(k, ld, scm, nseg, iseg, smf) &
                bind(c, name="POLY_GETSMF1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(inout) :: smf(nseg)
        end subroutine poly_getsmf1

        ! Segment mass fractions of one row of a segment-count matrix.
        subroutine poly_getswf1(k, ld, mw, scm, nseg, iseg, swf) &
                bind(c, name="POLY_GETSWF1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(inout) :: swf(nseg)
        end subroutine poly_getswf1

        ! ---- input semantics

        ! Checks the polymer input paragraph, reports bad entries and builds the polymer block from the rest.
        subroutine poly_polsem(unused1, op, context, paragraph, unused2, status) &
                bind(c, name="POLY_POLSEM")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(in) :: unused1
            integer(c_int64_t), intent(in) :: op
            type(*), intent(in) :: context(*)
            integer(c_int64_t), intent(in) :: unused2
            integer(c_int64_t), intent(inout) :: status
            integer(c_int64_t), intent(in) :: paragraph(*)
        end subroutine poly_polsem

        ! Writes the values of a CATSCALE sentence over component attributes.
        subroutine poly_catscalesem(op, sentence, status, unused1, located) &
                bind(c, name="POLY_CATSCALESEM")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(in) :: op
            integer(c_int64_t), intent(in) :: sentence
            integer(c_int64_t), intent(inout) :: status
            integer(c_int64_t), intent(in) :: unused1
            integer(c_int64_t), intent(in) :: located
        end subroutine poly_catscalesem
    end interface
end module polyprops
