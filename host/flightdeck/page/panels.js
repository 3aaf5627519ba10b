// What stands on the panels: labels, places and lamps. Which controls there are, how one moves and what guards it is
// the module's to tell, with the link's greeting: what it doesn't tell is left out. `look` is only how it is drawn.
//
//   button  a lighted push button: `stays` is the text that shows while it is in
//   switch  a selector with `positions` named from its lower end
//   key     springs back
//   handle  a fire handle, with the bottles that it can be turned to
//   toggle  what the host's aircraft has or hasn't by itself
//   area    a button worked through a mouse area of its gauge
//   event   what the pilot's own hardware does by key events, [off, on]
//   lever   the pilot's own lever, with its stops
// A lamp is [variable, text, colour]; a variable with a ':' is any value that the host tells.

const lampsOf = (lamps) => lamps.map(([name, text, colour = 'amber']) => [name, text, colour]);
const button = (name, label, stays = 'ON', ...lamps) => ({look: 'button', name, label, stays, lamps: lampsOf(lamps)});
const selector = (name, label, positions = [], ...lamps) => ({look: 'switch', name, label, positions, lamps: lampsOf(lamps)});
const key = (name, label, ...lamps) => ({look: 'key', name, label, lamps: lampsOf(lamps)});
const handle = (name, label, text, bottles, ...lamps) =>
  ({look: 'handle', name, label, text, bottles, lamps: lampsOf(lamps)});

const OFF_ON = ['OFF', 'ON'], OFF_AUTO_ON = ['OFF', 'AUTO', 'ON'];
const TEMPERATURE = ['C', '', '', 'AUTO', '', '', 'W'];

