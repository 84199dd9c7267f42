* The crew of a dispatch centre: how many people to plan on which pattern.
*
* The centre works around the clock in three shifts, early (E), late (L) and
* night (N). For each shift of the week a number of people must be there, and
* one of them in four must be senior. People with a full contract work five
* days in a row and then have two days off; those with a part contract work
* three days in a row. A pattern is named by contract, shift and first day:
* FEMO is a full contract on early shifts from Monday to Friday, PNSA a part
* contract on night shifts from Saturday to Monday. Seniors have full
* contracts: SEMO and so on. Gaps can be filled with temporary staff, at most
* two a shift (TEMO is one on Monday's early shift), who don't count as
* senior.
*
* There are 24 full contracts for those who aren't senior, 16 for seniors and
* 20 part contracts, and at most eight seniors can be planned on nights. Part
* contracts may not make up more than three tenths of all days worked on
* contract. COST is a week's pay in euros with the extra for nights and
* weekends; it is minimized. All columns are whole numbers.
NAME          CREWPLAN
ROWS
 N  COST
* People needed on each shift
 G  NEEDEMO
 G  NEEDETU
 G  NEEDEWE
 G  NEEDETH
 G  NEEDEFR
 G  NEEDESA
 G  NEEDESU
 G  NEEDLMO
 G  NEEDLTU
 G  NEEDLWE
 G  NEEDLTH
 G  NEEDLFR
 G  NEEDLSA
 G  NEEDLSU
 G  NEEDNMO
 G  NEEDNTU
 G  NEEDNWE
 G  NEEDNTH
 G  NEEDNFR
 G  NEEDNSA
 G  NEEDNSU
* Seniors needed on each shift: a quarter, rounded up
 G  SENEMO
 G  SENETU
 G  SENEWE
 G  SENETH
 G  SENEFR
 G  SENESA
 G  SENESU
 G  SENLMO
 G  SENLTU
 G  SENLWE
 G  SENLTH
 G  SENLFR
 G  SENLSA
 G  SENLSU
 G  SENNMO
 G  SENNTU
 G  SENNWE
 G  SENNTH
 G  SENNFR
 G  SENNSA
 G  SENNSU
* Contracts that there are, seniors on nights, and the share of part contracts
 L  FULL
 L  SENIORS
 L  PART
 L  SENNIGHT
 L  SHARE
COLUMNS
    MARK0001  'MARKER'                 'INTORG'
* Full contracts, early shifts from Monday to Sunday on
    FEMO      COST               740   NEEDEMO              1
    FEMO      NEEDETU              1   NEEDEWE              1
    FEMO      NEEDETH              1   NEEDEFR              1
    FEMO      FULL                 1   SHARE             -1.5
    FETU      COST               777   NEEDETU              1
    FETU      NEEDEWE              1   NEEDETH              1
    FETU      NEEDEFR              1   NEEDESA              1
    FETU      FULL                 1   SHARE             -1.5
    FEWE      COST               851   NEEDEWE              1
    FEWE      NEEDETH              1   NEEDEFR              1
    FEWE      NEEDESA              1   NEEDESU              1
    FEWE      FULL                 1   SHARE             -1.5
    FETH      COST               851   NEEDEMO              1
    FETH      NEEDETH              1   NEEDEFR              1
    FETH      NEEDESA              1   NEEDESU              1
    FETH      FULL                 1   SHARE             -1.5
    FEFR      COST               851   NEEDEMO              1
    FEFR      NEEDETU              1   NEEDEFR              1
    FEFR      NEEDESA              1   NEEDESU              1
    FEFR      FULL                 1   SHARE             -1.5
    FESA      COST               851   NEEDEMO              1
    FESA      NEEDETU              1   NEEDEWE              1
    FESA      NEEDESA              1   NEEDESU              1
    FESA      FULL                 1   SHARE             -1.5
    FESU      COST               814   NEEDEMO              1
    FESU      NEEDETU              1   NEEDEWE              1
    FESU      NEEDETH              1   NEEDESU              1
    FESU      FULL                 1   SHARE             -1.5
* Full contracts, late shifts from Monday to Sunday on
    FLMO      COST               799   NEEDLMO              1
    FLMO      NEEDLTU              1   NEEDLWE              1
    FLMO      NEEDLTH              1   NEEDLFR              1
    FLMO      FULL                 1   SHARE             -1.5
    FLTU      COST               839   NEEDLTU              1
    FLTU      NEEDLWE              1   NEEDLTH              1
    FLTU      NEEDLFR              1   NEEDLSA              1
    FLTU      FULL                 1   SHARE             -1.5
    FLWE      COST               919   NEEDLWE              1
    FLWE      NEEDLTH              1   NEEDLFR              1
    FLWE      NEEDLSA              1   NEEDLSU              1
    FLWE      FULL                 1   SHARE             -1.5
    FLTH      COST               919   NEEDLMO              1
    FLTH      NEEDLTH              1   NEEDLFR              1
    FLTH      NEEDLSA              1   NEEDLSU              1
    FLTH      FULL                 1   SHARE             -1.5
    FLFR      COST               919   NEEDLMO              1
    FLFR      NEEDLTU              1   NEEDLFR              1
    FLFR      NEEDLSA              1   NEEDLSU              1
    FLFR      FULL                 1   SHARE             -1.5
    FLSA      COST               919   NEEDLMO              1
    FLSA      NEEDLTU              1   NEEDLWE              1
    FLSA      NEEDLSA              1   NEEDLSU              1
    FLSA      FULL                 1   SHARE             -1.5
    FLSU      COST               879   NEEDLMO              1
    FLSU      NEEDLTU              1   NEEDLWE              1
    FLSU      NEEDLTH              1   NEEDLSU              1
    FLSU      FULL                 1   SHARE             -1.5
* Full contracts, night shifts from Monday to Sunday on
    FNMO      COST               925   NEEDNMO              1
    FNMO      NEEDNTU              1   NEEDNWE              1
    FNMO      NEEDNTH              1   NEEDNFR              1
    FNMO      FULL                 1   SHARE             -1.5
    FNTU      COST               971   NEEDNTU              1
    FNTU      NEEDNWE              1   NEEDNTH              1
    FNTU      NEEDNFR              1   NEEDNSA              1
    FNTU      FULL                 1   SHARE             -1.5
    FNWE      COST              1064   NEEDNWE              1
    FNWE      NEEDNTH              1   NEEDNFR              1
    FNWE      NEEDNSA              1   NEEDNSU              1
    FNWE      FULL                 1   SHARE             -1.5
    FNTH      COST              1064   NEEDNMO              1
    FNTH      NEEDNTH              1   NEEDNFR              1
    FNTH      NEEDNSA              1   NEEDNSU              1
    FNTH      FULL                 1   SHARE             -1.5
    FNFR      COST              1064   NEEDNMO              1
    FNFR      NEEDNTU              1   NEEDNFR              1
    FNFR      NEEDNSA              1   NEEDNSU              1
    FNFR      FULL                 1   SHARE             -1.5
    FNSA      COST              1064   NEEDNMO              1
    FNSA      NEEDNTU              1   NEEDNWE              1
    FNSA      NEEDNSA              1   NEEDNSU              1
    FNSA      FULL                 1   SHARE             -1.5
    FNSU      COST              1018   NEEDNMO              1
    FNSU      NEEDNTU              1   NEEDNWE              1
    FNSU      NEEDNTH              1   NEEDNSU              1
    FNSU      FULL                 1   SHARE             -1.5
* Seniors, early shifts from Monday to Sunday on
    SEMO      COST               935   NEEDEMO              1
    SEMO      NEEDETU              1   NEEDEWE              1
    SEMO      NEEDETH              1   NEEDEFR              1
    SEMO      SENEMO               1   SENETU               1
    SEMO      SENEWE               1   SENETH               1
    SEMO      SENEFR               1   SENIORS              1
    SEMO      SHARE             -1.5
    SETU      COST               982   NEEDETU              1
    SETU      NEEDEWE              1   NEEDETH              1
    SETU      NEEDEFR              1   NEEDESA              1
    SETU      SENETU               1   SENEWE               1
    SETU      SENETH               1   SENEFR               1
    SETU      SENESA               1   SENIORS              1
    SETU      SHARE             -1.5
    SEWE      COST              1075   NEEDEWE              1
    SEWE      NEEDETH              1   NEEDEFR              1
    SEWE      NEEDESA              1   NEEDESU              1
    SEWE      SENEWE               1   SENETH               1
    SEWE      SENEFR               1   SENESA               1
    SEWE      SENESU               1   SENIORS              1
    SEWE      SHARE             -1.5
    SETH      COST              1075   NEEDEMO              1
    SETH      NEEDETH              1   NEEDEFR              1
    SETH      NEEDESA              1   NEEDESU              1
    SETH      SENEMO               1   SENETH               1
    SETH      SENEFR               1   SENESA               1
    SETH      SENESU               1   SENIORS              1
    SETH      SHARE             -1.5
    SEFR      COST              1075   NEEDEMO              1
    SEFR      NEEDETU              1   NEEDEFR              1
    SEFR      NEEDESA              1   NEEDESU              1
    SEFR      SENEMO               1   SENETU               1
    SEFR      SENEFR               1   SENESA               1
    SEFR      SENESU               1   SENIORS              1
    SEFR      SHARE             -1.5
    SESA      COST              1075   NEEDEMO              1
    SESA      NEEDETU              1   NEEDEWE              1
    SESA      NEEDESA              1   NEEDESU              1
    SESA      SENEMO               1   SENETU               1
    SESA      SENEWE               1   SENESA               1
    SESA      SENESU               1   SENIORS              1
    SESA      SHARE             -1.5
    SESU      COST              1028   NEEDEMO              1
    SESU      NEEDETU              1   NEEDEWE              1
    SESU      NEEDETH              1   NEEDESU              1
    SESU      SENEMO               1   SENETU               1
    SESU      SENEWE               1   SENETH               1
    SESU      SENESU               1   SENIORS              1
    SESU      SHARE             -1.5
* Seniors, late shifts from Monday to Sunday on
    SLMO      COST              1010   NEEDLMO              1
    SLMO      NEEDLTU              1   NEEDLWE              1
    SLMO      NEEDLTH              1   NEEDLFR              1
    SLMO      SENLMO               1   SENLTU               1
    SLMO      SENLWE               1   SENLTH               1
    SLMO      SENLFR               1   SENIORS              1
    SLMO      SHARE             -1.5
    SLTU      COST              1060   NEEDLTU              1
    SLTU      NEEDLWE              1   NEEDLTH              1
    SLTU      NEEDLFR              1   NEEDLSA              1
    SLTU      SENLTU               1   SENLWE               1
    SLTU      SENLTH               1   SENLFR               1
    SLTU      SENLSA               1   SENIORS              1
    SLTU      SHARE             -1.5
    SLWE      COST              1161   NEEDLWE              1
    SLWE      NEEDLTH              1   NEEDLFR              1
    SLWE      NEEDLSA              1   NEEDLSU              1
    SLWE      SENLWE               1   SENLTH               1
    SLWE      SENLFR               1   SENLSA               1
    SLWE      SENLSU               1   SENIORS              1
    SLWE      SHARE             -1.5
    SLTH      COST              1161   NEEDLMO              1
    SLTH      NEEDLTH              1   NEEDLFR              1
    SLTH      NEEDLSA              1   NEEDLSU              1
    SLTH      SENLMO               1   SENLTH               1
    SLTH      SENLFR               1   SENLSA               1
    SLTH      SENLSU               1   SENIORS              1
    SLTH      SHARE             -1.5
    SLFR      COST              1161   NEEDLMO              1
    SLFR      NEEDLTU              1   NEEDLFR              1
    SLFR      NEEDLSA              1   NEEDLSU              1
    SLFR      SENLMO               1   SENLTU               1
    SLFR      SENLFR               1   SENLSA               1
    SLFR      SENLSU               1   SENIORS              1
    SLFR      SHARE             -1.5
    SLSA      COST              1161   NEEDLMO              1
    SLSA      NEEDLTU              1   NEEDLWE              1
    SLSA      NEEDLSA              1   NEEDLSU              1
    SLSA      SENLMO               1   SENLTU               1
    SLSA      SENLWE               1   SENLSA               1
    SLSA      SENLSU               1   SENIORS              1
    SLSA      SHARE             -1.5
    SLSU      COST              1111   NEEDLMO              1
    SLSU      NEEDLTU              1   NEEDLWE              1
    SLSU      NEEDLTH              1   NEEDLSU              1
    SLSU      SENLMO               1   SENLTU               1
    SLSU      SENLWE               1   SENLTH               1
    SLSU      SENLSU               1   SENIORS              1
    SLSU      SHARE             -1.5
* Seniors, night shifts from Monday to Sunday on
    SNMO      COST              1169   NEEDNMO              1
    SNMO      NEEDNTU              1   NEEDNWE              1
    SNMO      NEEDNTH              1   NEEDNFR              1
    SNMO      SENNMO               1   SENNTU               1
    SNMO      SENNWE               1   SENNTH               1
    SNMO      SENNFR               1   SENIORS              1
    SNMO      SENNIGHT             1   SHARE             -1.5
    SNTU      COST              1227   NEEDNTU              1
    SNTU      NEEDNWE              1   NEEDNTH              1
    SNTU      NEEDNFR              1   NEEDNSA              1
    SNTU      SENNTU               1   SENNWE               1
    SNTU      SENNTH               1   SENNFR               1
    SNTU      SENNSA               1   SENIORS              1
    SNTU      SENNIGHT             1   SHARE             -1.5
    SNWE      COST              1344   NEEDNWE              1
    SNWE      NEEDNTH              1   NEEDNFR              1
    SNWE      NEEDNSA              1   NEEDNSU              1
    SNWE      SENNWE               1   SENNTH               1
    SNWE      SENNFR               1   SENNSA               1
    SNWE      SENNSU               1   SENIORS              1
    SNWE      SENNIGHT             1   SHARE             -1.5
    SNTH      COST              1344   NEEDNMO              1
    SNTH      NEEDNTH              1   NEEDNFR              1
    SNTH      NEEDNSA              1   NEEDNSU              1
    SNTH      SENNMO               1   SENNTH               1
    SNTH      SENNFR               1   SENNSA               1
    SNTH      SENNSU               1   SENIORS              1
    SNTH      SENNIGHT             1   SHARE             -1.5
    SNFR      COST              1344   NEEDNMO              1
    SNFR      NEEDNTU              1   NEEDNFR              1
    SNFR      NEEDNSA              1   NEEDNSU              1
    SNFR      SENNMO               1   SENNTU               1
    SNFR      SENNFR               1   SENNSA               1
    SNFR      SENNSU               1   SENIORS              1
    SNFR      SENNIGHT             1   SHARE             -1.5
    SNSA      COST              1344   NEEDNMO              1
    SNSA      NEEDNTU              1   NEEDNWE              1
    SNSA      NEEDNSA              1   NEEDNSU              1
    SNSA      SENNMO               1   SENNTU               1
    SNSA      SENNWE               1   SENNSA               1
    SNSA      SENNSU               1   SENIORS              1
    SNSA      SENNIGHT             1   SHARE             -1.5
    SNSU      COST              1286   NEEDNMO              1
    SNSU      NEEDNTU              1   NEEDNWE              1
    SNSU      NEEDNTH              1   NEEDNSU              1
    SNSU      SENNMO               1   SENNTU               1
    SNSU      SENNWE               1   SENNTH               1
    SNSU      SENNSU               1   SENIORS              1
    SNSU      SENNIGHT             1   SHARE             -1.5
* Part contracts, early shifts from Monday to Sunday on
    PEMO      COST               456   NEEDEMO              1
    PEMO      NEEDETU              1   NEEDEWE              1
    PEMO      PART                 1   SHARE              2.1
    PETU      COST               456   NEEDETU              1
    PETU      NEEDEWE              1   NEEDETH              1
    PETU      PART                 1   SHARE              2.1
    PEWE      COST               456   NEEDEWE              1
    PEWE      NEEDETH              1   NEEDEFR              1
    PEWE      PART                 1   SHARE              2.1
    PETH      COST               494   NEEDETH              1
    PETH      NEEDEFR              1   NEEDESA              1
    PETH      PART                 1   SHARE              2.1
    PEFR      COST               570   NEEDEFR              1
    PEFR      NEEDESA              1   NEEDESU              1
    PEFR      PART                 1   SHARE              2.1
    PESA      COST               570   NEEDEMO              1
    PESA      NEEDESA              1   NEEDESU              1
    PESA      PART                 1   SHARE              2.1
    PESU      COST               532   NEEDEMO              1
    PESU      NEEDETU              1   NEEDESU              1
    PESU      PART                 1   SHARE              2.1
* Part contracts, late shifts from Monday to Sunday on
    PLMO      COST               492   NEEDLMO              1
    PLMO      NEEDLTU              1   NEEDLWE              1
    PLMO      PART                 1   SHARE              2.1
    PLTU      COST               492   NEEDLTU              1
    PLTU      NEEDLWE              1   NEEDLTH              1
    PLTU      PART                 1   SHARE              2.1
    PLWE      COST               492   NEEDLWE              1
    PLWE      NEEDLTH              1   NEEDLFR              1
    PLWE      PART                 1   SHARE              2.1
    PLTH      COST               534   NEEDLTH              1
    PLTH      NEEDLFR              1   NEEDLSA              1
    PLTH      PART                 1   SHARE              2.1
    PLFR      COST               616   NEEDLFR              1
    PLFR      NEEDLSA              1   NEEDLSU              1
    PLFR      PART                 1   SHARE              2.1
    PLSA      COST               616   NEEDLMO              1
    PLSA      NEEDLSA              1   NEEDLSU              1
    PLSA      PART                 1   SHARE              2.1
    PLSU      COST               575   NEEDLMO              1
    PLSU      NEEDLTU              1   NEEDLSU              1
    PLSU      PART                 1   SHARE              2.1
* Part contracts, night shifts from Monday to Sunday on
    PNMO      COST               570   NEEDNMO              1
    PNMO      NEEDNTU              1   NEEDNWE              1
    PNMO      PART                 1   SHARE              2.1
    PNTU      COST               570   NEEDNTU              1
    PNTU      NEEDNWE              1   NEEDNTH              1
    PNTU      PART                 1   SHARE              2.1
    PNWE      COST               570   NEEDNWE              1
    PNWE      NEEDNTH              1   NEEDNFR              1
    PNWE      PART                 1   SHARE              2.1
    PNTH      COST               618   NEEDNTH              1
    PNTH      NEEDNFR              1   NEEDNSA              1
    PNTH      PART                 1   SHARE              2.1
    PNFR      COST               712   NEEDNFR              1
    PNFR      NEEDNSA              1   NEEDNSU              1
    PNFR      PART                 1   SHARE              2.1
    PNSA      COST               712   NEEDNMO              1
    PNSA      NEEDNSA              1   NEEDNSU              1
    PNSA      PART                 1   SHARE              2.1
    PNSU      COST               665   NEEDNMO              1
    PNSU      NEEDNTU              1   NEEDNSU              1
    PNSU      PART                 1   SHARE              2.1
* Temporary staff
    TEMO      COST               245   NEEDEMO              1
    TETU      COST               245   NEEDETU              1
    TEWE      COST               245   NEEDEWE              1
    TETH      COST               245   NEEDETH              1
    TEFR      COST               245   NEEDEFR              1
    TESA      COST               306   NEEDESA              1
    TESU      COST               368   NEEDESU              1
    TLMO      COST               265   NEEDLMO              1
    TLTU      COST               265   NEEDLTU              1
    TLWE      COST               265   NEEDLWE              1
    TLTH      COST               265   NEEDLTH              1
    TLFR      COST               265   NEEDLFR              1
    TLSA      COST               331   NEEDLSA              1
    TLSU      COST               397   NEEDLSU              1
    TNMO      COST               306   NEEDNMO              1
    TNTU      COST               306   NEEDNTU              1
    TNWE      COST               306   NEEDNWE              1
    TNTH      COST               306   NEEDNTH              1
    TNFR      COST               306   NEEDNFR              1
    TNSA      COST               383   NEEDNSA              1
    TNSU      COST               459   NEEDNSU              1
    MARK0002  'MARKER'                 'INTEND'
RHS
    RHS       NEEDEMO              9   NEEDETU              8
    RHS       NEEDEWE              8   NEEDETH              8
    RHS       NEEDEFR              9   NEEDESA              7
    RHS       NEEDESU              6   NEEDLMO              8
    RHS       NEEDLTU              8   NEEDLWE              8
    RHS       NEEDLTH              9   NEEDLFR             11
    RHS       NEEDLSA             10   NEEDLSU              7
    RHS       NEEDNMO              5   NEEDNTU              4
    RHS       NEEDNWE              4   NEEDNTH              5
    RHS       NEEDNFR              7   NEEDNSA              8
    RHS       NEEDNSU              6   SENEMO               3
    RHS       SENETU               2   SENEWE               2
    RHS       SENETH               2   SENEFR               3
    RHS       SENESA               2   SENESU               2
    RHS       SENLMO               2   SENLTU               2
    RHS       SENLWE               2   SENLTH               3
    RHS       SENLFR               3   SENLSA               3
    RHS       SENLSU               2   SENNMO               2
    RHS       SENNTU               1   SENNWE               1
    RHS       SENNTH               2   SENNFR               2
    RHS       SENNSA               2   SENNSU               2
    RHS       FULL                24   SENIORS             16
    RHS       PART                20   SENNIGHT             8
BOUNDS
* At most so many people share a pattern
 UP LIMIT     FEMO                12
 UP LIMIT     FETU                12
 UP LIMIT     FEWE                12
 UP LIMIT     FETH                12
 UP LIMIT     FEFR                12
 UP LIMIT     FESA                12
 UP LIMIT     FESU                12
 UP LIMIT     FLMO                12
 UP LIMIT     FLTU                12
 UP LIMIT     FLWE                12
 UP LIMIT     FLTH                12
 UP LIMIT     FLFR                12
 UP LIMIT     FLSA                12
 UP LIMIT     FLSU                12
 UP LIMIT     FNMO                12
 UP LIMIT     FNTU                12
 UP LIMIT     FNWE                12
 UP LIMIT     FNTH                12
 UP LIMIT     FNFR                12
 UP LIMIT     FNSA                12
 UP LIMIT     FNSU                12
 UP LIMIT     SEMO                 6
 UP LIMIT     SETU                 6
 UP LIMIT     SEWE                 6
 UP LIMIT     SETH                 6
 UP LIMIT     SEFR                 6
 UP LIMIT     SESA                 6
 UP LIMIT     SESU                 6
 UP LIMIT     SLMO                 6
 UP LIMIT     SLTU                 6
 UP LIMIT     SLWE                 6
 UP LIMIT     SLTH                 6
 UP LIMIT     SLFR                 6
 UP LIMIT     SLSA                 6
 UP LIMIT     SLSU                 6
 UP LIMIT     SNMO                 6
 UP LIMIT     SNTU                 6
 UP LIMIT     SNWE                 6
 UP LIMIT     SNTH                 6
 UP LIMIT     SNFR                 6
 UP LIMIT     SNSA                 6
 UP LIMIT     SNSU                 6
 UP LIMIT     PEMO                 8
 UP LIMIT     PETU                 8
 UP LIMIT     PEWE                 8
 UP LIMIT     PETH                 8
 UP LIMIT     PEFR                 8
 UP LIMIT     PESA                 8
 UP LIMIT     PESU                 8
 UP LIMIT     PLMO                 8
 UP LIMIT     PLTU                 8
 UP LIMIT     PLWE                 8
 UP LIMIT     PLTH                 8
 UP LIMIT     PLFR                 8
 UP LIMIT     PLSA                 8
 UP LIMIT     PLSU                 8
 UP LIMIT     PNMO                 8
 UP LIMIT     PNTU                 8
 UP LIMIT     PNWE                 8
 UP LIMIT     PNTH                 8
 UP LIMIT     PNFR                 8
 UP LIMIT     PNSA                 8
 UP LIMIT     PNSU                 8
* At most two temporary people on a shift
 UP LIMIT     TEMO                 2
 UP LIMIT     TETU                 2
 UP LIMIT     TEWE                 2
 UP LIMIT     TETH                 2
 UP LIMIT     TEFR                 2
 UP LIMIT     TESA                 2
 UP LIMIT     TESU                 2
 UP LIMIT     TLMO                 2
 UP LIMIT     TLTU                 2
 UP LIMIT     TLWE                 2
 UP LIMIT     TLTH                 2
 UP LIMIT     TLFR                 2
 UP LIMIT     TLSA                 2
 UP LIMIT     TLSU                 2
 UP LIMIT     TNMO                 2
 UP LIMIT     TNTU                 2
 UP LIMIT     TNWE                 2
 UP LIMIT     TNTH                 2
 UP LIMIT     TNFR                 2
 UP LIMIT     TNSA                 2
 UP LIMIT     TNSU                 2
ENDATA
