* sample
NAME          T
ROWS
 N  COST
 E  R1
 L  R2
 G  R3
 N  R4
COLUMNS
    X         R1                   1   COST                 2
    X         R2              -3.5e1   R3               1 000
    M         'MARKER'                 'INTORG'
    Y         R1                   4   R4                   0
    M         'MARKER'                 'INTEND'
RHS
    B         R1                   4   R2                   8
    B         R3               -1e30
RANGES
    R         R1                  -2   R2                   5
    R         R3                   3
BOUNDS
 FR B         X                    3
 PL B         X                    3
 MI B         X                    3
 BV B         X                    3
 LO B         X                    3
 UP B         X                    3
 LI B         X                    3
 UI B         X                    3
 FX B         X                    3
 UP B         Y
 LI B         Y               -1e300
ENDATA