export const overhead = [
  {title: 'Electrical', controls: [
    button('TZ_OH_ELE_BAT_Button', 'Battery', 'ON', ['TZ_OH_Annun_OFF_BATT', 'OFF']),
    selector('TZ_OH_ELE_APU_Switch', 'APU', ['OFF', 'ON', 'START'], ['TZ_OH_Annun_FAULT_APU', 'FAULT']),
    button('TZ_OH_APU_GEN_LEFT_Button', 'APU Gen L', 'ON', ['TZ_OH_Annun_OFF_APUL', 'OFF']),
    button('TZ_OH_APU_GEN_RIGHT_Button', 'APU Gen R', 'ON', ['TZ_OH_Annun_OFF_APUR', 'OFF']),
    button('TZ_OH_FWDEXTPWR_LEFT_Button', 'Fwd Ext Pwr L', 'ON', ['TZ_OH_Annun_AVAIL_FXPL', 'AVAIL', 'green']),
    button('TZ_OH_FWDEXTPWR_RIGHT_Button', 'Fwd Ext Pwr R', 'ON', ['TZ_OH_Annun_AVAIL_FXPR', 'AVAIL', 'green']),
    button('TZ_OH_CAB_UTIL_Button', 'Cabin Utility', 'ON', ['TZ_OH_Annun_OFF_CAB', 'OFF']),
    button('TZ_OH_PASS_SEATS_Button', 'IFE Pass Seats', 'ON', ['TZ_OH_Annun_OFF_IFE', 'OFF']),
    button('TZ_OH_GENCTL_L1_Button', 'Gen Ctrl L1', 'ON', ['TZ_OH_Annun_OFF_GCL1', 'OFF']),
    button('TZ_OH_GENCTL_L2_Button', 'Gen Ctrl L2', 'ON', ['TZ_OH_Annun_OFF_GCL2', 'OFF']),
    button('TZ_OH_GENCTL_R1_Button', 'Gen Ctrl R1', 'ON', ['TZ_OH_Annun_OFF_GCR1', 'OFF']),
    button('TZ_OH_GENCTL_R2_Button', 'Gen Ctrl R2', 'ON', ['TZ_OH_Annun_OFF_GCR2', 'OFF']),
    button('TZ_OH_DRVDISC_L1_Button', 'Drive Disc L1', '', ['TZ_OH_Annun_DRIVE_DDL1', 'DRIVE']),
    button('TZ_OH_DRVDISC_L2_Button', 'Drive Disc L2', '', ['TZ_OH_Annun_DRIVE_DDL2', 'DRIVE']),
    button('TZ_OH_DRVDISC_R1_Button', 'Drive Disc R1', '', ['TZ_OH_Annun_DRIVE_DDR1', 'DRIVE']),
    button('TZ_OH_DRVDISC_R2_Button', 'Drive Disc R2', '', ['TZ_OH_Annun_DRIVE_DDR2', 'DRIVE']),
    button('TZ_OH_TOWER_PWR_Button', 'Towing Power', 'ON', ['TZ_OH_Annun_TP_ONBAT', 'ON BAT']),
    key('TZ_annun_ovhd_testX', 'Batt Test', ['TZ_OH_Annun_BAT_HI', 'HI', 'green'], ['TZ_OH_Annun_BAT_MED', 'MED'],
        ['TZ_OH_Annun_BAT_LO', 'LO', 'red']),
    button('ext_power_avail', 'Ground Cart', 'AT A/C'),
    key('TZ_OH_CCR_L_Button', 'Maint Reset'),
  ]},
  {title: 'Hydraulics', controls: [
    button('TZ_OH_HYD_L_ENG_Button', 'L Eng Primary', 'ON', ['TZ_OH_Annun_LEH_FAULT', 'FAULT']),
    selector('TZ_OH_ELEC_L_Switch', 'L Demand', OFF_AUTO_ON, ['TZ_OH_Annun_LEH_FAULT2', 'FAULT']),
    selector('TZ_OH_ELEC_C1_Switch', 'C1 Elec', OFF_AUTO_ON, ['TZ_OH_Annun_LEH_FAULT1', 'FAULT']),
    selector('TZ_OH_ELEC_C2_Switch', 'C2 Elec', OFF_AUTO_ON, ['TZ_OH_Annun_REH_FAULT1', 'FAULT']),
    selector('TZ_OH_ELEC_R_Switch', 'R Demand', OFF_AUTO_ON, ['TZ_OH_Annun_REH_FAULT2', 'FAULT']),
    button('TZ_OH_HYD_R_ENG_Button', 'R Eng Primary', 'ON', ['TZ_OH_Annun_REH_FAULT', 'FAULT']),
    button('TZ_OH_HYD_RAT_Button', 'Ram Air Turb', '', ['TZ_OH_Annun_RAT_PRESS', 'PRESS', 'green'],
        ['TZ_OH_Annun_RAT_UNLKD', 'UNLKD']),
  ]},
  {title: 'Flight controls', controls: [
    selector('TZ_OH_PFC_G_Switch', 'Pri Flt Computers', ['AUTO', 'DISC'], ['TZ_OH_Annun_DISC_PFC', 'DISC']),
  ]},
  {title: 'IRS', controls: [
    selector('TZ_OH_IRS_LEFT_Switch', 'IRS L', OFF_ON, ['TZ_OH_Annun_BAT_IRS', 'ON BAT']),
    selector('TZ_OH_IRS_RIGHT_Switch', 'IRS R', OFF_ON),
    button('TZ_OH_HDG_REF_Button', 'Heading Ref', 'TRUE', ['TZ_OH_Annun_TRUE_IRS', 'TRUE', 'green']),
  ]},
  {title: 'Fuel', controls: [
    button('TZ_OH_LPUMP_FWD_Button', 'L Fwd Pump', 'ON', ['TZ_OH_Annun_FFPL_PRESS', 'PRESS']),
    button('TZ_OH_LPUMP_AFT_Button', 'L Aft Pump', 'ON', ['TZ_OH_Annun_FAPL_PRESS', 'PRESS']),
    button('TZ_OH_CNTRPUMP_L_Button', 'L Ctr Pump', 'ON', ['TZ_OH_Annun_FCPL_PRESS', 'PRESS']),
    button('TZ_OH_FUEL_CROSSFEED_Button', 'Crossfeed', 'ON', ['TZ_OH_Annun_FCP_VALVE', 'VALVE']),
    button('TZ_OH_CNTRPUMP_R_Button', 'R Ctr Pump', 'ON', ['TZ_OH_Annun_FCPR_PRESS', 'PRESS']),
    button('TZ_OH_RPUMP_FWD_Button', 'R Fwd Pump', 'ON', ['TZ_OH_Annun_FFPR_PRESS', 'PRESS']),
    button('TZ_OH_RPUMP_AFT_Button', 'R Aft Pump', 'ON', ['TZ_OH_Annun_FAPR_PRESS', 'PRESS']),
    button('TZ_OH_FUEL_BALANCE_Button', 'Balance', 'ON', ['TZ_OH_Annun_FBB_FAULT', 'FAULT']),
    button('TZ_OH_FUEL_ARM_Button', 'Jettison Arm', 'ARMED'),
    button('TZ_OH_NZL_L_Button', 'Nozzle L', 'ON'),
    button('TZ_OH_NZL_R_Button', 'Nozzle R', 'ON'),
  ]},
  {title: 'Engine', controls: [
    selector('TZ_OH_ENG_L_START_Switch', 'L Start', ['START', 'NORM']),
    selector('TZ_OH_ENG_R_START_Switch', 'R Start', ['START', 'NORM']),
    button('TZ_OH_ECC_L_Button', 'EEC Mode L', 'NORM', ['TZ_OH_Annun_ECCL_ALTN', 'ALTN']),
    button('TZ_OH_ECC_R_Button', 'EEC Mode R', 'NORM', ['TZ_OH_Annun_ECCR_ALTN', 'ALTN']),
    selector('TZ_OH_GND_TEST_Switch', 'Gnd Test', ['OFF', 'NORM', 'TEST']),
  ]},
  {title: 'Fire', controls: [
    handle('TZ_OH_APU_FIRE_HNDL', 'APU Fire', 'APU', ['BTL'], ['FIRE APU', 'FIRE', 'red'], ['BOTTLE DISCH APU', 'DISCH']),
    button('TZ_OH_CFA_FWD_Button', 'Cargo Arm Fwd', 'ARMED'),
    button('TZ_OH_CFA_AFT_Button', 'Cargo Arm Aft', 'ARMED'),
    button('TZ_OH_CFA_DISCH_Button', 'Cargo Disch', 'DISCH'),
    button('TZ_OH_FIRE_OHTEST_Button', 'Fire Test', 'TEST'),
  ]},
  {title: 'Air', controls: [
    button('TZ_OH_AC_LPACK_Button', 'L Pack', 'AUTO', ['TZ_OH_Annun_LPAC_OFF', 'OFF']),
    button('TZ_OH_AC_RPACK_Button', 'R Pack', 'AUTO', ['TZ_OH_Annun_RPAC_OFF', 'OFF']),
    button('TZ_OH_TRIMAIR_L_Button', 'L Trim Air', 'ON', ['TZ_OH_Annun_TAL_FAULT', 'FAULT']),
    button('TZ_OH_TRIMAIR_R_Button', 'R Trim Air', 'ON', ['TZ_OH_Annun_TAR_FAULT', 'FAULT']),
    button('TZ_OH_RECIRC_UPP_Button', 'Recirc Upper', 'ON'),
    button('TZ_OH_RECIRC_LOW_Button', 'Recirc Lower', 'ON'),
    button('TZ_OH_EQPCOOL_FWD_Button', 'Equip Cool Fwd', 'AUTO', ['TZ_OH_Annun_ECF_OVRD', 'OVRD']),
    button('TZ_OH_EQPCOOL_AFT_Button', 'Equip Cool Aft', 'AUTO', ['TZ_OH_Annun_ECA_OVRD', 'OVRD']),
    button('TZ_OH_AC_VENT_Button', 'Ventilation', 'NORM', ['TZ_OH_Annun_ACVENT_ALTN', 'ALTN']),
    selector('TZ_OH_FLTDK_Temp_Switch', 'Flt Deck Temp', TEMPERATURE),
    selector('TZ_OH_CABIN_Temp_Switch', 'Cabin Temp', TEMPERATURE),
    button('TZ_OH_Humid_Button', 'Humidifier', 'ON'),
  ]},
  {title: 'Pressurisation', controls: [
    button('TZ_OH_OV_FWD_Button', 'Outflow Fwd', 'AUTO', ['TZ_OH_Annun_OVFWD_MAN', 'MAN']),
    button('TZ_OH_OV_AFT_Button', 'Outflow Aft', 'AUTO', ['TZ_OH_Annun_OVAFT_MAN', 'MAN']),
  ]},
  {title: 'Cargo', controls: [
    button('TZ_OH_FWDCARGO_AC_Button', 'Fwd Cargo A/C', 'ON', ['TZ_OH_Annun_CARGOT_OFF', 'OFF']),
    selector('TZ_OH_FWDCARGO_FLOW_Switch', 'Fwd Flow', ['OFF', 'LOW', 'HIGH']),
    button('TZ_OH_Bulk_Button', 'Bulk Heat', 'ON', ['TZ_OH_Annun_BULK_OFF', 'OFF']),
  ]},
  {title: 'Anti-ice', controls: [
    selector('TZ_OH_WING_ANTICE_Switch', 'Wing', OFF_AUTO_ON),
    selector('TZ_OH_AI_L_ENG_Switch', 'L Engine', OFF_AUTO_ON),
    selector('TZ_OH_AI_R_ENG_Switch', 'R Engine', OFF_AUTO_ON),
  ]},
  {title: 'Window heat', controls: [
    button('TZ_OH_PRMY_L_SIDE_Button', 'L Side', 'ON', ['TZ_OH_Annun_PLS_INOP', 'INOP']),
    button('TZ_OH_PRMY_L_FWD_Button', 'L Fwd', 'ON', ['TZ_OH_Annun_PLF_INOP', 'INOP']),
    button('TZ_OH_PRMY_R_FWD_Button', 'R Fwd', 'ON', ['TZ_OH_Annun_PRF_INOP', 'INOP']),
    button('TZ_OH_PRMY_R_SIDE_Button', 'R Side', 'ON', ['TZ_OH_Annun_PRS_INOP', 'INOP']),
    button('TZ_OH_WH_LFWD_Button', 'Backup L Fwd', 'ON'),
    button('TZ_OH_WH_RFWD_Button', 'Backup R Fwd', 'ON'),
    selector('TZ_OH_L_WIPER_Switch', 'L Wiper', ['OFF', 'INT', 'LOW', 'HIGH']),
    selector('TZ_OH_R_WIPER_Switch', 'R Wiper', ['OFF', 'INT', 'LOW', 'HIGH']),
  ]},
  {title: 'Exterior lights', controls: [
    selector('TZ_OH_LDG_LEFT_Switch', 'Landing L', OFF_ON),
    selector('TZ_OH_LDG_NSE_Switch', 'Landing Nose', OFF_ON),
    selector('TZ_OH_LDG_RIGHT_Switch', 'Landing R', OFF_ON),
    selector('TZ_OH_LT_L_RWYTF_Switch', 'Rwy Turnoff L', OFF_ON),
    selector('TZ_OH_LT_R_RWYTF_Switch', 'Rwy Turnoff R', OFF_ON),
    selector('TZ_OH_LT_TAXI_Switch', 'Taxi', OFF_ON),
    selector('TZ_OH_LT_STROBE_Switch', 'Strobe', OFF_ON),
    button('TZ_OH_LT_BEACON_Button', 'Beacon', 'ON'),
    button('TZ_OH_LT_NAV_Button', 'Nav', 'ON'),
    button('TZ_OH_LT_LOGO_Button', 'Logo', 'ON'),
    button('TZ_OH_LT_WING_Button', 'Wing', 'ON'),
  ]},
  {title: 'Cabin and crew', controls: [
    selector('TZ_OH_SEATB_SIGN_Switch', 'Seat Belts', OFF_AUTO_ON),
    button('TZ_OH_CAB_CHM_Button', 'Cabin Chime', 'ON'),
    selector('TZ_OH_EMER_LTS_Switch', 'Emer Lights', ['OFF', 'ON', 'ARMED']),
    button('TZ_OH_PASS_OXY1_Button', 'Pass Oxygen', '', ['TZ_OH_Annun_POXY_ON', 'ON']),
    key('TZ_OXYGEN_TEST_Switch01', 'Oxygen Test'),
    button('TZ_OH_FD_DOOR_Button', 'Flt Deck Door', 'AUTO', ['TZ_OH_Annun_FDD_OFF', 'OFF']),
    button('TZ_OH_STORM_Button', 'Storm Lights', 'ON'),
    key('TZ_annun_ovhd_test', 'Lamp Test'),
    selector('TZ_OH_TEXT', 'Panel Text', OFF_ON),
  ]},
];

