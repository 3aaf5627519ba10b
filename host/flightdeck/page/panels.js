// What stands on the panels: labels, places and lamps. How a control moves is the module's to tell (its class,
// ends and guard come with the link's greeting); `look` is only how it is drawn.
//
//   button  a lighted push button: `stays` is the text that shows while it is in
//   switch  a selector with `positions` named from its lower end
//   key     springs back
//   handle  a fire handle
//   area    a button worked through a mouse area of its gauge
//   event   what the pilot's own hardware does by key events, [off, on]
//   lever   the pilot's own lever, with its stops
// `guard` names the variable of the cover over it, `min` and `max` the ends of what the module doesn't poll. A lamp is [variable, text, colour].

const OH = 'TZ_OH_', LAMP = 'TZ_OH_Annun_';

const lampsOf = (lamps) => lamps.map(([name, text, colour = 'amber']) => [LAMP + name, text, colour]);
const button = (name, label, stays = 'ON', ...lamps) =>
    ({look: 'button', name: OH + name, label, stays, lamps: lampsOf(lamps)});
const guarded = (name, guard, label, stays, ...lamps) => ({...button(name, label, stays, ...lamps), guard: OH + guard});
const selector = (name, label, positions, ...lamps) =>
    ({look: 'switch', name: OH + name, label, positions, lamps: lampsOf(lamps)});
const push = (name, label, ...lamps) => ({look: 'key', name: OH + name, label, lamps: lampsOf(lamps)});

const OFF_ON = ['OFF', 'ON'], OFF_AUTO_ON = ['OFF', 'AUTO', 'ON'];
const TEMPERATURE = ['C', '', '', 'AUTO', '', '', 'W'];

