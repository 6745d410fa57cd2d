// The samples: values in the form that wire.mjs describes. `shows` is the description in the index.

const utf16 = text => Buffer.from(text, 'utf16le').toString('latin1');
const ascii = data => ({ data, isUtf16: false });

// Sixteen raw bytes with a zero byte and bytes above 0x7f among them.
const guid = number => ({ value: `\x00\xff\x80TALVO-PEER-\x00${String.fromCharCode(number)}` });

const intraEssence = {
    type: 'Intra', recordingStatus: 'OnDisk', archiveStatus: 'Stored', metadata: 'IntraEncodingBitLength10',
    blockSize: 'MB8', videoCompressionType: 'IntraXAvc300', audioCompressionType: 'IntraNone',
    videoCompressionInfo: 'IntraNone', audioConfiguration: 'EightMonos', videoCompressionRate: 300,
    audioCompressionRate: 0, horizontalFrameSize: 1920, verticalFrameSize: 1080,
};

const lowResEssence = {
    type: 'LowRes', recordingStatus: 'RecordInProgress', archiveStatus: 'NoStore', metadata: 'LowResNone',
    blockSize: 'MB2', videoCompressionType: 'LowResMjpeg', audioCompressionType: 'LowResMpeg1Layer2',
    videoCompressionInfo: 'LowResNone', audioConfiguration: 'Stereo', videoCompressionRate: 2,
    audioCompressionRate: 192, horizontalFrameSize: 480, verticalFrameSize: 270,
};

const clip = {
    umId: 'A1B2C3D4', sourceUmId: 'S0000001', fillAndKeyUmId: 'F0000002', materialId: 'M0000003',
    name: ascii('Final sprint'.padEnd(24)), varId: ascii('2024-06-15/STADIUM/CAM-B/0042'.padEnd(32)),
    keywords: ['sprint', 'finish line', 'crowd', 'replay', 'lane 4'].map(ascii),
    userBits: [0, 1, 127, 128, 200, 255, 16, 32],
    is3D: false, isDual: true, isTwinRec: false, isLegacyTimecodeDrop: false,
    trainStatus: 'NotATrain', sourceEngine: 'EditRec', uhdDivisionMode: 'Square', hdrProfile: 'Hlg',
    alphaArchiveStatus: 'Important', archiveStatus: 'ToStore', fillAndKeyStatus: 'Fill', userProtect: 7, camera: 'B',
    afdAspectRatio: 'FullFrame', codedFrameAspectRatio: 'SixteenNinths', videoFormat: 'Hd1080i',
    videoStandard: 'Pal', userTimecodeType: 'AtcLtc', primaryTimecode: 'Tod', rating: 'Best',
    preferentialCamera: 'Primary',
    inBoundField: 1000n, shortInBoundField: 1050n, shortOutBoundField: 2950n, outBoundField: 3000n,
    legacyTimecodeOffset: 25n, kviIndex: 3, userLock: 0xffffffffn, thumbnailOffset: 1200n, sequence: 65535n,
    machineSerial: 310042n, nbAudioVideoChannels: 8, dolbyMonoSignal: 0,
    inBoundTodTimecode: '2024-06-15T18:30:00:12@50', inBoundUserTimecode: '2024-06-15T10:00:00:00@25',
    inBoundTimepoint: 0x0db3a9c4e1f25b77n,
};

const shortClip = (umId, name) => ({
    umId, name: ascii(name), camera: 'A', videoFormat: 'Hd1080p', videoStandard: 'Pal',
    inBoundField: 0n, outBoundField: 500n, inBoundTodTimecode: '2024-06-15T18:30:00:00@50',
});

const range = (firstHour, lastHour) => ({
    inBoundTimepoint: BigInt(firstHour) * 3_600_000_000n, outBoundTimepoint: BigInt(lastHour) * 3_600_000_000n,
    inBoundTimecode: `2024-06-15T${firstHour}:00:00:00@50`, outBoundTimecode: `2024-06-15T${lastHour}:00:00:00@50`,
});

const atTimepoint = timepoint =>
    ({ type: 'Absolute', specializedLoadBoundary: { absoluteLoadBoundary: { timepoint } } });
