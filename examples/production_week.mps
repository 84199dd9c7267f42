* A week in a dairy: what to make on which day.
*
* Four products, yoghurt (YO), quark (QU), cream (CR) and butter (BU), are
* filled on one line, Monday (MO) to Sunday (SU). Shops are supplied each day,
* from the day's filling or from the cold store; what can't be supplied is
* lost and costs a penalty. Before a product is filled on a day the line is
* cleaned and set up for it, which takes time and money whatever the amount.
* The line has 12 hours a day, 7 on Saturday, and is closed on Sunday but for
* an emergency crew. Overtime of up to 4 hours a day can be bought. Milk comes
* fresh each day and doesn't keep. The cold store holds 40 pallets, and on
* Sunday evening it must hold a stock for the Monday after.
*
* Quantities are pallets, times are hours, money is euros. Mxxdd is the amount
* of product xx made on day dd, Sxxdd the stock in the evening, Lxxdd the
* sales that are lost, and Zxxdd is 1 if the line is set up for the product,
* else 0. OTdd are the hours of overtime. COST is minimized.
NAME          DAIRYWK
ROWS
 N  COST
* Stock of the evening before, and what is made, is sold, lost or stays in stock
 E  BYOMO
 E  BYOTU
 E  BYOWE
 E  BYOTH
 E  BYOFR
 E  BYOSA
 E  BYOSU
 E  BQUMO
 E  BQUTU
 E  BQUWE
 E  BQUTH
 E  BQUFR
 E  BQUSA
 E  BQUSU
 E  BCRMO
 E  BCRTU
 E  BCRWE
 E  BCRTH
 E  BCRFR
 E  BCRSA
 E  BCRSU
 E  BBUMO
 E  BBUTU
 E  BBUWE
 E  BBUTH
 E  BBUFR
 E  BBUSA
 E  BBUSU
* Hours of the line
 L  LINEMO
 L  LINETU
 L  LINEWE
 L  LINETH
 L  LINEFR
 L  LINESA
 L  LINESU
* Milk of the day
 L  MILKMO
 L  MILKTU
 L  MILKWE
 L  MILKTH
 L  MILKFR
 L  MILKSA
 L  MILKSU
* Room in the cold store
 L  ROOMMO
 L  ROOMTU
 L  ROOMWE
 L  ROOMTH
 L  ROOMFR
 L  ROOMSA
 L  ROOMSU
* A product is made only when the line is set up for it
 L  AYOMO
 L  AYOTU
 L  AYOWE
 L  AYOTH
 L  AYOFR
 L  AYOSA
 L  AYOSU
 L  AQUMO
 L  AQUTU
 L  AQUWE
 L  AQUTH
 L  AQUFR
 L  AQUSA
 L  AQUSU
 L  ACRMO
 L  ACRTU
 L  ACRWE
 L  ACRTH
 L  ACRFR
 L  ACRSA
 L  ACRSU
 L  ABUMO
 L  ABUTU
 L  ABUWE
 L  ABUTH
 L  ABUFR
 L  ABUSA
 L  ABUSU
COLUMNS
* Made: yoghurt
    MYOMO     COST                88   BYOMO                1
    MYOMO     LINEMO             0.3   MILKMO             0.9
    MYOMO     AYOMO                1
    MYOTU     COST                88   BYOTU                1
    MYOTU     LINETU             0.3   MILKTU             0.9
    MYOTU     AYOTU                1
    MYOWE     COST                88   BYOWE                1
    MYOWE     LINEWE             0.3   MILKWE             0.9
    MYOWE     AYOWE                1
    MYOTH     COST                88   BYOTH                1
    MYOTH     LINETH             0.3   MILKTH             0.9
    MYOTH     AYOTH                1
    MYOFR     COST                88   BYOFR                1
    MYOFR     LINEFR             0.3   MILKFR             0.9
    MYOFR     AYOFR                1
    MYOSA     COST                88   BYOSA                1
    MYOSA     LINESA             0.3   MILKSA             0.9
    MYOSA     AYOSA                1
    MYOSU     COST                88   BYOSU                1
    MYOSU     LINESU             0.3   MILKSU             0.9
    MYOSU     AYOSU                1