// The glareshield's outer panels, the same on either side but for what the first officer's lacks.
export const displaySelect = (side) => ({
  halves: [
    key(`TZ_MCP_${side}_MFD_L_Button`, 'L', [`TZ_MCP_${side}_MFD_L_GREEN`, '', 'green']),
    key(`TZ_MCP_${side}_MFD_R_Button`, 'R', [`TZ_MCP_${side}_MFD_R_GREEN`, '', 'green']),
  ],
  formats: ['SYS', 'CDU', 'INFO', 'CHKL', 'COMM', 'ND', 'EICAS', 'ENG'].map(
      (format) => key(`TZ_MCP_${side}_${format}_Button`, format)),
});

const RANGES = ['0.5', '1', '2', '5', '10', '20', '40', '80', '160', '320', '640', '1280'];  // NM

export const efis = (side) => [
  selector(`TZ_MCP_${side}_RADIO_BARO_Knob`, 'Mins', ['RADIO', 'BARO']),
  selector(`TZ_MCP_${side}_SEL_RB_Knob`, 'Mins Set'),
  key(`TZ_MCP_${side}_RB_RST_Button`, 'RST'),
  selector(`TZ_MCP_${side}_BAROSET_Knob`, 'Baro'),
  key(`TZ_MCP_${side}_BRST_STD_Button`, 'STD'),
  selector(`TZ_MCP_${side}_NDMAP_Knob`, 'ND Mode', ['MAP', 'PLAN']),
  key(`TZ_MCP_${side}_NDMAP_Knob_PUSH`, 'ND CTR'),
  ...side === 'L' ? [key('tz_cpt_nd_knob_clicked', 'ND PUSH')] : [],
  selector(`TZ_MCP_${side}_RANGE_Knob`, 'Range', RANGES),
  key(`TZ_MCP_${side}_RNG_CTR_Button`, 'TFC CTR'),
  key(`TZ_MCP_${side}_WXR_Button`, 'WXR'),
  key(`TZ_MCP_${side}_TERR_Button`, 'TERR'),
  key(`TZ_MCP_${side}_TFC_Button`, 'TFC'),
  key(`TZ_MCP_${side}_FPV_Button`, 'FPV'),
  key(`TZ_MCP_${side}_MTRS_Button`, 'MTRS'),
  key(`TZ_MCP_${side}_CANRCL_Button`, 'CANC RCL'),
];

