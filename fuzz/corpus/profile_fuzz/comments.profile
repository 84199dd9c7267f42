* xmiter=1
c xmiter=2
  CONFIG
! xmiter=3
xmiter=5 ! limit
*