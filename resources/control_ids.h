// Numbers of the controls that carry a name, shared by the forms, the dialog resources and the tests.
// Control arrays have their first number here; element i has that number plus i.
#pragma once

// The frame of every widget
#define lablTBARTOP 1000  // title-bar text buttons: 0 menu, 1 minimise, 2 close

// frmVRNwg, the manager
#define lblNUMBER 1020   // 0 to 7, one tile a widget; the calculator's digit keys 0 to 9

// frmVRNpr, the start-up options
#define chkSTARTUP 1060
#define chkMINSTART 1061
#define chkONTOP 1062

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
#define cmdOKfrmCLKas 1
#define cmdCancelfrmCLKas 2

// frmCLKam, the alarm popup
#define lablMESSAGE 1340
#define lablALARMC 1341
#define lblTitle 1342
#define imgBUTCLOSE 1343