// Beside the outer panels: master lights, datalink answers, clock.
export const glareshieldEnds = (side) => [
  key(`TZ_MCP_${side}_WARNING_Button`, 'Master',
      [side === 'L' ? 'TZ_MCP_Annun_WARN' : 'TZ_MCP_AnnunR_WARN', 'WARNING', 'red'],
      [side === 'L' ? 'TZ_MCP_Annun_CAUT' : 'TZ_MCP_AnnunR_CAUT', 'CAUTION']),
  key(`TZ_MCP_${side}_ACPT_Button`, 'ACPT'),
  key(`TZ_MCP_${side}_CANC_Button`, 'CANC'),
  key(`TZ_MCP_${side}_RJCT_Button`, 'RJCT'),
  key(`TZ_MCP_Clock_${side}_Button`, 'CLOCK'),
];

// The mode control panel is worked through the mouse areas of its gauge. `lit` is by [variable, values].
const area = (name, label, ...lit) => ({look: 'area', gauge: 'MCP', area: name, label, lit});
const LAT = 'lvar:ap_lat_mode', LAT_ARMED = 'lvar:ap_lat_mode_armed';
const THRUST = 'lvar:at_mode';
const VERT = 'lvar:ap_vert_mode', VERT_ARMED = 'lvar:ap_vert_mode_armed';