* Made: quark
    MQUMO     COST               112   BQUMO                1
    MQUMO     LINEMO            0.42   MILKMO             2.6
    MQUMO     AQUMO                1
    MQUTU     COST               112   BQUTU                1
    MQUTU     LINETU            0.42   MILKTU             2.6
    MQUTU     AQUTU                1
    MQUWE     COST               112   BQUWE                1
    MQUWE     LINEWE            0.42   MILKWE             2.6
    MQUWE     AQUWE                1
    MQUTH     COST               112   BQUTH                1
    MQUTH     LINETH            0.42   MILKTH             2.6
    MQUTH     AQUTH                1
    MQUFR     COST               112   BQUFR                1
    MQUFR     LINEFR            0.42   MILKFR             2.6
    MQUFR     AQUFR                1
    MQUSA     COST               112   BQUSA                1
    MQUSA     LINESA            0.42   MILKSA             2.6
    MQUSA     AQUSA                1
    MQUSU     COST               112   BQUSU                1
    MQUSU     LINESU            0.42   MILKSU             2.6
    MQUSU     AQUSU                1
* Made: cream
    MCRMO     COST               134   BCRMO                1
    MCRMO     LINEMO            0.25   MILKMO             3.1
    MCRMO     ACRMO                1
    MCRTU     COST               134   BCRTU                1
    MCRTU     LINETU            0.25   MILKTU             3.1
    MCRTU     ACRTU                1
    MCRWE     COST               134   BCRWE                1
    MCRWE     LINEWE            0.25   MILKWE             3.1
    MCRWE     ACRWE                1
    MCRTH     COST               134   BCRTH                1
    MCRTH     LINETH            0.25   MILKTH             3.1
    MCRTH     ACRTH                1
    MCRFR     COST               134   BCRFR                1
    MCRFR     LINEFR            0.25   MILKFR             3.1
    MCRFR     ACRFR                1
    MCRSA     COST               134   BCRSA                1
    MCRSA     LINESA            0.25   MILKSA             3.1
    MCRSA     ACRSA                1
    MCRSU     COST               134   BCRSU                1
    MCRSU     LINESU            0.25   MILKSU             3.1
    MCRSU     ACRSU                1
* Made: butter
    MBUMO     COST               171   BBUMO                1
    MBUMO     LINEMO            0.38   MILKMO             4.8
    MBUMO     ABUMO                1
    MBUTU     COST               171   BBUTU                1
    MBUTU     LINETU            0.38   MILKTU             4.8
    MBUTU     ABUTU                1
    MBUWE     COST               171   BBUWE                1
    MBUWE     LINEWE            0.38   MILKWE             4.8
    MBUWE     ABUWE                1
    MBUTH     COST               171   BBUTH                1
    MBUTH     LINETH            0.38   MILKTH             4.8
    MBUTH     ABUTH                1
    MBUFR     COST               171   BBUFR                1
    MBUFR     LINEFR            0.38   MILKFR             4.8
    MBUFR     ABUFR                1
    MBUSA     COST               171   BBUSA                1
    MBUSA     LINESA            0.38   MILKSA             4.8
    MBUSA     ABUSA                1
    MBUSU     COST               171   BBUSU                1
    MBUSU     LINESU            0.38   MILKSU             4.8
    MBUSU     ABUSU                1
* Stock in the evening: yoghurt
    SYOMO     COST                 6   BYOMO               -1
    SYOMO     ROOMMO               1   BYOTU                1
    SYOTU     COST                 6   BYOTU               -1
    SYOTU     ROOMTU               1   BYOWE                1
    SYOWE     COST                 6   BYOWE               -1
    SYOWE     ROOMWE               1   BYOTH                1
    SYOTH     COST                 6   BYOTH               -1
    SYOTH     ROOMTH               1   BYOFR                1
    SYOFR     COST                 6   BYOFR               -1
    SYOFR     ROOMFR               1   BYOSA                1
    SYOSA     COST                 6   BYOSA               -1
    SYOSA     ROOMSA               1   BYOSU                1
    SYOSU     COST                 6   BYOSU               -1
    SYOSU     ROOMSU               1
