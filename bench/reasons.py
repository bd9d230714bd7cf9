"""Why an operation misses a target, for docs/performance.md."""

ROOT = ("The one square root: an estimate, three Newton steps and a division, some 30 instructions, for the same bits "
        "on every processor; the peers have the processor's root.")

REASONS = {
    "box growth": "Eigen takes four lanes side by side; ours leaves the fourth, w, as it is.",
    "distance": ROOT,
    "dot product": "The order of the sum is fixed, from the left; the peers add in pairs.",
    "inverse": "Pivots, which keep a badly scaled matrix; the peers but Imath take cofactors. Beside those that pivot: "
               "the row \"inverse with pivots\".",
    "length": ROOT,
    "matrix product": "With -march=native Eigen fuses products and sums; ours round each, for the same bits everywhere.",
    "normalise": ROOT,
    "normalise an array": ROOT,
    "point by matrix": "The result's w is 0 and not the fourth column's sum, so three sums are made one by one; the "
                       "peers make four side by side.",
    "points by one matrix": "Assignment leaves the target's w, so three lanes of four are stored; with eight lanes at "
                            "hand that costs the peers' way of storing whole registers.",
    "quaternion from matrix": ROOT,
    "quaternion product": "The order of each sum is fixed, and so are its signs; Eigen and cglm shuffle lanes.",
    "ray against sphere": ROOT,
    "rectangle clip": "Six comparisons, two of them after the others: a rectangle of nothing ends with equal corners, "
                      "where the peers leave theirs crossed; they do four, side by side.",
    "segment by its ends against box": ROOT,
    "sphere against plane": "The distance is a dot product over four components and the relation has three outcomes; "
                            "the peers' callers take three components and one comparison.",
    "slerp": "Trigonometry of float goes through the functions of double, for the same bits everywhere.",
}
