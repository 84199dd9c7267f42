NAME          T
ROWS
 N  COST
 E  R1
 L  R2
 G  R3
 N  R4
 X  R