* Stock in the evening: quark
    SQUMO     COST                 7   BQUMO               -1
    SQUMO     ROOMMO               1   BQUTU                1
    SQUTU     COST                 7   BQUTU               -1
    SQUTU     ROOMTU               1   BQUWE                1
    SQUWE     COST                 7   BQUWE               -1
    SQUWE     ROOMWE               1   BQUTH                1
    SQUTH     COST                 7   BQUTH               -1
    SQUTH     ROOMTH               1   BQUFR                1
    SQUFR     COST                 7   BQUFR               -1
    SQUFR     ROOMFR               1   BQUSA                1
    SQUSA     COST                 7   BQUSA               -1
    SQUSA     ROOMSA               1   BQUSU                1
    SQUSU     COST                 7   BQUSU               -1
    SQUSU     ROOMSU               1
* Stock in the evening: cream
    SCRMO     COST                 9   BCRMO               -1
    SCRMO     ROOMMO               1   BCRTU                1
    SCRTU     COST                 9   BCRTU               -1
    SCRTU     ROOMTU               1   BCRWE                1
    SCRWE     COST                 9   BCRWE               -1
    SCRWE     ROOMWE               1   BCRTH                1
    SCRTH     COST                 9   BCRTH               -1
    SCRTH     ROOMTH               1   BCRFR                1
    SCRFR     COST                 9   BCRFR               -1
    SCRFR     ROOMFR               1   BCRSA                1
    SCRSA     COST                 9   BCRSA               -1
    SCRSA     ROOMSA               1   BCRSU                1
    SCRSU     COST                 9   BCRSU               -1
    SCRSU     ROOMSU               1
* Stock in the evening: butter
    SBUMO     COST                 4   BBUMO               -1
    SBUMO     ROOMMO               1   BBUTU                1
    SBUTU     COST                 4   BBUTU               -1
    SBUTU     ROOMTU               1   BBUWE                1
    SBUWE     COST                 4   BBUWE               -1
    SBUWE     ROOMWE               1   BBUTH                1
    SBUTH     COST                 4   BBUTH               -1
    SBUTH     ROOMTH               1   BBUFR                1
    SBUFR     COST                 4   BBUFR               -1
    SBUFR     ROOMFR               1   BBUSA                1
    SBUSA     COST                 4   BBUSA               -1
    SBUSA     ROOMSA               1   BBUSU                1
    SBUSU     COST                 4   BBUSU               -1
    SBUSU     ROOMSU               1
* Lost sales: yoghurt
    LYOMO     COST               260   BYOMO                1
    LYOTU     COST               260   BYOTU                1
    LYOWE     COST               260   BYOWE                1
    LYOTH     COST               260   BYOTH                1
    LYOFR     COST               260   BYOFR                1
    LYOSA     COST               260   BYOSA                1
    LYOSU     COST               260   BYOSU                1
* Lost sales: quark
    LQUMO     COST               310   BQUMO                1
    LQUTU     COST               310   BQUTU                1
    LQUWE     COST               310   BQUWE                1
    LQUTH     COST               310   BQUTH                1
    LQUFR     COST               310   BQUFR                1
    LQUSA     COST               310   BQUSA                1
    LQUSU     COST               310   BQUSU                1
* Lost sales: cream
    LCRMO     COST               340   BCRMO                1
    LCRTU     COST               340   BCRTU                1
    LCRWE     COST               340   BCRWE                1
    LCRTH     COST               340   BCRTH                1
    LCRFR     COST               340   BCRFR                1
    LCRSA     COST               340   BCRSA                1
    LCRSU     COST               340   BCRSU                1