export const overhead = [
  {title: 'Electrical', controls: [
    button('ELE_BAT_Button', 'Battery', 'ON', ['OFF_BATT', 'OFF']),
    selector('ELE_APU_Switch', 'APU', ['OFF', 'ON', 'START'], ['FAULT_APU', 'FAULT']),
    button('APU_GEN_LEFT_Button', 'APU Gen L', 'ON', ['OFF_APUL', 'OFF']),
    button('APU_GEN_RIGHT_Button', 'APU Gen R', 'ON', ['OFF_APUR', 'OFF']),
    button('FWDEXTPWR_LEFT_Button', 'Fwd Ext Pwr L', 'ON', ['AVAIL_FXPL', 'AVAIL', 'green']),
    button('FWDEXTPWR_RIGHT_Button', 'Fwd Ext Pwr R', 'ON', ['AVAIL_FXPR', 'AVAIL', 'green']),
    button('CAB_UTIL_Button', 'Cabin Utility', 'ON', ['OFF_CAB', 'OFF']),
    button('PASS_SEATS_Button', 'IFE Pass Seats', 'ON', ['OFF_IFE', 'OFF']),
    button('GENCTL_L1_Button', 'Gen Ctrl L1', 'ON', ['OFF_GCL1', 'OFF']),
    button('GENCTL_L2_Button', 'Gen Ctrl L2', 'ON', ['OFF_GCL2', 'OFF']),
    button('GENCTL_R1_Button', 'Gen Ctrl R1', 'ON', ['OFF_GCR1', 'OFF']),
    button('GENCTL_R2_Button', 'Gen Ctrl R2', 'ON', ['OFF_GCR2', 'OFF']),
    guarded('DRVDISC_L1_Button', 'GEN_L1_Guard_Switch', 'Drive Disc L1', '', ['DRIVE_DDL1', 'DRIVE']),
    guarded('DRVDISC_L2_Button', 'GEN_L2_Guard_Switch', 'Drive Disc L2', '', ['DRIVE_DDL2', 'DRIVE']),
    guarded('DRVDISC_R1_Button', 'GEN_R1_Guard_Switch', 'Drive Disc R1', '', ['DRIVE_DDR1', 'DRIVE']),
    guarded('DRVDISC_R2_Button', 'GEN_R2_Guard_Switch', 'Drive Disc R2', '', ['DRIVE_DDR2', 'DRIVE']),
    button('TOWER_PWR_Button', 'Towing Power', 'ON', ['TP_ONBAT', 'ON BAT']),
    {look: 'key', name: 'TZ_annun_ovhd_testX', label: 'Batt Test', lamps: lampsOf([
      ['BAT_HI', 'HI', 'green'], ['BAT_MED', 'MED', 'amber'], ['BAT_LO', 'LO', 'red']])},
    {look: 'button', name: 'ext_power_avail', label: 'Ground Cart', stays: 'AT A/C', lamps: []},
    push('CCR_L_Button', 'Maint Reset'),
  ]},
  {title: 'Hydraulics', controls: [
    button('HYD_L_ENG_Button', 'L Eng Primary', 'ON', ['LEH_FAULT', 'FAULT']),
    selector('ELEC_L_Switch', 'L Demand', OFF_AUTO_ON, ['LEH_FAULT2', 'FAULT']),
    selector('ELEC_C1_Switch', 'C1 Elec', OFF_AUTO_ON, ['LEH_FAULT1', 'FAULT']),
    selector('ELEC_C2_Switch', 'C2 Elec', OFF_AUTO_ON, ['REH_FAULT1', 'FAULT']),
    selector('ELEC_R_Switch', 'R Demand', OFF_AUTO_ON, ['REH_FAULT2', 'FAULT']),
    button('HYD_R_ENG_Button', 'R Eng Primary', 'ON', ['REH_FAULT', 'FAULT']),
    guarded('HYD_RAT_Button', 'RAT_Guard_Switch', 'Ram Air Turb', '', ['RAT_PRESS', 'PRESS', 'green'],
        ['RAT_UNLKD', 'UNLKD']),
  ]},
  {title: 'Flight controls', controls: [
    {...selector('PFC_G_Switch', 'Pri Flt Computers', ['AUTO', 'DISC'], ['DISC_PFC', 'DISC']), guard: OH + 'PFC_Safety_Switch'},
  ]},
  {title: 'IRS', controls: [
    selector('IRS_LEFT_Switch', 'IRS L', OFF_ON, ['BAT_IRS', 'ON BAT']),
    selector('IRS_RIGHT_Switch', 'IRS R', OFF_ON),
    button('HDG_REF_Button', 'Heading Ref', 'TRUE', ['TRUE_IRS', 'TRUE', 'green']),
  ]},
  {title: 'Fuel', controls: [
    button('LPUMP_FWD_Button', 'L Fwd Pump', 'ON', ['FFPL_PRESS', 'PRESS']),
    button('LPUMP_AFT_Button', 'L Aft Pump', 'ON', ['FAPL_PRESS', 'PRESS']),
    button('CNTRPUMP_L_Button', 'L Ctr Pump', 'ON', ['FCPL_PRESS', 'PRESS']),
    button('FUEL_CROSSFEED_Button', 'Crossfeed', 'ON', ['FCP_VALVE', 'VALVE']),
    button('CNTRPUMP_R_Button', 'R Ctr Pump', 'ON', ['FCPR_PRESS', 'PRESS']),
    button('RPUMP_FWD_Button', 'R Fwd Pump', 'ON', ['FFPR_PRESS', 'PRESS']),
    button('RPUMP_AFT_Button', 'R Aft Pump', 'ON', ['FAPR_PRESS', 'PRESS']),
    button('FUEL_BALANCE_Button', 'Balance', 'ON', ['FBB_FAULT', 'FAULT']),
    button('FUEL_ARM_Button', 'Jettison Arm', 'ARMED'),
    guarded('NZL_L_Button', 'NZL_L_Guard_Switch', 'Nozzle L', 'ON'),
    guarded('NZL_R_Button', 'NZL_R_Guard_Switch', 'Nozzle R', 'ON'),
  ]},
  {title: 'Engine', controls: [
    selector('ENG_L_START_Switch', 'L Start', ['START', 'NORM']),
    selector('ENG_R_START_Switch', 'R Start', ['START', 'NORM']),
    guarded('ECC_L_Button', 'ECC_L_Guard_Switch', 'EEC Mode L', 'NORM', ['ECCL_ALTN', 'ALTN']),
    guarded('ECC_R_Button', 'ECC_R_Guard_Switch', 'EEC Mode R', 'NORM', ['ECCR_ALTN', 'ALTN']),
    selector('GND_TEST_Switch', 'Gnd Test', ['OFF', 'NORM', 'TEST']),
  ]},
  {title: 'Fire', controls: [
    {look: 'handle', name: OH + 'APU_FIRE_HNDL', label: 'APU Fire', text: 'APU',
     lamps: [['FIRE APU', 'FIRE', 'red'], ['BOTTLE DISCH APU', 'DISCH', 'amber']]},
    button('CFA_FWD_Button', 'Cargo Arm Fwd', 'ARMED'),
    button('CFA_AFT_Button', 'Cargo Arm Aft', 'ARMED'),
    guarded('CFA_DISCH_Button', 'DISCH_Guard_Switch', 'Cargo Disch', 'DISCH'),
    button('FIRE_OHTEST_Button', 'Fire Test', 'TEST'),
  ]},
  {title: 'Air', controls: [
    button('AC_LPACK_Button', 'L Pack', 'AUTO', ['LPAC_OFF', 'OFF']),
    button('AC_RPACK_Button', 'R Pack', 'AUTO', ['RPAC_OFF', 'OFF']),
    button('TRIMAIR_L_Button', 'L Trim Air', 'ON', ['TAL_FAULT', 'FAULT']),
    button('TRIMAIR_R_Button', 'R Trim Air', 'ON', ['TAR_FAULT', 'FAULT']),
    button('RECIRC_UPP_Button', 'Recirc Upper', 'ON'),
    button('RECIRC_LOW_Button', 'Recirc Lower', 'ON'),
    button('EQPCOOL_FWD_Button', 'Equip Cool Fwd', 'AUTO', ['ECF_OVRD', 'OVRD']),
    button('EQPCOOL_AFT_Button', 'Equip Cool Aft', 'AUTO', ['ECA_OVRD', 'OVRD']),
    guarded('AC_VENT_Button', 'VENT_Guard_Switch', 'Ventilation', 'NORM', ['ACVENT_ALTN', 'ALTN']),
    selector('FLTDK_Temp_Switch', 'Flt Deck Temp', TEMPERATURE),
    selector('CABIN_Temp_Switch', 'Cabin Temp', TEMPERATURE),
    button('Humid_Button', 'Humidifier', 'ON'),
  ]},
  {title: 'Pressurisation', controls: [
    button('OV_FWD_Button', 'Outflow Fwd', 'AUTO', ['OVFWD_MAN', 'MAN']),
    button('OV_AFT_Button', 'Outflow Aft', 'AUTO', ['OVAFT_MAN', 'MAN']),
  ]},
  {title: 'Cargo', controls: [
    button('FWDCARGO_AC_Button', 'Fwd Cargo A/C', 'ON', ['CARGOT_OFF', 'OFF']),
    selector('FWDCARGO_FLOW_Switch', 'Fwd Flow', ['OFF', 'LOW', 'HIGH']),
    button('Bulk_Button', 'Bulk Heat', 'ON', ['BULK_OFF', 'OFF']),
  ]},
  {title: 'Anti-ice', controls: [
    selector('WING_ANTICE_Switch', 'Wing', OFF_AUTO_ON),
    selector('AI_L_ENG_Switch', 'L Engine', OFF_AUTO_ON),
    selector('AI_R_ENG_Switch', 'R Engine', OFF_AUTO_ON),
  ]},
  {title: 'Window heat', controls: [
    button('PRMY_L_SIDE_Button', 'L Side', 'ON', ['PLS_INOP', 'INOP']),
    button('PRMY_L_FWD_Button', 'L Fwd', 'ON', ['PLF_INOP', 'INOP']),
    button('PRMY_R_FWD_Button', 'R Fwd', 'ON', ['PRF_INOP', 'INOP']),
    button('PRMY_R_SIDE_Button', 'R Side', 'ON', ['PRS_INOP', 'INOP']),
    button('WH_LFWD_Button', 'Backup L Fwd', 'ON'),
    button('WH_RFWD_Button', 'Backup R Fwd', 'ON'),
    selector('L_WIPER_Switch', 'L Wiper', ['OFF', 'INT', 'LOW', 'HIGH']),
    selector('R_WIPER_Switch', 'R Wiper', ['OFF', 'INT', 'LOW', 'HIGH']),
  ]},
  {title: 'Exterior lights', controls: [
    selector('LDG_LEFT_Switch', 'Landing L', OFF_ON),
    selector('LDG_NSE_Switch', 'Landing Nose', OFF_ON),
    selector('LDG_RIGHT_Switch', 'Landing R', OFF_ON),
    selector('LT_L_RWYTF_Switch', 'Rwy Turnoff L', OFF_ON),
    selector('LT_R_RWYTF_Switch', 'Rwy Turnoff R', OFF_ON),
    selector('LT_TAXI_Switch', 'Taxi', OFF_ON),
    selector('LT_STROBE_Switch', 'Strobe', OFF_ON),
    button('LT_BEACON_Button', 'Beacon', 'ON'),
    button('LT_NAV_Button', 'Nav', 'ON'),
    button('LT_LOGO_Button', 'Logo', 'ON'),
    button('LT_WING_Button', 'Wing', 'ON'),
  ]},
  {title: 'Cabin and crew', controls: [
    selector('SEATB_SIGN_Switch', 'Seat Belts', OFF_AUTO_ON),
    button('CAB_CHM_Button', 'Cabin Chime', 'ON'),
    {...selector('EMER_LTS_Switch', 'Emer Lights', ['ARMED', 'ON']), guard: OH + 'EMER_LTS_Safety_Switch'},
    guarded('PASS_OXY1_Button', 'PASSOXY_Guard_Switch', 'Pass Oxygen', '', ['POXY_ON', 'ON']),
    {look: 'key', name: 'TZ_OXYGEN_TEST_Switch01', label: 'Oxygen Test', lamps: []},
    button('FD_DOOR_Button', 'Flt Deck Door', 'AUTO', ['FDD_OFF', 'OFF']),
    button('STORM_Button', 'Storm Lights', 'ON'),
    {look: 'key', name: 'TZ_annun_ovhd_test', label: 'Lamp Test', lamps: []},
    {look: 'switch', name: OH + 'TEXT', label: 'Panel Text', positions: OFF_ON, lamps: []},
  ]},
];

