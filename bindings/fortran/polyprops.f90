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

        ! Chain moments and polymer mass flow of a stream vector, per site type and in total.
        subroutine poly_getmoments(sv, nss, k0, ktype, mw, ns, z, f, s, w) &
                bind(c, name="POLY_GETMOMENTS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: nss
            integer(c_int64_t), intent(in) :: ns
            real(c_double), intent(in) :: sv(*)
            integer(c_int64_t), intent(in) :: k0(nss)
            integer(c_int64_t), intent(in) :: ktype(nss)
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(inout) :: z(ns)
            real(c_double), intent(inout) :: f(ns)
            real(c_double), intent(inout) :: s(ns)
            real(c_double), intent(inout) :: w(ns)
        end subroutine poly_getmoments

        ! Averages of the polymer that one stream vector holds beyond another, per site type and in total.
        subroutine poly_polyresults(sv1, sv2, nss, k0, ktype, mw, ns, pmass, pmrs, pmwn, pmww, pdpn, pdpw, &
                ppdi) &
                bind(c, name="POLY_POLYRESULTS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: nss
            integer(c_int64_t), intent(in) :: ns
            real(c_double), intent(in) :: sv1(*)
            real(c_double), intent(in) :: sv2(*)
            integer(c_int64_t), intent(in) :: k0(nss)
            integer(c_int64_t), intent(in) :: ktype(nss)
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(inout) :: pmass(ns)
            real(c_double), intent(inout) :: pmrs(ns)
            real(c_double), intent(inout) :: pmwn(ns)
            real(c_double), intent(inout) :: pmww(ns)
            real(c_double), intent(inout) :: pdpn(ns)
            real(c_double), intent(inout) :: pdpw(ns)
            real(c_double), intent(inout) :: ppdi(ns)
        end subroutine poly_polyresults

        ! Ratio of a mixture's moles on the apparent basis to its moles of chains.
        subroutine poly_getrat(sel, n, idx, x, rat) &
                bind(c, name="POLY_GETRAT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(inout) :: rat
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: x(n)
        end subroutine poly_getrat

        ! Polymer flag array of listed components.
        subroutine poly_getisp(n, idx, unused1, iflag) &
                bind(c, name="POLY_GETISP")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(in) :: n
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: idx(n)
            integer(c_int64_t), intent(inout) :: iflag(*)
        end subroutine poly_getisp

        ! CRY parameter of listed components.
        subroutine poly_getcry(unused1, n, idx, cry) &
                bind(c, name="POLY_GETCRY")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: cry(n)
        end subroutine poly_getcry

        ! ---- composition bases

        ! Apparent to true mole fractions, with the host's chain averages.
        subroutine poly_xatoxt(n, idx, mw, xa, xt) &
                bind(c, name="POLY_XATOXT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(in) :: xa(n)
            real(c_double), intent(inout) :: xt(n)
        end subroutine poly_xatoxt

        ! Apparent to true mole fractions, with a segment-count matrix.
        subroutine poly_getxtrue(n, idx, xa, ld, mw, nseg, iseg, iflag, scm, xt) &
                bind(c, name="POLY_GETXTRUE")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: xa(n)
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: xt(n)
        end subroutine poly_getxtrue

        ! Molar quantities or mole fractions to the true basis, polymers as the host classes them.
        subroutine poly_vatovt(n, idx, mw, mwn, v, vt, mode) &
                bind(c, name="POLY_VATOVT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: mode
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(in) :: mwn(n)
            real(c_double), intent(in) :: v(n)
            real(c_double), intent(inout) :: vt(n)
        end subroutine poly_vatovt

        ! Molar quantities or mole fractions to the true basis, polymers by flag.
        subroutine poly_vatovx(n, idx, mw, mwn, v, vt, mode, unused1, iflag) &
                bind(c, name="POLY_VATOVX")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: mode
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: mw(*)
            real(c_double), intent(in) :: mwn(n)
            real(c_double), intent(in) :: v(n)
            real(c_double), intent(inout) :: vt(n)
            integer(c_int64_t), intent(in) :: iflag(*)
        end subroutine poly_vatovx

        ! Apparent mole fractions to mass fractions.
        subroutine poly_xatowt(xa, n, idx, wt) &
                bind(c, name="POLY_XATOWT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: xa(n)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: wt(n)
        end subroutine poly_xatowt

        ! Mole fractions to mass fractions with given molecular weights.
        subroutine poly_xttowt(n, xt, mwt, wt) &
                bind(c, name="POLY_XTTOWT")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: xt(n)
            real(c_double), intent(in) :: mwt(n)
            real(c_double), intent(inout) :: wt(n)
        end subroutine poly_xttowt

        ! Segments of one polymer or oligomer and how many of each stand in a molecule.
        subroutine poly_getseg(sel, j, nseg, iseg, cnt) &
                bind(c, name="POLY_GETSEG")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: sel
            integer(c_int64_t), intent(in) :: j
            integer(c_int64_t), intent(inout) :: nseg
            integer(c_int64_t), intent(inout) :: iseg(*)
            real(c_double), intent(inout) :: cnt(*)
        end subroutine poly_getseg

        ! Segment make-up of listed components, and the list on the segment basis.
        subroutine poly_getpseg(n, idx, nc, fac, dpn, kseg, fseg, nout, idxout, ipos) &
                bind(c, name="POLY_GETPSEG")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: nc
            integer(c_int64_t), intent(inout) :: nout
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: fac(nc)
            real(c_double), intent(inout) :: dpn(n)
            integer(c_int64_t), intent(inout) :: kseg(nc, nc)
            real(c_double), intent(inout) :: fseg(nc, nc)
            integer(c_int64_t), intent(inout) :: idxout(nc)
            integer(c_int64_t), intent(inout) :: ipos(nc)
        end subroutine poly_getpseg

        ! Segment mole fractions of one row of a segment-count matrix, by component.
        subroutine poly_getmfs(ld, j, nseg, iseg, scm, sf) &
                bind(c, name="POLY_GETMFS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: j
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: sf(ld)
        end subroutine poly_getmfs

        ! Segment mass fractions of one row of a segment-count matrix, by component.
        subroutine poly_getwfs(ld, j, mw, nseg, iseg, scm, swf) &
                bind(c, name="POLY_GETWFS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: j
            integer(c_int64_t), intent(in) :: nseg
            real(c_double), intent(in) :: mw(*)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            real(c_double), intent(in) :: scm(ld, *)
            real(c_double), intent(inout) :: swf(ld)
        end subroutine poly_getwfs

        ! A component list on the segment basis, with the host's segment data.
        subroutine poly_xptoxs(n, idx, x, unused1, wseg, wcnt, nout, idxout, xout, norm) &
                bind(c, name="POLY_XPTOXS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(inout) :: nout
            integer(c_int64_t), intent(in) :: norm
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: x(n)
            integer(c_int64_t), intent(inout) :: wseg(*)
            real(c_double), intent(inout) :: wcnt(*)
            integer(c_int64_t), intent(inout) :: idxout(*)
            real(c_double), intent(inout) :: xout(*)
        end subroutine poly_xptoxs

        ! True mole fractions to mole fractions on the segment basis, with a segment-count matrix.
        subroutine poly_xttoxs(n, idx, iflag, x, ld, scm, nseg, iseg, nout, idxout, xout) &
                bind(c, name="POLY_XTTOXS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(inout) :: nout
            integer(c_int64_t), intent(in) :: idx(n)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: x(n)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(inout) :: idxout(*)
            real(c_double), intent(inout) :: xout(*)
        end subroutine poly_xttoxs

        ! Flows of a component list on the segment basis, with a segment-count matrix.
        subroutine poly_pftosf(n, idx, x, iflag, ld, scm, nseg, iseg, nout, idxout, xout, norm) &
                bind(c, name="POLY_PFTOSF")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(inout) :: nout
            integer(c_int64_t), intent(in) :: norm
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: x(n)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(inout) :: idxout(*)
            real(c_double), intent(inout) :: xout(*)
        end subroutine poly_pftosf

        ! A property of listed components to the members of a list on the segment basis.
        subroutine poly_pttops(n, idx, iflag, p, ld, scm, nseg, iseg, nout, idxout, pout, wsum) &
                bind(c, name="POLY_PTTOPS")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: ld
            integer(c_int64_t), intent(in) :: nseg
            integer(c_int64_t), intent(in) :: nout
            integer(c_int64_t), intent(in) :: idx(n)
            integer(c_int64_t), intent(in) :: iflag(*)
            real(c_double), intent(in) :: p(n)
            real(c_double), intent(in) :: scm(ld, *)
            integer(c_int64_t), intent(in) :: iseg(nseg)
            integer(c_int64_t), intent(in) :: idxout(nout)
            real(c_double), intent(inout) :: pout(nout)
            real(c_double), intent(inout) :: wsum(nout)
        end subroutine poly_pttops

        ! A property of listed components as the mean over their segments.
        subroutine poly_qsgtoq(n, idx, qs, q) &
                bind(c, name="POLY_QSGTOQ")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: qs(*)
            real(c_double), intent(inout) :: q(n)
        end subroutine poly_qsgtoq

        ! A property of listed components as the weighted mean over their segments.
        subroutine poly_qstoqa(ws, n, idx, qs, q) &
                bind(c, name="POLY_QSTOQA")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: ws(*)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(in) :: qs(*)
            real(c_double), intent(inout) :: q(n)
        end subroutine poly_qstoqa

        ! A component list split into polymers and oligomers, and the rest.
        subroutine poly_idxsplit(n, idx, np, idxp, posp, nk, idxk, posk) &
                bind(c, name="POLY_IDXSPLIT")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(inout) :: np
            integer(c_int64_t), intent(inout) :: nk
            integer(c_int64_t), intent(in) :: idx(n)
            integer(c_int64_t), intent(inout) :: idxp(*)
            integer(c_int64_t), intent(inout) :: posp(*)
            integer(c_int64_t), intent(inout) :: idxk(*)
            integer(c_int64_t), intent(inout) :: posk(*)
        end subroutine poly_idxsplit

        ! Values of two parts of a list merged into the order of the list.
        subroutine poly_propmrg(unused1, np, nk, posp, posk, vp, vk, v) &
                bind(c, name="POLY_PROPMRG")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: np
            integer(c_int64_t), intent(in) :: nk
            integer(c_int64_t), intent(in) :: posp(np)
            integer(c_int64_t), intent(in) :: posk(nk)
            type(*), intent(in) :: vp(*)
            type(*), intent(in) :: vk(*)
            type(*), intent(inout) :: v(*)
        end subroutine poly_propmrg

        ! Composition of a sub-list, normalised.
        subroutine poly_getxsub(unused1, x, n, idx, xs) &
                bind(c, name="POLY_GETXSUB")
            use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
            type(*), intent(in) :: unused1(*)
            integer(c_int64_t), intent(in) :: n
            real(c_double), intent(in) :: x(*)
            integer(c_int64_t), intent(in) :: idx(n)
            real(c_double), intent(inout) :: xs(n)
        end subroutine poly_getxsub

        ! Consecutive work areas laid out in a work vector.
        subroutine poly_wrkpoint(last, n, len, ptr) &
                bind(c, name="POLY_WRKPOINT")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(inout) :: last
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(in) :: len(n)
            integer(c_int64_t), intent(inout) :: ptr(n)
        end subroutine poly_wrkpoint

        ! Water in a component list, by its name.
        subroutine poly_seth2o(n, idx, jw) &
                bind(c, name="POLY_SETH2O")
            use, intrinsic :: iso_c_binding, only: c_int64_t
            integer(c_int64_t), intent(in) :: n
            integer(c_int64_t), intent(inout) :: jw
            integer(c_int64_t), intent(in) :: idx(n)
        end subroutine poly_seth2o

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

        ! Segment-count matrix of listed components, one polymer being given by the molecular weight of its chains.
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

        ! True mole fractions of listed components, one polymer being given by the molecular weight of its chains.
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
