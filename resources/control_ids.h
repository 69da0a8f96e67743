// Numbers of the controls that carry a name, shared by the forms, the dialog resources and the
// tests. Control arrays have their first number here; element i has that number plus i.
#pragma once

// The frame of every widget
#define lablTBARTOP 1000  // title-bar text buttons: 0 menu, 1 minimise, 2 close

// frmVRNwg, the manager
#define lblNUMBER 1020  // 0 to 7, one tile a widget; the calculator's digit keys 0 to 9

// frmVRNpr, the start-up options
#define chkSTARTUP 1060
#define chkMINSTART 1061
#define chkONTOP 1062
#define chkREADABLE 1063

// frmCLKwg, the clock
#define lblPANECLOCK 1100
#define lblSECS 1101
#define lblSTYLE 1102
#define lbl7Sept2010 1103

// frmCLKpr, the clock's properties
#define optSTYLEMOD 1120
#define optSTYLECLASS 1121
#define optDATESYS 1122
#define optDATECUST 1123
#define txtCUSTOM 1124
#define chkSECS 1125
#define chkAMPM 1126
#define chk24HR 1127
#define optAUDIO 1128
#define optAUDIOFILE 1129
#define txtAUDIO 1130
#define cmdBrowsefrmCLKpr 1131
#define cmdTest 1132
#define cmdOKfrmCLKpr 1      // the system's number of a dialog's OK button
#define cmdCancelfrmCLKpr 2  // and of its Cancel button

// frmSTWwg, the stopwatch
#define lblELAPSED 1200
#define lblStartfrmSTWwg 1201
#define lblStopfrmSTWwg 1202

// frmCDNwg, the countdown
#define txtHRS 1220  // the display: hours, minutes, seconds
#define txtMIN 1221
#define txtSECS 1222
#define lblSEP1 1223
#define lblSEP2 1224
#define txtSUBHRS 1225  // the interval that is counted down from
#define txtSUBMIN 1226
#define txtSUBSECS 1227
#define lblStart 1228
#define lblStop 1229
#define lblINTERVAL 1230  // "Set" before the interval's fields; then their three units

// frmCLKas, the alarm settings
#define chkSET 1300      // 0 to 5
#define cboTIME 1310     // 0 to 5
#define txtMESSAGE 1320  // 0 to 5
#define cmdAlarmPreview 1330
#define lblALARMHINT 1331  // what is wrong with a time
#define cmdOKfrmCLKas 1
#define cmdCancelfrmCLKas 2

// frmCLKam, the alarm popup
#define lablMESSAGE 1340
#define lablALARMC 1341
#define lblTitle 1342
#define imgBUTCLOSE 1343
#define txtEARLIER 1344  // the alarms before, while they are unread

// frmTHEME, the theme dialog
#define tabMAIN 1400
#define picPREVIEW 1401
#define lblREADBAR 1402  // the contrast of the bar's text, and the mark that it is too low
#define icoREADBAR 1403
#define lblREADPANEL 1404  // the same for the panel's
#define icoREADPANEL 1405
#define lblREADHINT 1406
#define flbLIST 1407  // hidden: the files of the presets that lvwTHEMES shows
#define btnAPPLY 1408
#define cmdOKfrmTHEME 1  // closes when nothing is left to apply
#define btnCLOSEDLG 2    // closes and drops what was not applied
// its page "Main Theme", 1410 to 1439
#define lstFOLDERS 1410
#define lvwTHEMES 1411
#define txtPRESETNEW 1412
#define btnNEW 1413
#define btnDELETE 1414
#define btnDELETEALL 1415
#define lblCOLORMAIN 1416
#define btnCOLORMAIN 1417
#define hsbOPACITY 1418
#define lblVALUE 1419  // the opacity's
#define hsbCONTRAST 1420
#define lblCONTRAST 1421
#define labMAIN 1430  // 0 to 5, captions
// its page "Top Bar / Bottom Bar", 1440 to 1459
#define cboBAR 1440
#define lblCOLORBAR 1441
#define btnCOLORBAR 1442
#define hsbBARANGLE 1443
#define lblANGLE 1444
#define labBAR 1450  // 0 to 2
// its page "Large Panel", 1460 to 1479
#define cboPANEL 1460
#define lblCOLORPANEL 1461
#define btnCOLORPANEL 1462
#define labPANEL 1470  // 0 and 1