// The glareshield's outer panels, the same on either side but for what the first officer's lacks.
const mcp = (side, name) => `TZ_MCP_${side}_${name}`;

export const displaySelect = (side) => ({
  halves: [
    {look: 'key', name: mcp(side, 'MFD_L_Button'), label: 'L', lamps: [[mcp(side, 'MFD_L_GREEN'), '', 'green']]},
    {look: 'key', name: mcp(side, 'MFD_R_Button'), label: 'R', lamps: [[mcp(side, 'MFD_R_GREEN'), '', 'green']]},
  ],
  formats: ['SYS', 'CDU', 'INFO', 'CHKL', 'COMM', 'ND', 'EICAS', 'ENG'].map(
      (format) => ({look: 'key', name: mcp(side, `${format}_Button`), label: format, lamps: []})),
});

const knob = (name, label, positions = []) => ({look: 'switch', name, label, positions, lamps: []});
const key = (name, label, ...lamps) => ({look: 'key', name, label, lamps});

const RANGES = ['0.5', '1', '2', '5', '10', '20', '40', '80', '160', '320', '640', '1280'];  // NM

export const efis = {
  L: [
    knob('TZ_MCP_L_RADIO_BARO_Knob', 'Mins', ['RADIO', 'BARO']),
    knob('TZ_MCP_L_SEL_RB_Knob', 'Mins Set'),
    key('TZ_MCP_L_RB_RST_Button', 'RST'),
    knob('TZ_MCP_L_BAROSET_Knob', 'Baro'),
    key('TZ_MCP_L_BRST_STD_Button', 'STD'),
    knob('TZ_MCP_L_NDMAP_Knob', 'ND Mode', ['MAP', 'PLAN']),
    key('TZ_MCP_L_NDMAP_Knob_PUSH', 'ND CTR'),
    key('tz_cpt_nd_knob_clicked', 'ND PUSH'),
    knob('TZ_MCP_L_RANGE_Knob', 'Range', RANGES),
    key('TZ_MCP_L_RNG_CTR_Button', 'TFC CTR'),
    key('TZ_MCP_L_WXR_Button', 'WXR'),
    key('TZ_MCP_L_TERR_Button', 'TERR'),
    key('TZ_MCP_L_TFC_Button', 'TFC'),
    key('TZ_MCP_L_FPV_Button', 'FPV'),
    key('TZ_MCP_L_MTRS_Button', 'MTRS'),
    key('TZ_MCP_L_CANRCL_Button', 'CANC RCL'),
  ],
  R: [
    knob('TZ_MCP_R_RADIO_BARO_Knob', 'Mins', ['RADIO', 'BARO']),
    knob('TZ_MCP_R_BAROSET_Knob', 'Baro'),
    key('TZ_MCP_R_BRST_STD_Button', 'STD'),
    knob('TZ_MCP_R_NDMAP_Knob', 'ND Mode', ['MAP', 'PLAN']),
    knob('TZ_MCP_R_RANGE_Knob', 'Range', RANGES),
    key('TZ_MCP_R_RNG_CTR_Button', 'TFC CTR'),
    key('TZ_MCP_R_WXR_Button', 'WXR'),
    key('TZ_MCP_R_TERR_Button', 'TERR'),
    key('TZ_MCP_R_TFC_Button', 'TFC'),
    key('TZ_MCP_R_FPV_Button', 'FPV'),
    key('TZ_MCP_R_MTRS_Button', 'MTRS'),
    key('TZ_MCP_R_CANRCL_Button', 'CANC RCL'),
  ],
};

