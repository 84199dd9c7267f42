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
              R1                   1
