"""The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml."""

from typing import NamedTuple


class Argument(NamedTuple):
    """One argument: type is int, real, word or context; direction is in, out, inout, work or unused.

    shape is "" for a scalar, else the extents, column-major, in terms of other arguments, `component`, `segment`
    (open extents by component index and by segment position) or `*` (unknown).
    """

    name: str
    type: str
    direction: str
    shape: str
    means: str
    unit: str


class Signature(NamedTuple):
    """One routine, its arguments in calling order."""

    family: str
    purpose: str
    formula: str
    arguments: tuple[Argument, ...]
    notes: tuple[str, ...]


SIGNATURES = {
    'POLY_GETDPN': Signature(
        'chain',
        'Number-average degree of polymerization (segments per chain) of listed components.',
        'DPN(i) = max(1, F / Z) for a polymer without a "DPN" attribute\nF = FMOM, else Σ SFLOW(s) over s = 1..NSEG\nZ = ZMOM, else 0.5 Σ SFLOW(e) over e = 1..min(NEND, NSEG)',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('DPN', 'real', 'out', 'N', 'segments per chain, by position', '1'),
        ),
        (
            'Without a polymer block, or with neither polymers (by the polymer count of the host) nor oligomers in the run, every entry is its DPN parameter as it stands, also below 1; 1.0 when the parameter vector does not exist. In every other case no result is below 1.0.',
            'A polymer that carries "DPN": the attribute when 1.0 < value < missing-value bound, otherwise the DPN parameter; its moments are then not consulted, and exactly 1.0 is not usable.',
            'A polymer without "DPN": 1.0 unless both Z and F are above the zero bound.',
            'The estimate of Z without "ZMOM" takes SFLOW at the entry numbers of the end-segment list: it is half the flow of the end segments when these lead the segment list.',
            'An attribute that the polymer does not carry counts as 0.',
            'An oligomer whose DPN parameter is within 1e-10 of 1: its segment count from the oligomer list, if it is in that list. Any other oligomer, and a conventional component: the DPN parameter.',
            'N < 1: nothing is written.',
            'A NaN found for a component of a run with chains gives 1.0.',
            'An oligomer that stands twice in the oligomer list takes its first entry.',
        ),
    ),
    'POLY_GETDPN1': Signature(
        'chain',
        'Number-average degree of polymerization from a segment-count matrix.',
        'DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise',
        (
            Argument('LD', 'int', 'in', '', 'leading dimension of SCM', ''),
            Argument('NSEG', 'int', 'in', '', 'number of segments; below 1 every sum is 0', ''),
            Argument('ISEG', 'int', 'in', 'NSEG', 'component index of each segment', ''),
            Argument('SCM', 'real', 'in', 'LD,*', 'segments of component k per molecule of j', '1'),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('DPN', 'real', 'out', 'N', 'segments per chain, by position', '1'),
            Argument('IFLAG', 'int', 'in', 'component', '1 marks a polymer or oligomer; no other value does', ''),
        ),
        (
            'Reads nothing but its arguments.',
            'N < 1: nothing is written.',
        ),
    ),
    'POLY_GETDPN2': Signature(
        'chain',
        'Number-average degree of polymerization from a segment-count matrix; the same as POLY_GETDPN1.',
        'DPN(i) = Σ_m SCM(j, ISEG(m)) for a flagged component j = IDX(i), SCM(j, 1) otherwise',
        (
            Argument('LD', 'int', 'in', '', 'leading dimension of SCM', ''),
            Argument('NSEG', 'int', 'in', '', 'number of segments; below 1 every sum is 0', ''),
            Argument('ISEG', 'int', 'in', 'NSEG', 'component index of each segment', ''),
            Argument('SCM', 'real', 'in', 'LD,*', 'segments of component k per molecule of j', '1'),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('DPN', 'real', 'out', 'N', 'segments per chain, by position', '1'),
            Argument('IFLAG', 'int', 'in', 'component', '1 marks a polymer or oligomer; no other value does', ''),
        ),
        (
            'Reads nothing but its arguments.',
            'N < 1: nothing is written.',
        ),
    ),
    'POLY_GETMRF': Signature(
        'chain',
        'Mean segment molecular weight of listed components.',
        'MRF(i) = Σ MW(s) f(s) / Σ f(s) for a polymer, f = SFRAC, else SFLOW\nMRF(i) = Σ MW(s) count(s, k) / Σ count(s, k) for the k-th oligomer of the run',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('MRF', 'real', 'out', 'N', 'molecular weight per segment, by position', 'g/mol'),
        ),
        (
            'Without a polymer block, or with neither polymers nor oligomers in the run, every entry is its molecular weight; so is a component that is neither a polymer nor in the oligomer list.',
            'A polymer that carries "MWSEG" with 1.0 < value < missing-value bound: that value.',
            'f is SFLOW only when the offset of "SFRAC" is exactly 0. An element of f at or above the missing-value bound counts as 1/NSEG; an attribute that is not carried counts as 0.',
            'Σ f(s) at or below the zero bound: the plain mean of the segment molecular weights. NSEG = 0: the polymer keeps its molecular weight.',
            'A polymer whose value came from f and that also stands in the oligomer list takes the value of the oligomer.',
            'An oligomer whose counts do not sum to more than 0: Σ MW(s) count(s, k), undivided.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
            'Whether the run has polymers is told by its polymer list here.',
            'A NaN sum of fractions gives the plain mean.',
            'A component that stands twice in the oligomer list takes its first entry; one whose counts vanish gets Σ MW(s) count(s), which is 0 without segments.',
        ),
    ),
    'POLY_GETMWN': Signature(
        'chain',
        'Number-average molecular weight of listed components.',
        'MWN(i) = DPN(i) MRF(i) for a polymer or oligomer, the molecular weight otherwise',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('MWN', 'real', 'out', 'N', 'number-average molecular weight, by position', 'g/mol'),
        ),
        (
            'DPN and MRF as POLY_GETDPN and POLY_GETMRF give them, with all their fallbacks.',
            'Without a polymer block every entry is its molecular weight.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
        ),
    ),
    'POLY_GETMWN1': Signature(
        'chain',
        'Number-average molecular weight from a segment-count matrix.',
        'MWN(i) = Σ_m MW(ISEG(m)) SCM(j, ISEG(m)) for a flagged component j = IDX(i), MW(j) otherwise',
        (
            Argument('LD', 'int', 'in', '', 'leading dimension of SCM', ''),
            Argument('MW', 'real', 'in', 'component', 'molecular weights, segments included', 'g/mol'),
            Argument('NSEG', 'int', 'in', '', 'number of segments; below 1 every sum is 0', ''),
            Argument('ISEG', 'int', 'in', 'NSEG', 'component index of each segment', ''),
            Argument('SCM', 'real', 'in', 'LD,*', 'segments of component k per molecule of j', '1'),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('MWN', 'real', 'out', 'N', 'number-average molecular weight, by position', 'g/mol'),
            Argument('IFLAG', 'int', 'in', 'component', '1 marks a polymer or oligomer; no other value does', ''),
        ),
        (
            'Reads nothing but its arguments.',
            'N < 1: nothing is written.',
        ),
    ),
    'POLY_GETMRT': Signature(
        'chain',
        'Number-average molecular weight of listed components straight from segment flows and zeroth moment.',
        'MRT(i) = Σ MW(s) SFLOW(s) / ZMOM for a polymer, the molecular weight otherwise',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('MRT', 'real', 'out', 'N', 'number-average molecular weight, by position', 'g/mol'),
        ),
        (
            'Without a polymer block or without polymers in the run every entry is its molecular weight; so are oligomers.',
            'A polymer keeps its molecular weight unless it carries "ZMOM", zero bound < ZMOM < missing-value bound and Σ MW(s) SFLOW(s) > zero bound. "SFLOW" not carried counts as 0.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
        ),
    ),
    'POLY_GETMWW': Signature(
        'chain',
        'Weight-average molecular weight of listed components.',
        'MWW(i) = PDI(i) MWN(i) for a polymer or oligomer, PDI parameter × molecular weight otherwise',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('MWW', 'real', 'out', 'N', 'weight-average molecular weight, by position', 'g/mol'),
        ),
        (
            'PDI and MWN as POLY_GETPDI and POLY_GETMWN give them, with all their fallbacks.',
            'Without the PDI parameter vector a PDI parameter is 1.0.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
        ),
    ),
    'POLY_GETPDI': Signature(
        'chain',
        'Polydispersity index (weight-average over number-average molecular weight) of listed components.',
        'PDI(i) = (SMOM / F) / (F / ZMOM) = SMOM ZMOM / F² for a polymer, the PDI parameter otherwise\nF = Σ SFLOW(s) over s = 1..NSEG; FMOM is not read',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('PDI', 'real', 'out', 'N', 'polydispersity index, by position', '1'),
        ),
        (
            'Without the PDI parameter vector a PDI parameter is 1.0.',
            "Without a polymer block, without polymers in the run, or with the host's PDI mode at 100, every entry is its PDI parameter; so are oligomers.",
            'A polymer keeps its PDI parameter unless it carries "SMOM" and "ZMOM", zero bound < ZMOM < missing-value bound, and both F and Σ MW(s) SFLOW(s) are at or above the zero bound. "SFLOW" not carried counts as 0.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0. A polymer then keeps its PDI parameter.',
            'Segment flows of exactly 0 keep the PDI parameter, also where the zero bound is 0.',
        ),
    ),
    'POLY_GETSMF': Signature(
        'chain',
        'Segment mole fractions of a polymer or oligomer.',
        'SMF(s) = v(s) / Σ v\nv = SFRAC, else SFLOW of a polymer; segment counts of an oligomer',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('C', 'int', 'in', '', 'component index', ''),
            Argument('SMF', 'real', 'out', 'segment', 'mole fraction of each segment', '1'),
        ),
        (
            'SMF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the run, and for a component that is neither a polymer nor in the oligomer list.',
            'v is SFLOW only when the offset of "SFRAC" is exactly 0. An element of a polymer at or above the missing-value bound counts as 0; so does every element of an attribute that is not carried.',
            'Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly 0.',
            'Whether the run has polymers is told by its polymer list.',
            'A component that stands twice in the oligomer list takes its first entry.',
            'A NaN among the values makes every fraction NaN.',
        ),
    ),
    'POLY_GETSWF': Signature(
        'chain',
        'Segment mass fractions of a polymer or oligomer.',
        'SWF(s) = v(s) / Σ v\nv = SFLOW(s) MW(s) of a polymer; MW(s) × segment count of an oligomer',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('C', 'int', 'in', '', 'component index', ''),
            Argument('SWF', 'real', 'out', 'segment', 'mass fraction of each segment', '1'),
        ),
        (
            'SWF stays untouched without a polymer block, without segments, with neither polymers nor oligomers in the run, and for a component that is neither a polymer nor in the oligomer list.',
            '"SFRAC" is not read. A product v(s) of a polymer at or above the missing-value bound counts as 0; so does every element of an "SFLOW" that is not carried.',
            'Equal shares 1/NSEG: a polymer whose sum is at or below the zero bound, an oligomer whose sum is exactly 0.',
            'Whether the run has polymers is told by its polymer list.',
            'A component that stands twice in the oligomer list takes its first entry.',
            'A NaN among the values makes every fraction NaN.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
        ),
    ),
    'POLY_SWFVEC': Signature(
        'chain',
        'Segment mass fractions of listed components, one column each.',
        'SWF(s, i) = the mass fraction of segment s in component IDX(i), as POLY_GETSWF gives it',
        (
            Argument('SEL', 'int', 'in', '', "attribute selector, passed on to the host's attribute search", ''),
            Argument('N', 'int', 'in', '', 'number of listed components', ''),
            Argument('LD', 'int', 'in', '', 'leading dimension of SWF, at least the number of segments', ''),
            Argument('IDX', 'int', 'in', 'N', 'component index of each entry', ''),
            Argument('SWF', 'real', 'out', 'LD,N', 'mass fractions by segment position; column i belongs to entry i', '1'),
        ),
        (
            'A component for which POLY_GETSWF writes nothing leaves its column untouched; rows beyond the number of segments stay untouched.',
            'N < 1: nothing is written.',
            'Without a molecular-weight vector every molecular weight counts as 0.',
        ),
    ),
    'POLY_GETSMF1': Signature(
        'chain',
        'Segment mole fractions of one row of a segment-count matrix.',
        'SMF(m) = c(m) / Σ c, c(m) = SCM(K, ISEG(m))',
        (
            Argument('K', 'int', 'in', '', 'component index: the row of SCM', ''),
            Argument('LD', 'int', 'in', '', 'leading dimension of SCM', ''),
            Argument('SCM', 'real', 'in', 'LD,*', 'segments of each segment component per molecule of each component', '1'),
            Argument('NSEG', 'int', 'in', '', 'number of segments', ''),
            Argument('ISEG', 'int', 'in', 'NSEG', 'component index of each segment', ''),
            Argument('SMF', 'real', 'out', 'NSEG', 'mole fraction of each segment, in the order of ISEG', '1'),
        ),
        (
            'Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.',
            'Σ c at or below the zero bound: equal shares 1/NSEG.',
            'NSEG < 1: nothing is written.',
            'A NaN among the values gives equal shares.',
        ),
    ),
    'POLY_GETSWF1': Signature(
        'chain',
        'Segment mass fractions of one row of a segment-count matrix.',
        'SWF(m) = w(m) / Σ w, w(m) = MW(ISEG(m)) SCM(K, ISEG(m))',
        (
            Argument('K', 'int', 'in', '', 'component index: the row of SCM', ''),
            Argument('LD', 'int', 'in', '', 'leading dimension of SCM', ''),
            Argument('MW', 'real', 'in', 'component', 'molecular weights, segments included', 'g/mol'),
            Argument('SCM', 'real', 'in', 'LD,*', 'segments of each segment component per molecule of each component', '1'),
            Argument('NSEG', 'int', 'in', '', 'number of segments', ''),
            Argument('ISEG', 'int', 'in', 'NSEG', 'component index of each segment', ''),
            Argument('SWF', 'real', 'out', 'NSEG', 'mass fraction of each segment, in the order of ISEG', '1'),
        ),
        (
            'Reads its arguments and the zero bound; any row K is taken, flagged as a polymer or not.',
            'Σ w at or below the zero bound: equal shares 1/NSEG.',
            'NSEG < 1: nothing is written.',
            'A NaN among the values gives equal shares.',
        ),
    ),
    'POLY_TBPARA': Signature(
        'interaction',
        'Binary parameter of one pair at a temperature, and its temperature derivative.',
        'VALUE = P1 + P2/x + P3 ln(x) + P4 x + P5 x², x = T / TR, summed as ((P5 x + P4) x) + ((P2/x + P1) + ln(x) P3)\nDERIV = (P4 - P2/x² + P3/x + 2 P5 x) / TR',
        (
            Argument('T', 'real', 'in', '', 'temperature', 'K'),
            Argument('P1', 'real', 'in', '', 'constant coefficient', 'as VALUE'),
            Argument('P2', 'real', 'in', '', 'coefficient of 1/x', 'as VALUE'),
            Argument('P3', 'real', 'in', '', 'coefficient of ln(x)', 'as VALUE'),
            Argument('P4', 'real', 'in', '', 'coefficient of x', 'as VALUE'),
            Argument('P5', 'real', 'in', '', 'coefficient of x²', 'as VALUE'),
            Argument('TR', 'real', 'in', '', 'reference temperature', 'K'),
            Argument('MODE', 'int', 'in', '', '1 value, 2 derivative, 3 both; above 3 derivative, below 1 neither', ''),
            Argument('VALUE', 'real', 'out', '', 'the parameter; 0 when not asked for', 'that of the coefficients'),
            Argument('DERIV', 'real', 'out', '', 'its derivative with respect to T; 0 when not asked for', 'that of the coefficients, per K'),
        ),
        (
            'Both results are always written.',
            'A mode that asks for nothing gives 0 twice, whatever the other arguments hold; no logarithm is taken for a mode that asks for the derivative alone.',
        ),
    ),
    'POLY_TBKIJ3': Signature(
        'interaction',
        'Binary parameters of all ordered pairs at a temperature, diagonal included.',
        'KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)',
        (
            Argument('T', 'real', 'in', '', 'temperature', 'K'),
            Argument('N', 'int', 'in', '', 'parameter positions per pair', ''),
            Argument('K', 'int', 'in', '', 'position of the reference temperature', ''),
            Argument('M', 'int', 'in', '', 'number of components', ''),
            Argument('P', 'real', 'in', 'N,M,M', 'coefficients P1..P5 at positions 1..5, reference temperature at position K, of each ordered pair', 'as KIJ; K for the reference temperature'),
            Argument('KIJ', 'real', 'out', 'M,M', 'parameter of each ordered pair', 'that of the coefficients'),
        ),
        (
            'A pair whose reference temperature is 0 or not finite, or whose x is not greater than 0, gets 0; so does every pair when K is not in 1..N.',
            'A coefficient position beyond N counts as 0.',
            'M < 1: nothing is written.',
        ),
    ),
    'POLY_TBKIJ4': Signature(
        'interaction',
        'Binary parameters of the pairs of selected rows at a temperature, and their temperature derivatives.',
        'KIJ(i, j) = ((P5 x + P4) x) + (ln(x) P3 + P1 + P2/x), x = T / P(K, i, j), Pl = P(l, i, j)\nDKIJ(i, j) = (P4 - P2/x² + P3/x + 2 P5 x) / P(K, i, j)',
        (
            Argument('T', 'real', 'in', '', 'temperature', 'K'),
            Argument('N', 'int', 'in', '', 'parameter positions per pair', ''),
            Argument('K', 'int', 'in', '', 'position of the reference temperature', ''),
            Argument('M', 'int', 'in', '', 'number of components', ''),
            Argument('P', 'real', 'in', 'N,M,M', 'coefficients P1..P5 at positions 1..5, reference temperature at position K, of each ordered pair', 'as KIJ; K for the reference temperature'),
            Argument('KIJ', 'real', 'out', 'M,M', 'parameter of each ordered pair', 'that of the coefficients'),
            Argument('DKIJ', 'real', 'out', 'M,M', 'its derivative with respect to T', 'that of the coefficients, per K'),
            Argument('MODE', 'int', 'in', '', '2 asks for derivatives; no other value does', ''),
            Argument('SELECT', 'real', 'in', 'M', 'exactly 1.0 selects the row of a component', '1'),
        ),
        (
            'The diagonal and the rows that are not selected are 0 in both matrices; DKIJ is 0 throughout unless MODE = 2.',
            'There is no default reference temperature: every element is 0 when K is not in 1..N.',
            'A coefficient position beyond N counts as 0.',
            'M < 1: nothing is written.',
        ),
    ),
    'POLY_KIJ5': Signature(
        'interaction',
        'Binary parameters of selected pairs at a temperature, in the form that the number of positions names.',
        "KIJ(i, j) = P1' + P2' x for N = 2\nKIJ(i, j) = P1 + P2 x + P3/x for N = 4\nKIJ(i, j) = ((P5 x + P4) x + P2/x + P1) + ln(x) P3 for any other N\nx = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30",
        (
            Argument('T', 'real', 'in', '', 'temperature', 'K'),
            Argument('N', 'int', 'in', '', 'parameter positions per pair; names the form', ''),
            Argument('K', 'int', 'in', '', 'position of the reference temperature, 0 for 298.15 K', ''),
            Argument('M', 'int', 'in', '', 'number of components', ''),
            Argument('P', 'real', 'in', 'N,M,M', 'coefficients from position 1 on, reference temperature at position K, of each ordered pair', 'as KIJ; K for the reference temperature'),
            Argument('SELECT', 'real', 'in', 'M', 'exactly 1.0 selects the row of a component', '1'),
            Argument('MASK', 'int', 'in', 'M', "anything but 0 drops a component's row and column", ''),
            Argument('KIJ', 'real', 'out', 'M,M', 'parameter of each ordered pair', 'that of the coefficients'),
        ),
        (
            'The diagonal and every element that is not selected are 0.',
            'Every element is 0 when K is neither 0 nor in 1..N.',
            'A coefficient position beyond N counts as 0.',
            'M < 1: nothing is written.',
        ),
    ),
    'POLY_DKIJ5': Signature(
        'interaction',
        'Temperature times the temperature derivative of the parameters of POLY_KIJ5.',
        "DKIJ(i, j) = x P2' for N = 2\nDKIJ(i, j) = P2 x - P3/x for N = 4\nDKIJ(i, j) = -P2/x + P3 + P4 x + 2 P5 x² for any other N\nx = T / P(K, i, j), or T / 298.15 with K = 0; Pl = P(l, i, j), Pl' = 0 for a coefficient above 1e30",
        (
            Argument('T', 'real', 'in', '', 'temperature', 'K'),
            Argument('N', 'int', 'in', '', 'parameter positions per pair; names the form', ''),
            Argument('K', 'int', 'in', '', 'position of the reference temperature, 0 for 298.15 K', ''),
            Argument('M', 'int', 'in', '', 'number of components', ''),
            Argument('P', 'real', 'in', 'N,M,M', 'coefficients from position 1 on, reference temperature at position K, of each ordered pair', 'as DKIJ; K for the reference temperature'),
            Argument('SELECT', 'real', 'in', 'M', 'exactly 1.0 selects the row of a component', '1'),
            Argument('MASK', 'int', 'in', 'M', "anything but 0 drops a component's row and column", ''),
            Argument('DKIJ', 'real', 'out', 'M,M', 'T dKIJ/dT of each ordered pair', 'that of the coefficients'),
        ),
        (
            'The diagonal and every element that is not selected are 0.',
            'Every element is 0 when K is neither 0 nor in 1..N.',
            'A coefficient position beyond N counts as 0.',
            'M < 1: nothing is written.',
        ),
    ),
    'POLY_TBPARI': Signature(
        'interaction',
        'Completes a binary parameter array in which pairs are given in only one order of their components.',
        'P(l, b, a) = P(l, a, b), symmetric, for a pair a < b of which exactly one order is 0; either order may be the given one\nP(l, b, a) = -P(l, a, b) at the antisymmetric positions',
        (
            Argument('N', 'int', 'in', '', 'parameter positions per pair', ''),
            Argument('M', 'int', 'in', '', 'number of components', ''),
            Argument('P', 'real', 'inout', 'N,M,M', 'parameter positions of each ordered pair', 'any'),
            Argument('K', 'int', 'in', '', 'number of leading positions that MODE speaks of; 0 below 0, N above N', ''),
            Argument('MODE', 'int', 'in', '', '1: the leading positions are symmetric; any other value: antisymmetric', ''),
        ),
        (
            'Positions after the K leading ones are always symmetric.',
            'A pair that is given in both orders, or in neither, is left as it is, also when its orders disagree. Not a number counts as given, a negative zero as 0.',
            'The diagonal is left as it is; with M < 2 nothing changes.',
        ),
    ),
    'POLY_CSDINI': Signature(
        'distribution',
        'Chain-length grid on a logarithmic scale, and cleared arrays to accumulate distributions in.',
        'X(k) = trunc(10^((k L)/N)), L = log10(PMAX), k = 1..N\nX(k) = X(k - 1) + 1 where that is not greater than X(k - 1); X(0) counts as 0',
        (
            Argument('N', 'int', 'in', '', 'number of grid points', ''),
            Argument('M', 'int', 'in', '', 'number of sections or site types', ''),
            Argument('X', 'real', 'out', 'N', 'chain lengths, whole numbers, strictly increasing', '1'),
            Argument('PMAX', 'real', 'in', '', 'longest chain of the grid', '1'),
            Argument('W', 'real', 'out', 'M+1', 'running weights, the total last: set to 0', 'any amount'),
            Argument('Y', 'real', 'out', 'N', 'composite distribution: set to 0', '1'),
            Argument('COL', 'real', 'out', 'N,M', 'distribution of each section or site type: set to 0', '1'),
        ),
        (
            'The last point may fall one below a whole-number PMAX through rounding; a grid finer than the whole numbers reaches beyond PMAX.',
            'A longest chain that is not greater than 0 or not finite gives the grid 1, 2, …, N.',
            'N < 1: only W is cleared. M = 0: W is one word, COL is left as it is.',
        ),
    ),
    'POLY_CSDADD': Signature(
        'distribution',
        'Mixes two distributions in proportion to their weights.',
        'Y(k) = (Y1(k) W1 + Y2(k) W2) / W, W = W1 + W2',
        (
            Argument('N', 'int', 'in', '', 'number of grid points', ''),
            Argument('Y1', 'real', 'in', 'N', 'first distribution', '1'),
            Argument('W1', 'real', 'in', '', 'its weight', 'any amount'),
            Argument('Y2', 'real', 'in', 'N', 'second distribution', '1'),
            Argument('W2', 'real', 'in', '', 'its weight', 'as W1'),
            Argument('Y', 'real', 'out', 'N', 'the mixture; may be Y1 or Y2', '1'),
            Argument('W', 'real', 'out', '', 'its weight; may be W1 or W2', 'as W1'),
        ),
        (
            'W is always written. A W that is not greater than the zero bound leaves Y as it is.',
            'N < 1: only W is written.',
        ),
    ),
    'POLY_CSDCAL': Signature(
        'distribution',
        'Adds one increment of polymer, made by several site types, to running chain-length distributions.',
        'COL(k, j) = (g_j(X(k)) F(j) + COL(k, j) W0) / (W0 + Σ F), W0 = W(NS + 1), for each site type j with F(j) at or above the zero bound\nY(k) = Σ_j COL(k, j)\ng(x) = e^c x s (0.5 x β s + τ) for an even MODE\ng(x) = e^c x x s (0.5 x β s + τ) for an odd MODE\ns = τ + β, c = max(-250, min(80.59, -s x))',
        (
            Argument('N', 'int', 'in', '', 'number of grid points', ''),
            Argument('NS', 'int', 'in', '', 'number of site types', ''),
            Argument('MODE', 'int', 'in', '', 'even: weight-fraction form; odd: times the chain length once more (GPC form)', ''),
            Argument('TAU', 'real', 'in', 'NS', 'site parameter τ', '1'),
            Argument('BETA', 'real', 'in', 'NS', 'site parameter β', '1'),
            Argument('F', 'real', 'in', 'NS', 'amount of new polymer of each site type', 'as W'),
            Argument('X', 'real', 'in', 'N', 'chain lengths', '1'),
            Argument('W', 'real', 'inout', 'NS+1', 'running weight of each site type, the total last', 'any amount'),
            Argument('Y', 'real', 'inout', 'N', 'running composite distribution', '1'),
            Argument('COL', 'real', 'inout', 'N,NS', 'running distribution of each site type', '1'),
        ),
        (
            'NS < 1, or Σ F below the zero bound: nothing changes.',
            'A site type whose F is not at or above the zero bound keeps its column and its weight; its column still counts in Y.',
            'A new total weight at or below the zero bound: Y is left as it is; the weights, and the columns unless that total is exactly 0, are updated.',
            'N < 1: only the weights are updated.',
        ),
    ),
    'POLY_CSDPLOT': Signature(
        'distribution',
        "Writes a composite distribution to the host's report, and it and its sections to the host's summary file.",
        'Area = Σ a(k), Pn = 1 / Σ a(k)/X(k + 1), Pw = Σ a(k) X(k + 1), PDI = Pw / Pn, k = 1..N-1\na(k) = 0.5 (h(k) + h(k + 1)) (X(k + 1) - X(k)), h(k) = Y(k, 1), or Y(k, 1)/X(k) in GPC form',
        (
            Argument('CONTEXT', 'context', 'in', '', "the host's summary context, passed on to it", ''),
            Argument('UNUSED1', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED2', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED3', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED4', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED5', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED6', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED7', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED8', 'word', 'unused', '', 'not used', ''),
            Argument('UNUSED9', 'word', 'unused', '', 'not used', ''),
            Argument('N', 'int', 'in', '', 'number of grid points', ''),
            Argument('X', 'real', 'in', 'N', 'chain lengths', '1'),
            Argument('Y', 'real', 'in', 'N,NC+1', 'distributions: the composite in column 1, section c in column c + 1', '1'),
            Argument('NC', 'int', 'in', '', 'number of sections', ''),
            Argument('SCALE', 'real', 'in', '', 'factor on the chain lengths of the summary file', 'any'),
            Argument('SCALED', 'int', 'in', '', '1 applies SCALE; no other value does', ''),
            Argument('GPC', 'int', 'in', '', 'not 0: Y holds chain length times weight fraction', ''),
        ),
        (
            'The report has a title, the table of column 1 in as many pages as it needs, and one line with Area, Pn, Pw and PDI; with Area below the zero bound, which N < 2 gives, the title alone.',
            'Real fields are 11 wide with 4 significant digits, as the Fortran edit G11.4 prints them; negative zero prints as zero, values that are not finite as NaN, Infinity or -Infinity.',
            'A page shorter than 6 lines is taken as 6. A point number beyond 9999 widens its field.',
            "The summary file gets its data sets only when the host's report switch is 1 or 2, also when the table was left out: NPOINT, PROPERTIES and TRAY_NO sets, and the blocks YCSD, XCSD and YCSDS. The host's summary counters advance by five data sets and three list sets.",
        ),
    ),
    'POLY_WRTPOLSUM': Signature(
        'report',
        "Writes polymer results per catalyst site type to the host's summary file.",
        'block POLYRES = R1(1..NS), each followed by a separator, then R2(1..NS) … R7(1..NS)',
        (
            Argument('CONTEXT', 'context', 'in', '', "the host's summary context, passed on to it", ''),
            Argument('NS', 'int', 'in', '', 'number of catalyst site types', ''),
            Argument('R1', 'real', 'in', 'NS', 'first result of each site type', 'any'),
            Argument('R2', 'real', 'in', 'NS', 'second result', 'any'),
            Argument('R3', 'real', 'in', 'NS', 'third result', 'any'),
            Argument('R4', 'real', 'in', 'NS', 'fourth result', 'any'),
            Argument('R5', 'real', 'in', 'NS', 'fifth result', 'any'),
            Argument('R6', 'real', 'in', 'NS', 'sixth result', 'any'),
            Argument('R7', 'real', 'in', 'NS', 'seventh result', 'any'),
        ),
        (
            "Nothing is written unless the run has polymers (by the polymer count of the host) and the host's report switch is 1 or 2.",
            "The block is listed against the data set SITES, which is named, not numbered. The host's summary counters advance by one list set.",
            'NS < 1: the block holds no values.',
        ),
    ),
}