* Lost sales: butter
    LBUMO     COST               390   BBUMO                1
    LBUTU     COST               390   BBUTU                1
    LBUWE     COST               390   BBUWE                1
    LBUTH     COST               390   BBUTH                1
    LBUFR     COST               390   BBUFR                1
    LBUSA     COST               390   BBUSA                1
    LBUSU     COST               390   BBUSU                1
* Overtime
    OTMO      COST                72   LINEMO              -1
    OTTU      COST                72   LINETU              -1
    OTWE      COST                72   LINEWE              -1
    OTTH      COST                72   LINETH              -1
    OTFR      COST                72   LINEFR              -1
    OTSA      COST                96   LINESA              -1
    OTSU      COST               140   LINESU              -1
    MARK0001  'MARKER'                 'INTORG'
* Set up for yoghurt
    ZYOMO     COST                95   LINEMO             0.8
    ZYOMO     AYOMO              -40
    ZYOTU     COST                95   LINETU             0.8
    ZYOTU     AYOTU              -40
    ZYOWE     COST                95   LINEWE             0.8
    ZYOWE     AYOWE              -40
    ZYOTH     COST                95   LINETH             0.8
    ZYOTH     AYOTH              -40
    ZYOFR     COST                95   LINEFR             0.8
    ZYOFR     AYOFR              -40
    ZYOSA     COST             142.5   LINESA             0.8
    ZYOSA     AYOSA              -40
    ZYOSU     COST             142.5   LINESU             0.8
    ZYOSU     AYOSU              -40
* Set up for quark
    ZQUMO     COST               130   LINEMO             1.1
    ZQUMO     AQUMO              -26
    ZQUTU     COST               130   LINETU             1.1
    ZQUTU     AQUTU              -26
    ZQUWE     COST               130   LINEWE             1.1
    ZQUWE     AQUWE              -26
    ZQUTH     COST               130   LINETH             1.1
    ZQUTH     AQUTH              -26
    ZQUFR     COST               130   LINEFR             1.1
    ZQUFR     AQUFR              -26
    ZQUSA     COST               195   LINESA             1.1
    ZQUSA     AQUSA              -26
    ZQUSU     COST               195   LINESU             1.1
    ZQUSU     AQUSU              -26
* Set up for cream
    ZCRMO     COST                80   LINEMO             0.6
    ZCRMO     ACRMO              -28
    ZCRTU     COST                80   LINETU             0.6
    ZCRTU     ACRTU              -28
    ZCRWE     COST                80   LINEWE             0.6
    ZCRWE     ACRWE              -28
    ZCRTH     COST                80   LINETH             0.6
    ZCRTH     ACRTH              -28
    ZCRFR     COST                80   LINEFR             0.6
    ZCRFR     ACRFR              -28
    ZCRSA     COST               120   LINESA             0.6
    ZCRSA     ACRSA              -28
    ZCRSU     COST               120   LINESU             0.6
    ZCRSU     ACRSU              -28
* Set up for butter
    ZBUMO     COST               150   LINEMO             1.3
    ZBUMO     ABUMO              -18
    ZBUTU     COST               150   LINETU             1.3
    ZBUTU     ABUTU              -18
    ZBUWE     COST               150   LINEWE             1.3
    ZBUWE     ABUWE              -18
    ZBUTH     COST               150   LINETH             1.3
    ZBUTH     ABUTH              -18
    ZBUFR     COST               150   LINEFR             1.3
    ZBUFR     ABUFR              -18
    ZBUSA     COST               225   LINESA             1.3
    ZBUSA     ABUSA              -18
    ZBUSU     COST               225   LINESU             1.3
    ZBUSU     ABUSU              -18
    MARK0002  'MARKER'                 'INTEND'
