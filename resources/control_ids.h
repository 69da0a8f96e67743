// Numbers of the controls that carry a name, shared by the forms, the dialog resources and the
// tests. The build makes definitions of them for the resource compiler, which knows no enumeration.
// Control arrays have their first number here; element i has that number plus i.
#pragma once

namespace varnel {

enum ControlId : int {
  // The frame of every widget
  lablTBARTOP = 1000,  // title-bar text buttons: 0 menu, 1 minimise, 2 close

  // frmVRNwg, the manager
  lblNUMBER = 1020,  // 0 to 7, one tile a widget; the calculator's digit keys 0 to 9

  // frmVRNpr, the start-up options
  chkSTARTUP = 1060,
  chkMINSTART = 1061,
  chkONTOP = 1062,
  chkREADABLE = 1063,

  // frmCLKwg, the clock
  lblPANECLOCK = 1100,
  lblSECS = 1101,
  lblSTYLE = 1102,
  lbl7Sept2010 = 1103,

  // frmCLKpr, the clock's properties
  optSTYLEMOD = 1120,
  optSTYLECLASS = 1121,
  optDATESYS = 1122,
  optDATECUST = 1123,
  txtCUSTOM = 1124,
  chkSECS = 1125,
  chkAMPM = 1126,
  chk24HR = 1127,
  optAUDIO = 1128,
  optAUDIOFILE = 1129,
  txtAUDIO = 1130,
  cmdBrowsefrmCLKpr = 1131,
  cmdTest = 1132,
  cmdOKfrmCLKpr = 1,      // the system's number of a dialog's OK button
  cmdCancelfrmCLKpr = 2,  // and of its Cancel button

  // frmSTWwg, the stopwatch
  lblELAPSED = 1200,
  lblStartfrmSTWwg = 1201,
  lblStopfrmSTWwg = 1202,

  // frmCDNwg, the countdown
  txtHRS = 1220,  // the display: hours, minutes, seconds
  txtMIN = 1221,
  txtSECS = 1222,
  lblSEP1 = 1223,
  lblSEP2 = 1224,
  txtSUBHRS = 1225,  // the interval that is counted down from
  txtSUBMIN = 1226,
  txtSUBSECS = 1227,
  lblStart = 1228,
  lblStop = 1229,
  lblINTERVAL = 1230,  // "Set" before the interval's fields; then their three units

  // frmCLKas, the alarm settings
  chkSET = 1300,      // 0 to 5
  cboTIME = 1310,     // 0 to 5
  txtMESSAGE = 1320,  // 0 to 5
  cmdAlarmPreview = 1330,
  lblALARMHINT = 1331,  // what is wrong with a time
  cmdOKfrmCLKas = 1,
  cmdCancelfrmCLKas = 2,

  // frmCLKam, the alarm popup
  lablMESSAGE = 1340,
  lablALARMC = 1341,
  lblTitle = 1342,
  imgBUTCLOSE = 1343,
  txtEARLIER = 1344,  // the alarms before, while they are unread

  // frmTHEME, the theme dialog
  tabMAIN = 1400,
  picPREVIEW = 1401,
  lblREADBAR = 1402,  // the contrast of the bar's text, and the mark that it is too low
  icoREADBAR = 1403,
  lblREADPANEL = 1404,  // the same for the panel's
  icoREADPANEL = 1405,
  lblREADHINT = 1406,
  flbLIST = 1407,  // hidden: the files of the presets that lvwTHEMES shows
  btnAPPLY = 1408,
  cmdOKfrmTHEME = 1,  // closes when nothing is left to apply
  btnCLOSEDLG = 2,    // closes and drops what was not applied
  // its page "Main Theme", 1410 to 1439
  lstFOLDERS = 1410,
  lvwTHEMES = 1411,
  txtPRESETNEW = 1412,
  btnNEW = 1413,
  btnDELETE = 1414,
  btnDELETEALL = 1415,
  lblCOLORMAIN = 1416,
  btnCOLORMAIN = 1417,
  hsbOPACITY = 1418,
  lblVALUE = 1419,  // the opacity's
  hsbCONTRAST = 1420,
  lblCONTRAST = 1421,
  labMAIN = 1430,  // 0 to 5, captions
  // its page "Top Bar / Bottom Bar", 1440 to 1459
  cboBAR = 1440,
  lblCOLORBAR = 1441,
  btnCOLORBAR = 1442,
  hsbBARANGLE = 1443,
  lblANGLE = 1444,
  labBAR = 1450,  // 0 to 2
  // its page "Large Panel", 1460 to 1479
  cboPANEL = 1460,
  lblCOLORPANEL = 1461,
  btnCOLORPANEL = 1462,
  labPANEL = 1470,  // 0 and 1