// Beside the outer panels: master lights, datalink answers, clock.
export const glareshieldEnds = {
  L: [
    key('TZ_MCP_L_WARNING_Button', 'Master', ['TZ_MCP_Annun_WARN', 'WARNING', 'red'],
        ['TZ_MCP_Annun_CAUT', 'CAUTION', 'amber']),
    key('TZ_MCP_L_ACPT_Button', 'ACPT'),
    key('TZ_MCP_L_CANC_Button', 'CANC'),
    key('TZ_MCP_L_RJCT_Button', 'RJCT'),
    key('TZ_MCP_Clock_L_Button', 'CLOCK'),
  ],
  R: [
    key('TZ_MCP_R_WARNING_Button', 'Master', ['TZ_MCP_AnnunR_WARN', 'WARNING', 'red'],
        ['TZ_MCP_AnnunR_CAUT', 'CAUTION', 'amber']),
    key('TZ_MCP_Clock_R_Button', 'CLOCK'),
  ],
};

// The mode control panel is worked through the mouse areas of its gauge. `lit` is by [variable, values].
const area = (name, label, ...lit) => ({look: 'area', gauge: 'MCP', area: name, label, lit});
const LAT = 'lvar:ap_lat_mode', LAT_ARMED = 'lvar:ap_lat_mode_armed';
const VERT = 'lvar:ap_vert_mode', VERT_ARMED = 'lvar:ap_vert_mode_armed';