export const modeControl = {
  left: [
    selector('TZ_MCP_L_FD_Switch', 'F/D', OFF_ON),
    area('atarm', 'A/T ARM', ['lvar:at_armed_left', [1]]),
    area('apl', 'A/P L', ['lvar:ap_master_l', [1]]),
  ],
  windows: [
    {label: 'IAS/MACH', value: 'ap_spdbug', knob: 'spd', digits: 3, blank: [VERT, [5, 6]], open: 'lvar:tz_spd_intv_active',
     mach: ['lvar:tz_mach_status', 'token:118'],
     keys: [area('at', 'A/T', [THRUST, [2, 3]]), area('clbcon', 'CLB/CON', [THRUST, [5]])]},
    {label: 'HEADING', value: 'ap_hdgbug', knob: 'hdg', digits: 3, pad: '0', blank: [LAT, [6]],
     keys: [area('hdgsel', 'SEL', [LAT, [3]]), area('hdghold', 'HOLD', [LAT, [2]])]},
    {label: 'VERT SPEED', value: 'ap_vsbug', knob: 'vswheel', digits: 5, sign: true,
     keys: [area('vs', 'V/S', [VERT, [2]]), area('flch', 'FLCH', [VERT, [4]])]},
    {label: 'ALTITUDE', value: 'apalt', knob: 'alt', digits: 5,
     keys: [area('althold', 'HOLD', [VERT, [1]])]},
  ],
  modes: [
    area('lnav', 'LNAV', [LAT, [6]], [LAT_ARMED, [6]]),
    area('vnav', 'VNAV', [VERT, [5, 6]], [VERT_ARMED, [5, 6]]),
    area('loc', 'LOC/FAC', [LAT, [7]], [LAT_ARMED, [7]]),
    area('app', 'APP', [VERT, [10]], [VERT_ARMED, [10]]),
  ],
  right: [
    area('apr', 'A/P R', ['lvar:ap_master_r', [1]]),
    {...button('TZ_MCP_AP_DISENGAGE_Bar', 'Disengage', 'DOWN'), areas: ['bar up', 'bar down']},
    selector('TZ_MCP_R_FD_Switch', 'F/D', OFF_ON),
  ],
  more: [key('TZ_MCP_IAS_MACH_Button', 'IAS/ MACH'), key('TZ_MCP_XFR_Speed_Button', 'XFR'),
         key('ALT_INTV_knob', 'ALT INTV'),
         button('TZ_MCP_HDG_TRK_Status', 'Hdg / Trk', 'TRK')],
};

