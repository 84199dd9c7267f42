xobj===
==