export const modeControl = {
  left: [
    {look: 'switch', name: 'TZ_MCP_L_FD_Switch', label: 'F/D', positions: OFF_ON, lamps: []},
    area('atarm', 'A/T ARM', ['lvar:at_armed_left', [1]]),
    area('apl', 'A/P L', ['lvar:ap_master_l', [1]]),
  ],
  windows: [
    {label: 'IAS/MACH', value: 'ap_spdbug', knob: 'spd', digits: 3, blank: [VERT, [5, 6]],
     keys: [area('at', 'A/T'), area('clbcon', 'CLB/CON')]},
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
    {look: 'button', name: 'TZ_MCP_AP_DISENGAGE_Bar', label: 'Disengage', stays: 'DOWN', lamps: [],
     areas: ['bar up', 'bar down']},
    {look: 'switch', name: 'TZ_MCP_R_FD_Switch', label: 'F/D', positions: OFF_ON, lamps: []},
  ],
  more: [key('TZ_MCP_IAS_MACH_Button', 'IAS/ MACH'), key('TZ_MCP_XFR_Speed_Button', 'XFR'),
         key('ALT_INTV_knob', 'ALT INTV'),
         {look: 'button', name: 'TZ_MCP_HDG_TRK_Status', label: 'Hdg / Trk', stays: 'TRK', lamps: []}],
};

