xobj='  ' xbound='	'
