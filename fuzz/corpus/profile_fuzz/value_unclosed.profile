xobj = 'a
b'