// A keypad's keys by their names behind TZ_FMC_L_ and TZ_FMC_R_, and what a computer's keyboard calls them.
const words = (text) => text.split(' ');
export const keypad = {
  formats: words('SYS CDU INFO CHKL COMM ND'),
  pages: [['EXEC', 'EXEC'], ['PRVPG', 'PREV PAGE'], ['NXTPG', 'NEXT PAGE']],
  letters: words('A B C D E F G H I J K L M N O P Q R S T U V W X Y'),
  last: [['Z', 'Z'], ['SP', 'SP'], ['DEL', 'DEL'], ['SLASH', '/'], ['CLR', 'CLR']],
  digits: [['1', '1'], ['2', '2'], ['3', '3'], ['4', '4'], ['5', '5'], ['6', '6'], ['7', '7'], ['8', '8'],
           ['9', '9'], ['DEC', '.'], ['0', '0'], ['NEGPOS', '+/-']],
  lamp: {L: 'TZ_FMC_EXEC_L_Annun', R: 'TZ_FMC_EXEC_R_Annun'},
  typed: {'.': 'DEC', '/': 'SLASH', '-': 'NEGPOS', '+': 'NEGPOS', ' ': 'SP', 'Backspace': 'CLR', 'Delete': 'DEL',
          'Enter': 'EXEC', 'PageUp': 'PRVPG', 'PageDown': 'NXTPG'},
};

export const efbKeys = {
  L: {left: words('L1 L2 L3 L4 L5 L6 L7 L8'), right: words('R1 R2 R3 R4 R5 R6 R7 R8'),
      top: words('MENU DSPL XFR REDIRECT PWR'), bottom: words('PGUP PGDN LFT UP DN RGT ZOOMIN ZOOMOUT')},
  R: {left: words('L1 L2 L3 L4 L5 L6 L7 L8'), right: words('R1 R2 R3 R4 R5 R6 R7 R8'),
      top: words('MENU XFR REDIRECT PWR'), bottom: words('PGUP PGDN')},
};
export const efbLabels = {ZOOMIN: 'Z+', ZOOMOUT: 'Z-', LFT: '<', RGT: '>', UP: '^', DN: 'v', PGUP: 'PG UP',
                          PGDN: 'PG DN', REDIRECT: 'RDR'};