// A keypad's keys by their names behind TZ_FMC_L_ and TZ_FMC_R_, and what a computer's keyboard calls them.
const words = (text) => text.split(' ');
export const keypad = {
  blocks: {
    formats: words('SYS CDU INFO CHKL COMM ND'),
    pages: words('EXEC PRVPG NXTPG'),
    letters: words('A B C D E F G H I J K L M N O P Q R S T U V W X Y Z SP DEL SLASH CLR'),
    digits: words('1 2 3 4 5 6 7 8 9 DEC 0 NEGPOS'),
  },
  labels: {PRVPG: 'PREV PAGE', NXTPG: 'NEXT PAGE', SLASH: '/', DEC: '.', NEGPOS: '+/-'},
  lamp: {L: 'TZ_FMC_EXEC_L_Annun', R: 'TZ_FMC_EXEC_R_Annun'},
};

// What a computer's keyboard is on a CDU that has it, beside letters and digits: the key, what it presses, what that is
// called. A word is a key of the keypad, a number an item of the CDU.
const lineKeys = (first, side, item) => [1, 2, 3, 4, 5, 6].map((line) =>
    [`F${first + line - 1}`, item + line - 1, `line key ${line} ${side}`]);
export const keyboard = [
  ['.', 'DEC', 'point'], ['/', 'SLASH', 'slash'], ['-', 'NEGPOS', '+/-'], ['+', 'NEGPOS', '+/-'], [' ', 'SP', 'blank'],
  ['Backspace', 'CLR', 'CLR; held, it clears the scratchpad'], ['Delete', 'DEL', 'DEL'], ['Enter', 'EXEC', 'EXEC'],
  ['PageUp', 'PRVPG', 'PREV PAGE'], ['PageDown', 'NXTPG', 'NEXT PAGE'],
  ['Home', 17, 'INIT REF'], ['Insert', 24, 'LEGS'], ['End', 27, 'PROG'],
  ...lineKeys(1, 'left', 1), ...lineKeys(7, 'right', 9),
];
export const otherKeys = [
  ['Escape', 'gives the keyboard back, makes a large screen small'],
  ['Ctrl+V', 'types what was copied'], ['Arrows, Page Up, Page Down', 'turn the knob that was clicked last'],
  ['Alt+Enter', 'full screen, on the page of one screen'], ['?', 'this list'],
];