  // frmCLCwg, the calculator; its digit keys are lblNUMBER
  lbl01234567890 = 1600,
  lblDISPLAYFUNC = 1601,
  lblSUB = 1602,
  lvwFILES = 1603,
  lblPOINT = 1610,  // this and the next in the order of the keys
  lblPLUSMINUS = 1611,
  lblADD = 1612,
  lblSUBTRACT = 1613,
  lblMULTIPLY = 1614,
  lblDIVIDE = 1615,
  lblEQUALS = 1616,
  lblCLEAR = 1617,
  lblCLEARENTRY = 1618,
  lblDELETE = 1619,

  // frmWTHwg, the weather
  lblWeatherCountry = 1500,
  lblWeathersymbol = 1501,
  lblTEMPERATURE = 1502,
  lblDESC = 1503,
  lblFOREDATE = 1504,     // 0 to 2, one a day
  lblFOREICON = 1507,     // 0 to 2
  lblFORETEMP = 1510,     // 0 to 2
  lblATTRIBUTION = 1513,  // whom the data comes from; opens that web page
  lblUPDATED = 1514,      // the age of the data, and what goes wrong

  // frmWTHpr, the weather's properties
  lntNOTE1 = 1520,      // the caption around the place
  optLOCATIONS = 1521,  // 0 international, 1 United States
  lblCountry = 1523,
  cboCOUNTRY = 1524,
  lblCITY = 1525,
  cboCOUNTRYAREA = 1526,
  btnSEARCH = 1527,
  lblPICK = 1528,       // the place that is chosen
  pfrTEMPS = 1529,      // the panel around the scale
  lntNOTE2 = pfrTEMPS,  // its caption
  optTEMP = 1530,       // 0 Celsius, 1 Fahrenheit
  cmdOKfrmWTHpr = 1,
  cmdCancelfrmWTHpr = 2,

  // The dialogs for the folders of documents
  txtLOCATION = 1650,
  cmdBrowse = 1651,

  // frmWBDwg, the whiteboard; its list is lvwFILES
  picMAINBOARD = 1700,
  lblWhiteboard = 1701,
  lblTestfrmWBDwg = 1702,  // the pen, beside the board
  cmdPEN = 1710,           // 0 to 7, one a pen; the last is the eraser
  cmdPENS = 1718,          // all pens, where there is no room for each
  cmdBOARDTOOL = 1720,     // 0 to 6: pen width, text, picture, undo, redo, new, list

  // frmWBDit, the whiteboard's text
  txtINSE = 1740,
  cboSIZE = 1741,
  cmdOKfrmWBDit = 1,
  cmdCancelfrmWBDit = 2,

  // frmWBDpr, the whiteboard's folder
  lblQUESTION = 1745,
  cmdOKfrmWBDpr = 1,
  cmdCancelfrmWBDpr = 2,

  // frmCALwg, the calendar; its board and pens are the whiteboard's
  lblSeptember2015 = 1750,  // the month's title: on the panel, and on the title bar
  lblMONTHBAR = 1751,
  lablDAYNO = 1752,  // today's number, the name of its day, and what says that it is today
  lablDAY = 1753,
  lblDATETODAY = 1754,
  lblSCREEN = 1755,   // on the bottom strip: what there is to say,
  lblMOUSE = 1756,    // the day under the pointer,
  lblTest = 1757,     // and the pen
  cmdCALTOOL = 1760,  // 0 to 7: previous, next, today, pen width, text, icon, undo, redo

  // frmCALit, the calendar's text; its size is cboSIZE
  txtINSERTBOX = 1770,
  chkWRAP = 1771,
  cmdOKfrmCALit = 1,
  cmdCancelfrmCALit = 2,

  // frmCALip, the icon picker; its tabs are tabMAIN
  lvwICONS = 1775,
  cmdOKfrmCALip = 1,
  cmdCancelfrmCALip = 2,

  // frmCALpr, the calendar's folder; its list of months is flbLIST
  lblSelectedFolder = 1780,
  cmdOKfrmCALpr = 1,
  cmdCancelfrmCALpr = 2,

