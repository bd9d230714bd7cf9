"""Why an operation misses a target, for docs/performance.md: by its whole name, or by what stands before a comma."""

ROOT = ("The one square root: an estimate, three Newton steps and a division, some 30 instructions, for the same bits "
        "on every processor; the peers have the processor's root.")

BRANCHES = ("The same comparisons and branches, and as many instructions, as the peers'; in which order they come "
            "decides how many the processor guesses wrong.")

REASONS = {
    "box against box": "The corners are compared as vectors, and w counts: eight comparisons, where the peers have six.",
    "box growth": "Eigen takes four lanes side by side; ours leaves the fourth, w, as it is.",
    "cross product": "The result has a fourth component, 0, which is stored too; the peers' have three.",
    "determinant": "Minors one after the other. The aligned forms of glm and cglm are written in SSE intrinsics, four "
                   "lanes side by side; Eigen and Imath, which are not, take as long as ours or longer.",
    "distance": ROOT,
    "dot product": "The order of the sum is fixed, from the left; the peers add in pairs.",
    "inverse": "Pivots, which keep a badly scaled matrix; the peers but Imath take cofactors. Beside those that pivot: "
               "the row \"inverse with pivots\".",
    "length": ROOT,
    "matrix product": "The same products and sums, which the compiler spreads over lanes in more instructions than "
                      "Eigen's intrinsics take. With -march=native Eigen fuses them; ours round each, for the same "
                      "bits everywhere.",
    "normalise": ROOT,
    "normalise an array": ROOT,
    "point by matrix": "The result's w is 0 and not the fourth column's sum, so three sums are made one by one; the "
                       "peers make four side by side.",
    "point in box": BRANCHES,
    "point in rectangle": BRANCHES,
    "points by one matrix, memory": "A vector has four components; the peers' fastest forms have three, and a quarter "
                                    "less to fetch and store.",
    "points by one matrix": "Assignment leaves the target's w, so three lanes of four are stored; with eight lanes at "
                            "hand that costs the peers' way of storing whole registers.",
    "quaternion from matrix": ROOT,
    "quaternion product": "The order of each sum is fixed, and so are its signs; Eigen and cglm shuffle lanes.",
    "quaternion to matrix": "Each of nine sums is doubled, as the formula has it. Eigen doubles three components first: "
                            "fewer additions, but other bits where a product is subnormal.",
    "quaternion turns a vector": "The bits are those of the vector times ToMatrix, whose nine elements are formed "
                                 "first; the peers take two cross products.",
    "ray against sphere": ROOT,
    "rectangle clip": "Six comparisons, two of them after the others: a rectangle of nothing ends with equal corners, "
                      "where the peers leave theirs crossed; they do four, side by side.",
    "segment by its ends against box": ROOT,
    "sphere against plane": "The distance is a dot product over four components and the relation has three outcomes; "
                            "the peers' callers take three components and one comparison.",
    "slerp": "A call into the library, which alone includes <cmath>; the peers' is inlined. Trigonometry of float goes "
             "through the functions of double, for the same bits everywhere.",
    "transpose": "glm's aligned form and cglm's shuffle registers by SSE intrinsics; of ours, as of Eigen's and Imath's, "
                 "the compiler moves most elements one by one.",
}
