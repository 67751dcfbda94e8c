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

        ! ---- mixture properties

        ! Chain averages, true mole fractions, polymer flags and segment fractions of listed components.
        subroutine poly_getpol1(n, x, idx, dpn, mwn, xt, mrf, w1, w2, nc, mw, iflag, smfm, swfm, nseg, &
                iseg) &
                bind(c, name="POLY_GETPOL1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            real(c_double), intent(in) :: x(n)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: dpn(nc)
            real(c_double), intent(inout) :: mwn(nc)
            real(c_double), intent(inout) :: xt(nc)
            real(c_double), intent(inout) :: mrf(nc)
            real(c_double), intent(inout) :: w1(nc)
            real(c_double), intent(inout) :: w2(nc)
            real(c_double), intent(in) :: mw(nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
            real(c_double), intent(inout) :: smfm(nc, nc)
            real(c_double), intent(inout) :: swfm(nc, nc)
            integer(c_int64_t), intent(inout) :: iseg(nc)
        end subroutine poly_getpol1

        ! Chain averages, polymer flags and segment fractions of listed components.
        subroutine poly_getpol2(n, idx, dpn, mwn, mrf, w1, w2, nc, iflag, smfm, swfm, nseg, iseg) &
                bind(c, name="POLY_GETPOL2")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: dpn(nc)
            real(c_double), intent(inout) :: mwn(nc)
            real(c_double), intent(inout) :: mrf(nc)
            real(c_double), intent(inout) :: w1(nc)
            real(c_double), intent(inout) :: w2(nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
            real(c_double), intent(inout) :: smfm(nc, nc)
            real(c_double), intent(inout) :: swfm(nc, nc)
            integer(c_int64_t), intent(inout) :: iseg(nc)
        end subroutine poly_getpol2

        ! Segment-count matrix and polymer flags of listed components from their chain averages.
        subroutine poly_getpol3(n, idx, nc, w, nseg, iseg, iflag, scm) &
                bind(c, name="POLY_GETPOL3")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: w(nc)
            integer(c_int64_t), intent(inout) :: iseg(nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
            real(c_double), intent(inout) :: scm(nc, nc)
        end subroutine poly_getpol3

        ! Segment-count matrix of listed components straight from their attributes.
        subroutine poly_getpol(sel, nc, mw, nseg, iseg, n, idx, scm) &
                bind(c, name="POLY_GETPOL")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: mw(nc)
            integer(c_int64_t), intent(inout) :: iseg(*)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: scm(nc, nc)
        end subroutine poly_getpol

        ! Segment-count matrix, lengths and flags of listed components straight from their attributes.
        subroutine poly_getpall(sel, n, idx, nc, nseg, iseg, npol, iflag, scm, dpn) &
                bind(c, name="POLY_GETPALL")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(inout) :: npol
            integer(c_int64_t), intent(in) :: idx(n)
            integer(c_int64_t), intent(inout) :: iseg(nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
            real(c_double), intent(inout) :: scm(nc, nc)
            real(c_double), intent(inout) :: dpn(nc)
        end subroutine poly_getpall

        ! Segment-count matrix of listed components, one polymer being given by the weight of its chains.
        subroutine poly_getpmix(j, mwj, n, idx, nc, mw, iflag, scm, nseg, iseg, frac) &
                bind(c, name="POLY_GETPMIX")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(in) :: mwj
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
            real(c_double), intent(inout) :: scm(nc, nc)
            integer(c_int64_t), intent(inout) :: iseg(*)
            real(c_double), intent(inout) :: frac(*)
        end subroutine poly_getpmix

        ! True mole fractions of listed components, one polymer being given by the weight of its chains.
        subroutine poly_getpmix1(j, mwj, n, idx, x, xt, mwn, unused1, mw) &
                bind(c, name="POLY_GETPMIX1")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(in) :: mwj
            integer(c_int64_t), intent(in) :: n
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: x(n)
            real(c_double), intent(inout) :: xt(n)
            real(c_double), intent(inout) :: mwn(n)
            real(c_double), intent(in) :: mw(*)
        end subroutine poly_getpmix1

        ! Segment-count matrix that breaks only the listed oligomers into segments.
        subroutine poly_getoli(n, idx, nc, a, nseg, iseg, b, iflag) &
                bind(c, name="POLY_GETOLI")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: a(nc, nc)
            integer(c_int64_t), intent(inout) :: iseg(*)
            real(c_double), intent(inout) :: b(nc, nc)
            integer(c_int64_t), intent(inout) :: iflag(nc)
        end subroutine poly_getoli

        ! A property of listed components, averaged over segments by number.
        subroutine poly_getmavg(ld, q, nk, ik, scm, nj, ij, out, iflag) &
                bind(c, name="POLY_GETMAVG")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: nj
            real(c_double), intent(in) :: q(*)
            integer(c_int64_t), intent(in) :: ik(nk)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: ij(nj)
            real(c_double), intent(inout) :: out(nj)
            integer(c_int64_t), intent(in) :: iflag(*)
        end subroutine poly_getmavg

        ! A property of one polymer, averaged over segments by mass.
        subroutine poly_getsavg(ld, wt, nk, ik, scm, j, q, out) &
                bind(c, name="POLY_GETSAVG")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(inout) :: out
            real(c_double), intent(in) :: wt(*)
            integer(c_int64_t), intent(in) :: ik(nk)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(in) :: q(*)
        end subroutine poly_getsavg

        ! A property of one polymer: its own value where given, else averaged over segments by mass.
        subroutine poly_getpolq(ld, wt, nk, ik, scm, j, q, out) &
                bind(c, name="POLY_GETPOLQ")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(inout) :: out
            real(c_double), intent(in) :: wt(*)
            integer(c_int64_t), intent(in) :: ik(nk)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(in) :: q(*)
        end subroutine poly_getpolq

        ! A property of one polymer, averaged over segments by number.
        subroutine poly_getfavg(ld, nk, ik, scm, j, q, out) &
                bind(c, name="POLY_GETFAVG")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(inout) :: out
            integer(c_int64_t), intent(in) :: ik(nk)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(in) :: q(*)
        end subroutine poly_getfavg

        ! A property of one polymer, averaged over segments by number; the same as POLY_GETFAVG.
        subroutine poly_getfavgt(ld, nk, ik, scm, j, q, out) &
                bind(c, name="POLY_GETFAVGT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: j
            real(c_double), intent(inout) :: out
            integer(c_int64_t), intent(in) :: ik(nk)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(in) :: q(*)
        end subroutine poly_getfavgt

        ! Mean segment molecular weight from a segment-count matrix, by component.
        subroutine poly_getmws(n, idx, ld, mw, nseg, iseg, iflag, scm, out) &
                bind(c, name="POLY_GETMWS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: out(*)
        end subroutine poly_getmws

        ! Molecular weight of a chain from a segment-count matrix, by position.
        subroutine poly_getmwp(n, idx, ld, mw, nseg, iseg, iflag, scm, out) &
                bind(c, name="POLY_GETMWP")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: out(n)
        end subroutine poly_getmwp

        ! Weight-average molecular weight from a segment-count matrix and the moments of the stream, by position.
        subroutine poly_getwwp(n, idx, ld, mw, nseg, iseg, iflag, scm, out) &
                bind(c, name="POLY_GETWWP")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: out(n)
        end subroutine poly_getwwp

        ! Polydispersity index of listed components, never below 1 where moments give it.
        subroutine poly_getpoli(sel, n, idx, pdi) &
                bind(c, name="POLY_GETPOLI")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: pdi(n)
        end subroutine poly_getpoli
    end interface
end module polyprops