const fieldsFromClip = fieldCount => ({
    type: 'RelativeToCorrespondingClipBoundary', specializedLoadBoundary: { relativeLoadBoundary: { fieldCount } },
});

// The value of an empty TimePoint: 0x8000000000000001.
const emptyTimepoint = -0x7fffffffffffffffn;

const playerState = {
    serial: 310042n, channelIndex: 2, name: 'PGM 2', status: 'Playing', mode: 'ClipDiffusionPlay',
    infoOnAir: {
        playoutConfig: 'Cut', status: 'Playing', mode: 'ClipDiffusionPlay',
        commonSpeedNumerator: -1, commonSpeedDenominator: 3, curVideoSpeedDenominator: 1,
        audioPgmInstruction: 17, audioPgmInstructionDecSpeedD: 65535,
        fieldPgm: 1500n, fieldPgmAudio: 1501n, fieldPreview: -1n, curFieldInProtect: 1000n, curFieldOutProtect: 3000n,
        limitIn: 1000n, limitOut: 3000n, limitUserIn: -0x8000000000000000n, limitUserOut: 0x7fffffffffffffffn,
    },
    pgmOnAir: {
        clipOnAir: shortClip('ONAIR001', 'On air'), curTimePointOnAir: 9007199254740993n,
        todCurTimecodeOnAir: '2024-06-15T18:30:05:10@50', userCurTimecodeOnAir: '2024-06-15T10:00:05:10@25',
    },
    previewOnAir: {},
    pgmInTimePointOnAir: 9007199254740993n, pgmOutTimePointOnAir: emptyTimepoint,
    todPgmInTimecodeOnAir: '2024-06-15T18:30:00:00@50', todPgmOutTimecodeOnAir: 'not a time code',
    globalLoopMode: 'Loop',
    inBoundary: atTimepoint(9007199254740993n), outBoundary: fieldsFromClip(-50n),
};

const tag = {
    id: 1, commandType: 'Comment', field: 1200n,
    properties: [
        ['Value', { dataType: 'Boolean', value: [1] }],
        ['Name', { dataType: 'String', value: [72, 105] }],
        ['Levels', { dataType: 'Vector', value: [-2147483648, -6, 0, 6, 2147483647] }],
    ],
};

const playlistHeader = {
    id: { location: 12, serverId: 3 }, umId: 'PLAY0001', varId: ascii('HIGHLIGHTS'), name: ascii('Day one highlights'),
    isTimeCodeRegen: true, timeCodeRegenReference: '2024-06-15T20:00:00;00@30', timeCodeRegenBase: 'Field',
    timeCodeRegenSource: 'ElementTodTimecode', timeCodeRegenOutput: 'All', timeCodeRegenType: 'ByElement',
    durationWithEffects: 5900n, durationWithoutEffects: 6000n, playRateNumerator: 30000n, playRateDenominator: 1001n,
    isFixedDuration: false, archiveStatus: 'Stored',
};

const element = (id, umId, extra) => ({
    videoEffectType: 'Mix', audioEffectType: 'MicroMix', videoEffectDuration: 20, audioEffectDuration: 2,
    videoFieldIn: 0n, videoFieldOut: 3000n, audioFieldIn: 0n, audioFieldOut: 3000n,
    element: {
        id, sequenceId: { location: 12, serverId: 3 }, position: id - 1, umId, inBoundaryType: 'Absolute',
        outBoundaryType: 'RelativeSelfOpposite', effectPosition: 'Center', stillMode: 'None', transitionTimer: 0,
        speed: { numerator: 1, denominator: 2 }, internalLoopId: -1, internalLoopRunNb: 0, ...extra,
    },
});

