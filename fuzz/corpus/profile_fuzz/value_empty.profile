xbound = '' xobj="' xrhs=""