// frmCLCwg, the calculator; its digit keys are lblNUMBER
#define lbl01234567890 1600
#define lblDISPLAYFUNC 1601
#define lblSUB 1602
#define lvwFILES 1603
#define lblPOINT 1610  // this and the next in the order of the keys
#define lblPLUSMINUS 1611
#define lblADD 1612
#define lblSUBTRACT 1613
#define lblMULTIPLY 1614
#define lblDIVIDE 1615
#define lblEQUALS 1616
#define lblCLEAR 1617
#define lblCLEARENTRY 1618
#define lblDELETE 1619

// frmWTHwg, the weather
#define lblWeatherCountry 1500
#define lblWeathersymbol 1501
#define lblTEMPERATURE 1502
#define lblDESC 1503
#define lblFOREDATE 1504     // 0 to 2, one a day
#define lblFOREICON 1507     // 0 to 2
#define lblFORETEMP 1510     // 0 to 2
#define lblATTRIBUTION 1513  // whom the data comes from; opens that web page
#define lblUPDATED 1514      // the age of the data, and what goes wrong

// frmWTHpr, the weather's properties
#define lntNOTE1 1520      // the caption around the place
#define optLOCATIONS 1521  // 0 international, 1 United States
#define lblCountry 1523
#define cboCOUNTRY 1524
#define lblCITY 1525
#define cboCOUNTRYAREA 1526
#define btnSEARCH 1527
#define lblPICK 1528       // the place that is chosen
#define pfrTEMPS 1529      // the panel around the scale
#define lntNOTE2 pfrTEMPS  // its caption
#define optTEMP 1530       // 0 Celsius, 1 Fahrenheit
#define cmdOKfrmWTHpr 1
#define cmdCancelfrmWTHpr 2

// The dialogs for the folders of documents
#define txtLOCATION 1650
#define cmdBrowse 1651

// frmWBDwg, the whiteboard; its list is lvwFILES
#define picMAINBOARD 1700
#define lblWhiteboard 1701
#define lblTestfrmWBDwg 1702  // the pen, beside the board
#define cmdPEN 1710           // 0 to 7, one a pen; the last is the eraser
#define cmdPENS 1718          // all pens, where there is no room for each
#define cmdBOARDTOOL 1720     // 0 to 6: pen width, text, picture, undo, redo, new, list

// frmWBDit, the whiteboard's text
#define txtINSE 1740
#define cboSIZE 1741
#define cmdOKfrmWBDit 1
#define cmdCancelfrmWBDit 2

// frmWBDpr, the whiteboard's folder
#define lblQUESTION 1745
#define cmdOKfrmWBDpr 1
#define cmdCancelfrmWBDpr 2

// frmCALwg, the calendar; its board and pens are the whiteboard's
#define lblSeptember2015 1750  // the month's title: on the panel, and on the title bar
#define lblMONTHBAR 1751
#define lablDAYNO 1752  // today's number, the name of its day, and what says that it is today
#define lablDAY 1753
#define lblDATETODAY 1754
#define lblSCREEN 1755   // on the bottom strip: what there is to say,
#define lblMOUSE 1756    // the day under the pointer,
#define lblTest 1757     // and the pen
#define cmdCALTOOL 1760  // 0 to 7: previous, next, today, pen width, text, icon, undo, redo

// frmCALit, the calendar's text; its size is cboSIZE
#define txtINSERTBOX 1770
#define chkWRAP 1771
#define cmdOKfrmCALit 1
#define cmdCancelfrmCALit 2

// frmCALip, the icon picker; its tabs are tabMAIN
#define lvwICONS 1775
#define cmdOKfrmCALip 1
#define cmdCancelfrmCALip 2

// frmCALpr, the calendar's folder; its list of months is flbLIST
#define lblSelectedFolder 1780
#define cmdOKfrmCALpr 1
#define cmdCancelfrmCALpr 2