// What a computer's keyboard does while HANDS has it: the key, what moves and whither, what that is called.
export const handKeys = [
  ['ArrowLeft', 'aileron -0.6', 'left wing down'], ['ArrowRight', 'aileron 0.6', 'right wing down'],
  ['ArrowDown', 'elevator 0.6', 'nose up'], ['ArrowUp', 'elevator -0.6', 'nose down'],
  ['PageUp', 'thrust 0.05', 'more thrust'], ['PageDown', 'thrust -0.05', 'less thrust, below idle reverse'],
  [',', 'rudder -0.6', 'steer left'], ['.', 'rudder 0.6', 'steer right'], ['B', 'brakes 1', 'brakes, while it is held'],
  ['+', 'trim 1', 'trim nose up'], ['-', 'trim -1', 'trim nose down'],
  ['F', 'flaps 1', 'flaps one stop down'], ['V', 'flaps -1', 'flaps one stop up'], ['G', 'gear', 'gear up or down'],
  ['S', 'speedbrake', 'speedbrake out or in'], ['D', 'disconnect', 'autopilot disconnect'],
];

// A gamepad: its first axes, the axis of a stick's throttle, and its buttons by the standard layout.
export const handGamepad = {
  axes: ['aileron', 'elevator', 'rudder'], throttle: 3,
  buttons: [[0, 'brakes 1'], [1, 'gear'], [2, 'disconnect'], [3, 'speedbrake'], [4, 'flaps -1'], [5, 'flaps 1'],
            [6, 'thrust -0.01'], [7, 'thrust 0.01'], [12, 'trim -1'], [13, 'trim 1']],
};

// A tablet's keys around its screen, by their names behind TZ_EFB_L_ and TZ_EFB_R_.
export const efbKeys = {
  top: words('MENU DSPL XFR REDIRECT PWR'), left: words('L1 L2 L3 L4 L5 L6 L7 L8'),
  right: words('R1 R2 R3 R4 R5 R6 R7 R8'), bottom: words('PGUP PGDN LFT UP DN RGT ZOOMIN ZOOMOUT'),
};
export const efbLabels = {ZOOMIN: 'Z+', ZOOMOUT: 'Z-', LFT: '<', RGT: '>', UP: '^', DN: 'v', PGUP: 'PG UP',
                          PGDN: 'PG DN', REDIRECT: 'RDR'};

// The pilot's own levers.
export const flightLevers = {
  flaps: {look: 'lever', label: 'Flaps', lever: 'flaps', value: 'token:328', full: 16384,
          stops: []},  // the aircraft's own, which the host tells
  gear: {look: 'lever', label: 'Gear', lever: 'gear', value: 'token:331', full: 1, stops: [['UP', 0], ['DOWN', 1]]},
  arm: {look: 'lever', label: 'Spoilers', lever: 'speedbrake_arm', value: 'token:324', full: 1,
        stops: [['OFF', 0], ['ARMED', 1]]},
};

