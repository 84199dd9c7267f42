xmiter = many
