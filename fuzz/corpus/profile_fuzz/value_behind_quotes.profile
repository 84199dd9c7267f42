xobj='a'xbound="b"xmiter=3