export const pedestal = [
  {title: 'Main panel', controls: [
    selector('TZ_MAIN_PFD_MFD_L_Switch', 'PFD / MFD', ['OUTBD', 'NORM', 'INBD']),
    selector('TZ_MAIN_AIRDATA_ATT_L_Switch', 'Air Data L', ['AUTO', 'ALTN']),
    selector('TZ_MAIN_AIRDATA_ATT_R_Switch', 'Air Data R', ['AUTO', 'ALTN']),
    selector('auto_brake_switch', 'Autobrake', ['RTO', 'OFF', 'DISARM', '1', '2', '3', '4', 'MAX']),
    key('TZ_Wheel_L_HUD_Button', 'HUD'),
  ]},
  {title: 'Standby instrument', controls: [
    key('TZ_MAIN_SPFD_APP_Button', 'APP'),
    key('TZ_MAIN_SPFD_HPIN_Button', 'HP/IN'),
    key('TZ_MAIN_SPFD_NEG_Button', '-'),
    key('TZ_MAIN_SPFD_POS_Button', '+'),
  ]},
  {title: 'Engine fire', controls: [
    handle('TZ_AFT_ENG1_FIRE_HNDL', 'Engine L', 'L', ['BTL 1', 'BTL 2'], ['token:887', 'FIRE', 'red'], ['TZ_AFT_ENGBTL_1_Annun', 'BTL 1 DISCH']),
    handle('TZ_AFT_ENG2_FIRE_HNDL', 'Engine R', 'R', ['BTL 1', 'BTL 2'], ['token:888', 'FIRE', 'red'], ['TZ_AFT_ENGBTL_2_Annun', 'BTL 2 DISCH']),
  ]},
  {title: 'Throttle quadrant', controls: [
    {look: 'event', label: 'Fuel Ctrl L', value: 'token:560', texts: ['CUTOFF', 'RUN'], events: [0x101c3, 0x101bf]},
    {look: 'event', label: 'Fuel Ctrl R', value: 'token:570', texts: ['CUTOFF', 'RUN'], events: [0x101c8, 0x101c4]},
    flightLevers.flaps, flightLevers.gear,
    {look: 'event', label: 'Park Brake', value: 'token:323', texts: ['OFF', 'SET'], events: [0x100d8, 0x100d8]},
    selector('TZ_THQ_Altn_flpas_Switch', 'Altn Flaps', ['RET', 'OFF', 'EXT']),
    selector('TZ_THQ_Stab_Norm_L2', 'Stab L2', ['NORM', 'CUTOUT']),
    selector('TZ_THQ_Stab_Norm_R2', 'Stab R2', ['NORM', 'CUTOUT']),
  ]},
  {title: 'Ground proximity', controls: [
    button('TZ_tcp1_FLAP_OVRD', 'Flap', 'OVRD'),
    button('TZ_tcp1_GEAR_OVRD', 'Gear', 'OVRD'),
    button('TZ_tcp1_TERR_OVRD', 'Terrain', 'OVRD'),
  ]},
  {title: 'Aft aisle', controls: [
    selector('TZ_AFT_Transponder_Knob', 'Transponder', ['STBY', 'ALT OFF', 'XPNDR', 'TA', 'TA/RA']),
    selector('TZ_AFT_FD_DOOR_Switch', 'Flt Deck Door', ['UNLKD', 'AUTO', 'DENY']),
    selector('TZ_AFT_OBS_Audio_Switch', 'Obs Audio', ['NORM', 'CAPT']),
  ]},
];

// Doors and services on the ground, and what can fail: the host tells what there is and in which group it stands.
const toggles = (sends, rows, staysIn) => [...new Set(rows.map(([, , title]) => title))].map((title) => ({
  title, controls: rows.filter((row) => row[2] === title).map(([what, label]) =>
    ({look: 'toggle', sends, what, label, stays: staysIn(title)})),
}));
export const ground = (rows) => toggles('ground', rows, (title) => title === 'Doors' ? 'OPEN' : 'SET');
export const failures = (rows) => toggles('fail', rows, () => 'FAIL');
