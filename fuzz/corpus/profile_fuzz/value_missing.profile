xmiter =
xobj=A