RHS
    RHS       BYOMO                5   BYOTU               11
    RHS       BYOWE               12   BYOTH               15
    RHS       BYOFR               21   BYOSA               24
    RHS       BYOSU                4   BQUMO                2
    RHS       BQUTU                5   BQUWE                7
    RHS       BQUTH                6   BQUFR                9
    RHS       BQUSA               11   BQUSU                2
    RHS       BCRMO                1   BCRTU                4
    RHS       BCRWE                5   BCRTH                6
    RHS       BCRFR               10   BCRSA                9
    RHS       BCRSU                3   BBUMO               -1
    RHS       BBUTU                6   BBUWE                6
    RHS       BBUTH                8   BBUFR               11
    RHS       BBUSA               13   BBUSU                2
    RHS       LINEMO              12   LINETU              12
    RHS       LINEWE              12   LINETH              12
    RHS       LINEFR              12   LINESA               7
    RHS       MILKMO              99   MILKTU              99
    RHS       MILKWE              99   MILKTH              99
    RHS       MILKFR              99   MILKSA              66
    RHS       ROOMMO              40   ROOMTU              40
    RHS       ROOMWE              40   ROOMTH              40
    RHS       ROOMFR              40   ROOMSA              40
    RHS       ROOMSU              40
BOUNDS
* Stock that Monday needs
 LO LIMIT     SYOSU               10
 LO LIMIT     SQUSU                5
 LO LIMIT     SCRSU                3
 LO LIMIT     SBUSU                6
* No more is lost than is asked for
 UP LIMIT     LYOMO               14
 UP LIMIT     LYOTU               11
 UP LIMIT     LYOWE               12
 UP LIMIT     LYOTH               15
 UP LIMIT     LYOFR               21
 UP LIMIT     LYOSA               24
 UP LIMIT     LYOSU                4
 UP LIMIT     LQUMO                6
 UP LIMIT     LQUTU                5
 UP LIMIT     LQUWE                7
 UP LIMIT     LQUTH                6
 UP LIMIT     LQUFR                9
 UP LIMIT     LQUSA               11
 UP LIMIT     LQUSU                2
 UP LIMIT     LCRMO                4
 UP LIMIT     LCRTU                4
 UP LIMIT     LCRWE                5
 UP LIMIT     LCRTH                6
 UP LIMIT     LCRFR               10
 UP LIMIT     LCRSA                9
 UP LIMIT     LCRSU                3
 UP LIMIT     LBUMO                7
 UP LIMIT     LBUTU                6
 UP LIMIT     LBUWE                6
 UP LIMIT     LBUTH                8
 UP LIMIT     LBUFR               11
 UP LIMIT     LBUSA               13
 UP LIMIT     LBUSU                2
* Overtime is limited
 UP LIMIT     OTMO                 4
 UP LIMIT     OTTU                 4
 UP LIMIT     OTWE                 4
 UP LIMIT     OTTH                 4
 UP LIMIT     OTFR                 4
 UP LIMIT     OTSA                 4
 UP LIMIT     OTSU                 4
* The line is set up for a product or it is not
 BV LIMIT     ZYOMO
 BV LIMIT     ZYOTU
 BV LIMIT     ZYOWE
 BV LIMIT     ZYOTH
 BV LIMIT     ZYOFR
 BV LIMIT     ZYOSA
 BV LIMIT     ZYOSU
 BV LIMIT     ZQUMO
 BV LIMIT     ZQUTU
 BV LIMIT     ZQUWE
 BV LIMIT     ZQUTH
 BV LIMIT     ZQUFR
 BV LIMIT     ZQUSA
 BV LIMIT     ZQUSU
 BV LIMIT     ZCRMO
 BV LIMIT     ZCRTU
 BV LIMIT     ZCRWE
 BV LIMIT     ZCRTH
 BV LIMIT     ZCRFR
 BV LIMIT     ZCRSA
 BV LIMIT     ZCRSU
 BV LIMIT     ZBUMO
 BV LIMIT     ZBUTU
 BV LIMIT     ZBUWE
 BV LIMIT     ZBUTH
 BV LIMIT     ZBUFR
 BV LIMIT     ZBUSA
 BV LIMIT     ZBUSU
ENDATA