export const samples = [
    { name: 'clip-minimal', record: 'Clip', value: { umId: 'A1B2C3D4' },
        shows: 'the least that makes a clip: one field' },
    { name: 'clip-two-essences', record: 'Clip', value: { ...clip, intraEssence, lowResEssence },
        shows: 'all that a clip keeps: texts, five keywords, both time codes, an intra and a low resolution essence' },
    { name: 'clip-without-essences', record: 'Clip', value: { ...clip, keywords: ['sprint', 'finish line'].map(ascii) },
        shows: 'the same without essences and with two keywords: the other three keep their blanks' },
    { name: 'clip-utf16-name', record: 'Clip',
        value: { ...shortClip('A1B2C3D5', ''), name: { data: utf16('Größe 東京'), isUtf16: true },
            keywords: [{ data: utf16('Café'), isUtf16: true }] },
        shows: 'a name and a keyword as UTF-16 code units, which stay raw bytes' },
    { name: 'clip-drop-frame', record: 'Clip',
        value: { ...shortClip('A1B2C3D6', 'Drop frame'), videoStandard: 'Ntsc', isLegacyTimecodeDrop: true,
            inBoundTodTimecode: '2024-03-10T10:01:00;02@30', inBoundUserTimecode: '2024-03-10T10:01:00;04@60' },
        shows: 'drop-frame time codes at 30 and 60; a new clip is Pal, so isLegacyTimecodeDrop is not taken over' },
    { name: 'clip-long-texts', record: 'Clip',
        value: { umId: 'ABCDEFGHIJKL', name: ascii('A name of more than twenty-four bytes'),
            varId: ascii('0123456789012345678901234567890123456789'),
            keywords: ['one', 'two', 'three', 'four', 'a keyword beyond twelve bytes', 'six', 'seven'].map(ascii),
            userBits: Array(10).fill(-1), legacyTimecodeOffset: 0x1_0000_0019n },
        shows: 'texts that are cut, seven keywords, ten user bits and a number above 32 bits' },
    { name: 'clip-rate-mismatch', record: 'Clip',
        value: { ...shortClip('A1B2C3D7', 'Wrong rate'), inBoundTodTimecode: '2024-06-15T18:30:00:00@30' },
        shows: 'fails: In Bound TOD Timecode Rate inconsistent with Clip Rate' },
    { name: 'clip-nothing-counts', record: 'Clip',
        value: { keywords: [], userBits: [], sourceInBoundUserTimecode: '2024-06-15T18:30:00:00@50' },
        shows: 'fails: Clip is empty, since none of its fields counts' },
    { name: 'clip-unknown-numbers', record: 'Clip',
        value: { ...shortClip('A1B2C3D8', 'From the future'), trainStatus: 3, hdrProfile: 99, camera: -1,
            videoFormat: 2147483647, rating: -2147483648, intraEssence: { ...intraEssence, blockSize: 4 } },
        shows: 'enumeration numbers that no table knows: each becomes 0' },
    { name: 'angles-group', record: 'AnglesGroup',
        value: { id: guid(1), angles: [
            ['C', { clipId: guid(2), preferencialCamera: 'Primary' }],
            ['A', { clipId: guid(3), preferencialCamera: 'Secondary' }],
            ['Z', { clipId: guid(4), preferencialCamera: 'None' }]] },
        shows: 'a primary, a secondary and another angle, not written in the order of their cameras' },
    { name: 'recording-range', record: 'RecordingRange', value: { ...range(18, 19), outBoundTimepoint: emptyTimepoint },
        shows: 'a range whose out point is the empty time point' },
    { name: 'train', record: 'Train',
        value: { trainData: { ...shortClip('TRAIN001', 'Camera A'), trainStatus: 'ActiveTrain' },
            recordingRanges: [range(10, 12), range(13, 18)], isInMoving: false, isOutMoving: true,
            lastKnownTimeCode: '18:00:00:00@50' },
        shows: 'a running train with two ranges; its undated last time code cannot be parsed again once written' },
    { name: 'train-bad-ranges', record: 'Train',
        value: { recordingRanges: [range(10, 12), { ...range(13, 14), outBoundTimecode: undefined },
            { ...range(15, 16), inBoundTimecode: '2024-02-30T15:00:00:00@50' }], isInMoving: true },
        shows: 'a good range, one without its out time code, one with a day that does not exist: both become empty' },
    { name: 'train-bad-last-time-code', record: 'Train', value: { lastKnownTimeCode: '2024-06-15 18:30:00:00@50' },
        shows: 'a malformed last time code as the only field: skipped, and still no failure' },
    { name: 'guid', record: 'Guid', value: guid(0xfe), shows: 'sixteen raw bytes, zeros among them' },
    { name: 'operation-status', record: 'OperationStatus', value: { result: 'ResourceNotFound' },
        shows: 'a result alone, which means that the operation failed' },
    { name: 'create-clips-command', record: 'CreateClipsCommandParams',
        value: { commandGuid: guid(10), clips: [
            { sourceId: guid(11), clip: { ...clip, intraEssence }, setTimecodes: true },
            { sourceId: guid(12), clip: shortClip('NEW00002', 'Second'), setTimecodes: false }] },
        shows: 'a request to create two clips' },
    { name: 'clip-command-reply', record: 'ClipCommandReply',
        value: { guid: guid(10), results: [
            { operationStatus: { status: 'Succeeded' }, clip: { ...clip, intraEssence } },
            { operationStatus: { result: 'ProtectedResource' }, clip: shortClip('NEW00002', 'Second') },
            {}] },
        shows: 'a created clip, a refused one, which is dropped, and an empty result, which counts as failed' },
    { name: 'play-command', record: 'PlayCommandParams',
        value: { commandId: guid(20), players: [guid(22), guid(21)], speedNum: -1, speedDen: 2 },
        shows: 'two players at half speed backwards' },
    { name: 'load-clips-command', record: 'LoadClipsCommandParams',
        value: { commandGuid: guid(30), playersParameters: [
            [guid(32), { clip: guid(33), timepoint: emptyTimepoint, inBoundary: atTimepoint(-1n),
                outBoundary: fieldsFromClip(100n) }],
            [guid(31), { clip: guid(34) }]] },
        shows: 'a map whose keys are identifiers; the second entry holds a clip alone' },
    { name: 'live-command', record: 'LiveCommandParams',
        value: { commandGuid: guid(35), players: [[guid(37), guid(38)], [guid(36), guid(39)]] },
        shows: 'two players that follow a player each' },
    { name: 'channel-command-reply', record: 'ChannelCommandReply',
        value: { guid: guid(20), channelResults: [
            { guid: guid(21), status: { status: 'Pending' } },
            { guid: guid(22), status: { result: 'ResourceUnavailable' } },
            { guid: guid(21), status: { status: 'Succeeded' } }] },
        shows: 'three results of two channels: of the repeated one the later counts' },
    { name: 'get-clips-reply', record: 'GetClipsCommandReply',
        value: { guid: guid(40), revision: 9007199254740993n,
            clips: [shortClip('A1B2C3D4', 'First'), { ...shortClip('A1B2C3D5', 'Second'), lowResEssence }] },
        shows: 'two clips and a revision that a double cannot hold' },
    { name: 'player-state', record: 'PlayerState', value: playerState,
        shows: 'a playing channel; a malformed time code and a speed without its numerator are skipped, and a negative '
            + 'field count becomes a large one' },
    { name: 'recorder-state', record: 'RecorderState',
        value: { serial: 310042n, channelIndex: 0, name: 'A recorder name of more than 24 bytes', status: 'Recording',
            isFirstTimePointRunning: true, firstTimePoint: 9007199254740993n,
            lastTodTimecode: '2024-06-15T18:30:00:00@50', primaryTimecodeType: 'User',
            remainingCapacity: 150n, totalCapacity: 100n, recorderTrain: shortClip('TRAIN001', 'Camera A') },
        shows: 'a recording channel whose name is cut and whose remaining capacity is clamped to the total' },
    { name: 'server-info', record: 'ServerInfo',
        value: { serverId: 3, userNumber: 12, corvaneVersion: '4.01.28, built from the release branch of June',
            serverChassis: 'WessaPro', hardwareRevision: 'B2', hostName: 'replay-3.example',
            kronoIpAddress: 0xc0a80102 | 0, gbeIpAddresses: [0x0a000001, 0x0a000002], isLocal: true },
        shows: 'a version text that is cut, and addresses with the top bit set and clear' },
    { name: 'load-boundary', record: 'LoadBoundary',
        value: { type: 7, specializedLoadBoundary: {
            absoluteLoadBoundary: { timepoint: -1n }, relativeLoadBoundary: { fieldCount: 0x1_0000_0032n } } },
        shows: 'both members and a type that is not known: the relative one counts, and its high word is lost' },
    { name: 'multiviewer-overrides', record: 'MultiviewerDataOverrides',
        value: { playersData: [
            { playerGuid: guid(61), clipCreationIn: 9007199254740993n, clipCreationOut: emptyTimepoint,
                isFirstControlledMediaOutput: true, controlMode: 'Full', programMode: 'Preview',
                isPostRollEnabled: false, message: 'Camera 3, slow motion' },
            { playerGuid: guid(62), controlMode: 3, message: '' }] },
        shows: 'a player with all overrides, and one whose control mode is not known and gets lost' },
    { name: 'playlist', record: 'Playlist',
        value: {
            audioVideoTrack: {
                elements: [element(1, 'A1B2C3D4', { tags: [tag] }), element(2, 'A1B2C3D5', { tags: [] })] },
            auxTrackClipUmId: 'AUX00001', sequence: playlistHeader },
        shows: 'two elements, a tag with three properties and a header at 30000/1001' },
    { name: 'playlist-count-only', record: 'Playlist',
        value: { audioVideoTrack: { numberOfElements: 250 },
            sequence: { ...playlistHeader, playRateNumerator: 25000n } },
        shows: 'the light form of a listing; its bad play rate is not reported, and the fields after it are lost' },
    { name: 'tag-unknown-keys', record: 'Tag',
        value: { ...tag, properties: [...tag.properties, [18, { dataType: 'Integer', value: [18] }],
            [-1, { dataType: 'Integer', value: [-1] }]] },
        shows: 'properties under keys that no table knows: they collapse with Value, and the lowest is kept' },
    { name: 'track-empty-tag', record: 'AudioVideoTrack',
        value: { elements: [element(1, 'A1B2C3D4', { tags: [tag, { commandType: 'Mute' }, tag] })],
            numberOfElements: 9 },
        shows: 'a tag that holds its type alone: it ends its element quietly, and the number of elements is not read' },
    { name: 'clip-creation-finished', record: 'ClipCreationFinishedEventArgs',
        value: {
            clipCommand: { localMachineSerial: 310042n, requestSource: 'panel-1', operationNumber: 5, userTicket: -1,
                commandGuid: guid(50), subCommandIndex: 1 },
            sourceClip: { ...clip, intraEssence }, newClip: shortClip('NEW00001', 'Copy'),
            creationType: 'Copy', networkType: 'Local', databaseRevision: 9007199254740993n },
        shows: 'an event with the clip that was copied and the new one; words that are not known become Unknown, and a '
            + 'ticket of -1 becomes 65535' },
    { name: 'clip-deletion-failed', record: 'ClipDeletionFailedEventArgs',
        value: {
            clipCommand: { localMachineSerial: 310042n, requestSource: 'Network', operationNumber: 6, userTicket: 70000,
                commandGuid: guid(51) },
            removedClip: shortClip('A1B2C3D4', 'Final sprint'), result: 'ProtectedResource', essenceBitmap: 0x1ff,
            fromUCode: false, forceForPlaylist: true, databaseRevision: 9007199254740995n },
        shows: 'an event without its internal result, which becomes -1; of a ticket and a bitmap the low bits count' },
    { name: 'player-state-changed', record: 'PlayerStateChangedEventArgs',
        value: { channelIndex: 2, channelSerial: 310042n, eventFlags: 0x40, status: playerState },
        shows: 'an event with a whole player state inside' },
    { name: 'recording-ranges-changed', record: 'RecordingRangesChangedEventArgs',
        value: { recorderId: guid(52), recordingRanges: [range(10, 12), { ...range(13, 14), inBoundTimecode: 'noon' }],
            isOutBoundMoving: true },
        shows: 'an event with a good range and one with a malformed time code, which becomes empty' },
];