export const pedestal = [
  {title: 'Main panel', controls: [
    {...knob('TZ_MAIN_PFD_MFD_L_Switch', 'PFD / MFD', ['OUTBD', 'NORM', 'INBD']), min: -1, max: 1},
    knob('TZ_MAIN_AIRDATA_ATT_L_Switch', 'Air Data L', ['ALTN', 'AUTO']),
    knob('TZ_MAIN_AIRDATA_ATT_R_Switch', 'Air Data R', ['ALTN', 'AUTO']),
    {...knob('auto_brake_switch', 'Autobrake', ['RTO', 'OFF', 'DISARM', '1', '2', '3', '4', 'MAX']), min: -1, max: 6},
    key('TZ_Wheel_L_HUD_Button', 'HUD'),
  ]},
  {title: 'Standby instrument', controls: [
    key('TZ_MAIN_SPFD_APP_Button', 'APP'),
    key('TZ_MAIN_SPFD_HPIN_Button', 'HP/IN'),
    key('TZ_MAIN_SPFD_NEG_Button', '-'),
    key('TZ_MAIN_SPFD_POS_Button', '+'),
  ]},
  {title: 'Engine fire', controls: [
    {look: 'handle', name: 'TZ_AFT_ENG1_FIRE_HNDL', label: 'Engine L', text: 'L',
     lamps: [['TZ_AFT_ENGBTL_1_Annun', 'BTL 1 DISCH', 'amber']]},
    {look: 'handle', name: 'TZ_AFT_ENG2_FIRE_HNDL', label: 'Engine R', text: 'R',
     lamps: [['TZ_AFT_ENGBTL_2_Annun', 'BTL 2 DISCH', 'amber']]},
  ]},
  {title: 'Throttle quadrant', controls: [
    {look: 'event', label: 'Fuel Ctrl L', value: 'token:560', texts: ['CUTOFF', 'RUN'], events: [0x101c3, 0x101bf]},
    {look: 'event', label: 'Fuel Ctrl R', value: 'token:570', texts: ['CUTOFF', 'RUN'], events: [0x101c8, 0x101c4]},
    {look: 'lever', label: 'Flaps', lever: 'flaps', value: 'token:328', full: 16384,
     stops: [0, 1, 5, 10, 15, 17, 18, 20, 25, 30].map((degrees) => [degrees === 0 ? 'UP' : String(degrees), degrees / 30])},
    {look: 'lever', label: 'Gear', lever: 'gear', value: 'token:331', full: 1, stops: [['UP', 0], ['DOWN', 1]]},
    {look: 'event', label: 'Park Brake', value: 'token:323', texts: ['OFF', 'SET'], events: [0x100d8, 0x100d8]},
    knob('TZ_THQ_Altn_flpas_Switch', 'Altn Flaps', ['RET', 'OFF', 'EXT']),
    knob('TZ_THQ_Stab_Norm_L2', 'Stab L2', ['NORM', 'CUTOUT']),
    knob('TZ_THQ_Stab_Norm_R2', 'Stab R2', ['NORM', 'CUTOUT']),
  ]},
  {title: 'Ground proximity', controls: [
    {look: 'button', name: 'TZ_tcp1_FLAP_OVRD', label: 'Flap', stays: 'OVRD', lamps: []},
    {look: 'button', name: 'TZ_tcp1_GEAR_OVRD', label: 'Gear', stays: 'OVRD', lamps: []},
    {look: 'button', name: 'TZ_tcp1_TERR_OVRD', label: 'Terrain', stays: 'OVRD', lamps: []},
  ]},
  {title: 'Aft aisle', controls: [
    knob('TZ_AFT_Transponder_Knob', 'Transponder', ['STBY', 'ALT OFF', 'XPNDR', 'TA', 'TA/RA']),
    knob('TZ_AFT_FD_DOOR_Switch', 'Flt Deck Door', ['UNLKD', 'AUTO', 'DENY']),
    knob('TZ_AFT_OBS_Audio_Switch', 'Obs Audio', ['NORM', 'CAPT']),
  ]},
];