  // frmNOTwg, the notes; its list is lvwFILES
  rtbPAGEBOX = 1800,
  lblNotes = 1801,
  lblCHARS = 1802,
  lblLINESTAT = 1803,
  txtSEARCHNOTES = 1804,  // narrows the list
  lblZOOM = 1805,         // the zoom, or what there is to say of the last step
  // The tools: 0 new, 1 save, 2 find, 3 fonts, 4 paragraph, 5 picture, 6 text, 7 spelling, 8 list
  lablTOOLSINS = 1810,
  // its panel that finds and replaces, pfrFIND
  cboFINDWHAT = 1900,
  cboREPLACEWITH = 1901,
  chkMATCHCASE = 1902,
  chkWHOLEWORDS = 1903,
  btnFINDNEXT = 1904,
  btnFINDPREVIOUS = 1905,
  btnREPLACE = 1906,
  btnREPLACEALL = 1907,
  // its panel that checks the spelling, pfrSPELL
  lstSUGGESTIONS = 1910,
  txtSUGG = 1911,
  btnCHANGE = 1912,
  btnCHANGEALL = 1913,
  btnIGNORE = 1914,
  btnIGNORENOTE = 1915,
  btnINCLUDE = 1916,
  btnSPELLRCHK = 1917,
  optDICTUSA = 1918,
  optDICTUK = 1919,
  chkCUSTNOS = 1920,
  chkCUSTUPCASE = 1921,
  chkCUSTCHARS = 1922,
  lstOWNWORDS = 1923,
  btnOWNWORDS = 1924,
  btnREMOVEWORD = 1925,
  // its panel of fonts, pfrFONTS
  lstFONTNAMEFONTS = 1830,
  lstFONTSIZE = 1831,
  chkBOLD = 1832,
  chkITALIC = 1833,
  chkUNDERLINE = 1834,
  picCOLOR = 1835,
  optSCRIPT = 1836,     // 0 to 2: raised, normal, lowered
  btnREMSTYLES = 1839,  // clears the formats of what is selected
  btnSTYLEREMV = 1840,  // and of the whole note
  btnSTYLE = 1841,      // 0 to 6
  // its panel of paragraphs, pfrPGRAPH
  optALIGN = 1850,  // 0 to 3: left, right, centre, justified
  btnINDINC = 1854,
  btnINDDEC = 1855,
  chkBULLETS = 1856,
  cboRULES = 1857,
  cboLINCUST = 1858,
  cboPARBEFORE = 1859,
  cboPARAFTER = 1860,
  labPGRAPH = 1861,  // 0 to 2: captions of the last three
  // its panels that put in a document, pfrTEXT, and a picture, pfrPICTURE
  drvFOLDERS = 1870,
  dirFOLDERS = 1871,
  rtbPREV = 1873,
  btnTXTINS = 1874,
  drvPICTURES = 1880,
  dirPICTURES = 1881,
  flbLISTPICS = 1882,
  imgPREVIEW = 1883,
  btnINSPICTURE = 1884,

  // frmNOTpr, the notes' properties; its folder is txtLOCATION
  cboFONTNAMETEXT = 1890,
  cboFONTSIZETEXT = 1891,
  picCOLORBAR = 1892,
  cmdEdit = 1893,
  optDOCTYPE = 1894,         // 0 rich text, 1 plain text
  cmdBrowsefrmNOTpr = 1651,  // that of every folder dialog
  cmdOKfrmNOTpr = 1,
  cmdCancelfrmNOTpr = 2,

  // frmNOTvr, frmWBDvr, frmCALvr, the earlier versions of a note, a board, a month
  lstVERSIONS = 1897,
  txtVERSION = 1898,
  imgVERSION = 1899,
  cmdRESTORE = 1,

  // frmNOTpp, the print preview
  cmdPRINT = 2000,
  cmdFIRSTPAGE = 2001,
  cmdPREVIOUSPAGE = 2002,
  cmdNEXTPAGE = 2003,
  cmdLASTPAGE = 2004,
  txtPAGE = 2005,
  lblPAGES = 2006,
  cmdZOOMOUT = 2007,
  cboZOOM = 2008,
  cmdZOOMIN = 2009,
  optSHEETS = 2010,  // 0 to 2: one, two or four side by side
  chkTHUMBS = 2013,
  chkSETUP = 2014,
  picSHEETS = 2015,
  picTHUMBS = 2016,
  lblSTATUS = 2017,
  prgPRINT = 2018,
  cmdSTOPPRINT = 2019,
  tabSETUP = 2020,
  // its setup's page of paper
  labSETUP = 2021,  // 0 to 7: captions
  cboPAPER = 2029,
  txtPAPERSIZE = 2030,  // 0 width, 1 height
  optLANDSCAPE = 2032,  // 0 portrait, 1 landscape
  txtMARGIN = 2034,     // 0 to 3: left, top, right, bottom
  chkCOLOUR = 2038,
  optFITTED = 2039,  // 0 fitted to the column, 1 in actual size
  // and its page of texts
  labTEXTS = 2041,  // 0 and 1: captions
  txtTEXTS = 2043,  // 0 to 2 of the header, 3 to 5 of the footer
  cmdFIELD = 2049,
  chkSECONDPAGE = 2050,

  // frmABOUT, frmLICENCES, the about box and the licences of what is embedded
  lblABOUTNAME = 2100,
  txtABOUT = 2101,
  cmdABOUTCOPY = 2102,
  cmdABOUTSUPPORT = 2103,
  cmdABOUTFEEDBACK = 2104,
  cmdABOUTLICENCES = 2105,
  lstLICENCES = 2106,
  txtLICENCE = 2107,

  // frmDONATE, frmMORE, pages of the maker's
  lblPAGEWORDS = 2110,
  txtPAGETEXT = 2111,
  cmdOPENPAGE = 2112,
};

}  // namespace varnel
