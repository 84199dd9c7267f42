xobj = 'a
! still quoted
xmiter=5 ! x'
