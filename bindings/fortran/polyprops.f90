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

        ! ---- binary interaction parameters

        ! Binary parameter of one pair at a temperature, and its temperature derivative.
        subroutine poly_tbpara(t, p1, p2, p3, p4, p5, tr, mode, value, deriv) &
                bind(c, name="POLY_TBPARA")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            real(c_double), intent(in) :: t
            real(c_double), intent(in) :: p1
            real(c_double), intent(in) :: p2
            real(c_double), intent(in) :: p3
            real(c_double), intent(in) :: p4
            real(c_double), intent(in) :: p5
            real(c_double), intent(in) :: tr
            integer(c_int64_t), intent(in) :: mode
            real(c_double), intent(inout) :: value
            real(c_double), intent(inout) :: deriv
        end subroutine poly_tbpara

        ! Binary parameters of all ordered pairs at a temperature, diagonal included.
        subroutine poly_tbkij3(t, n, k, m, p, kij) &
                bind(c, name="POLY_TBKIJ3")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            real(c_double), intent(in) :: t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: m
            real(c_double), intent(in) :: p(n, m, m)
            real(c_double), intent(inout) :: kij(m, m)
        end subroutine poly_tbkij3

        ! Binary parameters of the pairs of selected rows at a temperature, and their temperature derivatives.
        subroutine poly_tbkij4(t, n, k, m, p, kij, dkij, mode, select) &
                bind(c, name="POLY_TBKIJ4")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            real(c_double), intent(in) :: t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: m
            integer(c_int64_t), intent(in) :: mode
            real(c_double), intent(in) :: p(n, m, m)
            real(c_double), intent(inout) :: kij(m, m)
            real(c_double), intent(inout) :: dkij(m, m)
            real(c_double), intent(in) :: select(m)
        end subroutine poly_tbkij4

        ! Binary parameters of selected pairs at a temperature, in the form that the number of positions names.
        subroutine poly_kij5(t, n, k, m, p, select, mask, kij) &
                bind(c, name="POLY_KIJ5")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            real(c_double), intent(in) :: t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: m
            real(c_double), intent(in) :: p(n, m, m)
            real(c_double), intent(in) :: select(m)
            integer(c_int64_t), intent(in) :: mask(m)
            real(c_double), intent(inout) :: kij(m, m)
        end subroutine poly_kij5

        ! Temperature times the temperature derivative of the parameters of POLY_KIJ5.
        subroutine poly_dkij5(t, n, k, m, p, select, mask, dkij) &
                bind(c, name="POLY_DKIJ5")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            real(c_double), intent(in) :: t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: m
            real(c_double), intent(in) :: p(n, m, m)
            real(c_double), intent(in) :: select(m)
            integer(c_int64_t), intent(in) :: mask(m)
            real(c_double), intent(inout) :: dkij(m, m)
        end subroutine poly_dkij5

        ! Completes a binary parameter array in which pairs are given in only one order of their components.
        subroutine poly_tbpari(n, m, p, k, mode) &
                bind(c, name="POLY_TBPARI")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: m
            integer(c_int64_t), intent(in) :: k
            integer(c_int64_t), intent(in) :: mode
            real(c_double), intent(inout) :: p(n, m, m)
        end subroutine poly_tbpari

        ! ---- chain-length distributions

        ! Chain-length grid on a logarithmic scale, and cleared arrays to accumulate distributions in.
        subroutine poly_csdini(n, m, x, pmax, w, y, col) &
                bind(c, name="POLY_CSDINI")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: m
            real(c_double), intent(in) :: pmax
            real(c_double), intent(inout) :: x(n)
            real(c_double), intent(inout) :: w(m+1)
            real(c_double), intent(inout) :: y(n)
            real(c_double), intent(inout) :: col(n, m)
        end subroutine poly_csdini

        ! Mixes two distributions in proportion to their weights.
        subroutine poly_csdadd(n, y1, w1, y2, w2, y, w) &
                bind(c, name="POLY_CSDADD")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: w1
            real(c_double), intent(in) :: w2
            real(c_double), intent(inout) :: w
            real(c_double), intent(in) :: y1(n)
            real(c_double), intent(in) :: y2(n)
            real(c_double), intent(inout) :: y(n)
        end subroutine poly_csdadd

        ! Adds one increment of polymer, made by several site types, to running chain-length distributions.
        subroutine poly_csdcal(n, ns, mode, tau, beta, f, x, w, y, col) &
                bind(c, name="POLY_CSDCAL")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ns
            integer(c_int64_t), intent(in) :: mode
            real(c_double), intent(in) :: tau(ns)
            real(c_double), intent(in) :: beta(ns)
            real(c_double), intent(in) :: f(ns)
            real(c_double), intent(in) :: x(n)
            real(c_double), intent(inout) :: w(ns+1)
            real(c_double), intent(inout) :: y(n)
            real(c_double), intent(inout) :: col(n, ns)
        end subroutine poly_csdcal

        ! Writes a composite distribution to the host's report, and it and its sections to the host's summary file.
        subroutine poly_csdplot(context, unused1, unused2, unused3, unused4, unused5, unused6, unused7, &
                unused8, unused9, n, x, y, nc, scale, scaled, gpc) &
                bind(c, name="POLY_CSDPLOT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            type(*), intent(in) :: context(*)
            type(*), intent(in) :: unused1(*)
            type(*), intent(in) :: unused2(*)
            type(*), intent(in) :: unused3(*)
            type(*), intent(in) :: unused4(*)
            type(*), intent(in) :: unused5(*)
            type(*), intent(in) :: unused6(*)
            type(*), intent(in) :: unused7(*)
            type(*), intent(in) :: unused8(*)
            type(*), intent(in) :: unused9(*)
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            real(c_double), intent(in) :: scale
            integer(c_int64_t), intent(in) :: scaled
            integer(c_int64_t), intent(in) :: gpc
            real(c_double), intent(in) :: x(n)
            real(c_double), intent(in) :: y(n, nc+1)
        end subroutine poly_csdplot

        ! ---- reports

        ! Writes polymer results per catalyst site type to the host's summary file.
        subroutine poly_wrtpolsum(context, ns, r1, r2, r3, r4, r5, r6, r7) &
                bind(c, name="POLY_WRTPOLSUM")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            type(*), intent(in) :: context(*)
            integer(c_int64_t), intent(in) :: ns
            real(c_double), intent(in) :: r1(ns)
            real(c_double), intent(in) :: r2(ns)
            real(c_double), intent(in) :: r3(ns)
            real(c_double), intent(in) :: r4(ns)
            real(c_double), intent(in) :: r5(ns)
            real(c_double), intent(in) :: r6(ns)
            real(c_double), intent(in) :: r7(ns)
        end subroutine poly_wrtpolsum
    end interface
end module polyprops