// frmNOTwg, the notes; its list is lvwFILES
#define rtbPAGEBOX 1800
#define lblNotes 1801
#define lblCHARS 1802
#define lblLINESTAT 1803
#define txtSEARCHNOTES 1804  // narrows the list
#define lblZOOM 1805         // the zoom, or what there is to say of the last step
// The tools: 0 new, 1 save, 2 find, 3 fonts, 4 paragraph, 5 picture, 6 text, 7 spelling, 8 list
#define lablTOOLSINS 1810
// its panel that finds and replaces, pfrFIND
#define cboFINDWHAT 1900
#define cboREPLACEWITH 1901
#define chkMATCHCASE 1902
#define chkWHOLEWORDS 1903
#define btnFINDNEXT 1904
#define btnFINDPREVIOUS 1905
#define btnREPLACE 1906
#define btnREPLACEALL 1907
// its panel that checks the spelling, pfrSPELL
#define lstSUGGESTIONS 1910
#define txtSUGG 1911
#define btnCHANGE 1912
#define btnCHANGEALL 1913
#define btnIGNORE 1914
#define btnIGNORENOTE 1915
#define btnINCLUDE 1916
#define btnSPELLRCHK 1917
#define optDICTUSA 1918
#define optDICTUK 1919
#define chkCUSTNOS 1920
#define chkCUSTUPCASE 1921
#define chkCUSTCHARS 1922
#define lstOWNWORDS 1923
#define btnOWNWORDS 1924
#define btnREMOVEWORD 1925
// its panel of fonts, pfrFONTS
#define lstFONTNAMEFONTS 1830
#define lstFONTSIZE 1831
#define chkBOLD 1832
#define chkITALIC 1833
#define chkUNDERLINE 1834
#define picCOLOR 1835
#define optSCRIPT 1836     // 0 to 2: raised, normal, lowered
#define btnREMSTYLES 1839  // clears the formats of what is selected
#define btnSTYLEREMV 1840  // and of the whole note
#define btnSTYLE 1841      // 0 to 6
// its panel of paragraphs, pfrPGRAPH
#define optALIGN 1850  // 0 to 3: left, right, centre, justified
#define btnINDINC 1854
#define btnINDDEC 1855
#define chkBULLETS 1856
#define cboRULES 1857
#define cboLINCUST 1858
#define cboPARBEFORE 1859
#define cboPARAFTER 1860
#define labPGRAPH 1861  // 0 to 2: captions of the last three
// its panels that put in a document, pfrTEXT, and a picture, pfrPICTURE
#define drvFOLDERS 1870
#define dirFOLDERS 1871
#define rtbPREV 1873
#define btnTXTINS 1874
#define drvPICTURES 1880
#define dirPICTURES 1881
#define flbLISTPICS 1882
#define imgPREVIEW 1883
#define btnINSPICTURE 1884

// frmNOTpr, the notes' properties; its folder is txtLOCATION
#define cboFONTNAMETEXT 1890
#define cboFONTSIZETEXT 1891
#define picCOLORBAR 1892
#define cmdEdit 1893
#define optDOCTYPE 1894         // 0 rich text, 1 plain text
#define cmdBrowsefrmNOTpr 1651  // that of every folder dialog
#define cmdOKfrmNOTpr 1
#define cmdCancelfrmNOTpr 2

// frmNOTvr, frmWBDvr, frmCALvr, the earlier versions of a note, a board, a month
#define lstVERSIONS 1897
#define txtVERSION 1898
#define imgVERSION 1899
#define cmdRESTORE 1

// frmNOTpp, the print preview
#define cmdPRINT 2000
#define cmdFIRSTPAGE 2001
#define cmdPREVIOUSPAGE 2002
#define cmdNEXTPAGE 2003
#define cmdLASTPAGE 2004
#define txtPAGE 2005
#define lblPAGES 2006
#define cmdZOOMOUT 2007
#define cboZOOM 2008
#define cmdZOOMIN 2009
#define optSHEETS 2010  // 0 to 2: one, two or four side by side
#define chkTHUMBS 2013
#define chkSETUP 2014
#define picSHEETS 2015
#define picTHUMBS 2016
#define lblSTATUS 2017
#define prgPRINT 2018
#define cmdSTOPPRINT 2019
#define tabSETUP 2020
// its setup's page of paper
#define labSETUP 2021  // 0 to 7: captions
#define cboPAPER 2029
#define txtPAPERSIZE 2030  // 0 width, 1 height
#define optLANDSCAPE 2032  // 0 portrait, 1 landscape
#define txtMARGIN 2034     // 0 to 3: left, top, right, bottom
#define chkCOLOUR 2038
#define optFITTED 2039  // 0 fitted to the column, 1 in actual size
// and its page of texts
#define labTEXTS 2041  // 0 and 1: captions
#define txtTEXTS 2043  // 0 to 2 of the header, 3 to 5 of the footer
#define cmdFIELD 2049
#define chkSECONDPAGE 2050
