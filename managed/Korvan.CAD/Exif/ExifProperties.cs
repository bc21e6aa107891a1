using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif;

/// <summary>Tag numbers of Exif metadata (Exif 2.32).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifProperties
{
    /// <summary>Width of the image in pixels. Tag 256.</summary>
    ImageWidth = 256,

    /// <summary>Height of the image in pixels. Tag 257.</summary>
    ImageLength = 257,

    /// <summary>Bits per sample, one value for each sample. Tag 258.</summary>
    BitsPerSample = 258,

    /// <summary>Compression scheme. Tag 259.</summary>
    Compression = 259,

    /// <summary>Colour space of the samples. Tag 262.</summary>
    PhotometricInterpretation = 262,

    /// <summary>Title or description of the image. Tag 270.</summary>
    ImageDescription = 270,

    /// <summary>Manufacturer of the camera or scanner. Tag 271.</summary>
    Make = 271,

    /// <summary>Model of the camera or scanner. Tag 272.</summary>
    Model = 272,

    /// <summary>Position of row 0 and column 0. Tag 274.</summary>
    Orientation = 274,

    /// <summary>Samples per pixel. Tag 277.</summary>
    SamplesPerPixel = 277,

    /// <summary>Pixels per resolution unit along X. Tag 282.</summary>
    XResolution = 282,

    /// <summary>Pixels per resolution unit along Y. Tag 283.</summary>
    YResolution = 283,

    /// <summary>Storage of samples: pixel by pixel or plane by plane. Tag 284.</summary>
    PlanarConfiguration = 284,

    /// <summary>Unit of the resolutions. Tag 296.</summary>
    ResolutionUnit = 296,

    /// <summary>Transfer function of the image as tables. Tag 301.</summary>
    TransferFunction = 301,

    /// <summary>Name and version of the program that wrote the image. Tag 305.</summary>
    Software = 305,

    /// <summary>Date and time of the last change of the file. Tag 306.</summary>
    DateTime = 306,

    /// <summary>Creator of the image. Tag 315.</summary>
    Artist = 315,

    /// <summary>Chromaticity of the white point. Tag 318.</summary>
    WhitePoint = 318,

    /// <summary>Chromaticities of the primaries. Tag 319.</summary>
    PrimaryChromaticities = 319,

    /// <summary>Offset of the JPEG thumbnail. Tag 513.</summary>
    JpegInterchangeFormat = 513,

    /// <summary>Length of the JPEG thumbnail in bytes. Tag 514.</summary>
    JpegInterchangeFormatLength = 514,

    /// <summary>Coefficients of the transformation from RGB to Y'CbCr. Tag 529.</summary>
    YCbCrCoefficients = 529,

    /// <summary>Chroma subsampling factors. Tag 530.</summary>
    YCbCrSubSampling = 530,

    /// <summary>Position of chroma samples relative to luma samples. Tag 531.</summary>
    YCbCrPositioning = 531,

    /// <summary>Reference values of black and white. Tag 532.</summary>
    ReferenceBlackWhite = 532,

    /// <summary>Copyright notice. Tag 33432.</summary>
    Copyright = 33432,

    /// <summary>Exposure time in seconds. Tag 33434.</summary>
    ExposureTime = 33434,

    /// <summary>F-number of the aperture. Tag 33437.</summary>
    FNumber = 33437,

    /// <summary>Offset of the Exif directory. Tag 34665.</summary>
    ExifIfdPointer = 34665,

    /// <summary>Exposure program of the camera. Tag 34850.</summary>
    ExposureProgram = 34850,

    /// <summary>Spectral sensitivity of each channel. Tag 34852.</summary>
    SpectralSensitivity = 34852,

    /// <summary>Offset of the GPS directory. Tag 34853.</summary>
    GpsIfdPointer = 34853,

    /// <summary>Sensitivity of the sensor, for example as an ISO speed. Tag 34855.</summary>
    PhotographicSensitivity = 34855,

    /// <summary>Opto-electronic conversion function (ISO 14524). Tag 34856.</summary>
    Oecf = 34856,

    /// <summary>Meaning of the photographic sensitivity (ISO 12232). Tag 34864.</summary>
    SensitivityType = 34864,

    /// <summary>Version of the Exif standard. Tag 36864.</summary>
    ExifVersion = 36864,

    /// <summary>Date and time at which the image was taken. Tag 36867.</summary>
    DateTimeOriginal = 36867,

    /// <summary>Date and time at which the image was digitized. Tag 36868.</summary>
    DateTimeDigitized = 36868,

    /// <summary>Order of the components of compressed data. Tag 37121.</summary>
    ComponentsConfiguration = 37121,

    /// <summary>Bits per pixel of the compressed data. Tag 37122.</summary>
    CompressedBitsPerPixel = 37122,

    /// <summary>Shutter speed in APEX units. Tag 37377.</summary>
    ShutterSpeedValue = 37377,

    /// <summary>Aperture in APEX units. Tag 37378.</summary>
    ApertureValue = 37378,

    /// <summary>Brightness in APEX units. Tag 37379.</summary>
    BrightnessValue = 37379,

    /// <summary>Exposure compensation in APEX units. Tag 37380.</summary>
    ExposureBiasValue = 37380,

    /// <summary>Largest aperture of the lens in APEX units. Tag 37381.</summary>
    MaxApertureValue = 37381,

    /// <summary>Distance of the subject in metres. Tag 37382.</summary>
    SubjectDistance = 37382,

    /// <summary>Metering mode. Tag 37383.</summary>
    MeteringMode = 37383,

    /// <summary>Light source. Tag 37384.</summary>
    LightSource = 37384,

    /// <summary>State of the flash. Tag 37385.</summary>
    Flash = 37385,

    /// <summary>Focal length of the lens in millimetres. Tag 37386.</summary>
    FocalLength = 37386,

    /// <summary>Position and size of the subject in pixels. Tag 37396.</summary>
    SubjectArea = 37396,

    /// <summary>Data of the camera's manufacturer in its own format. Tag 37500.</summary>
    MakerNote = 37500,

    /// <summary>Comment of the user, with a code of its character set. Tag 37510.</summary>
    UserComment = 37510,

    /// <summary>Fractions of a second of DateTime. Tag 37520.</summary>
    SubsecTime = 37520,

    /// <summary>Fractions of a second of DateTimeOriginal. Tag 37521.</summary>
    SubsecTimeOriginal = 37521,

    /// <summary>Fractions of a second of DateTimeDigitized. Tag 37522.</summary>
    SubsecTimeDigitized = 37522,

    /// <summary>Version of the Flashpix format. Tag 40960.</summary>
    FlashpixVersion = 40960,

    /// <summary>Colour space: 1 for sRGB. Tag 40961.</summary>
    ColorSpace = 40961,

    /// <summary>Width of the compressed image in pixels. Tag 40962.</summary>
    PixelXDimension = 40962,

    /// <summary>Height of the compressed image in pixels. Tag 40963.</summary>
    PixelYDimension = 40963,

    /// <summary>Name of a related audio file. Tag 40964.</summary>
    RelatedSoundFile = 40964,

    /// <summary>Offset of the interoperability directory. Tag 40965.</summary>
    InteroperabilityIfdPointer = 40965,

    /// <summary>Energy of the flash in BCPS. Tag 41483.</summary>
    FlashEnergy = 41483,

    /// <summary>Spatial frequency table (ISO 12233). Tag 41484.</summary>
    SpatialFrequencyResponse = 41484,

    /// <summary>Pixels per focal-plane resolution unit along X. Tag 41486.</summary>
    FocalPlaneXResolution = 41486,

    /// <summary>Pixels per focal-plane resolution unit along Y. Tag 41487.</summary>
    FocalPlaneYResolution = 41487,

    /// <summary>Unit of the focal-plane resolutions. Tag 41488.</summary>
    FocalPlaneResolutionUnit = 41488,

    /// <summary>Position of the subject in pixels. Tag 41492.</summary>
    SubjectLocation = 41492,

    /// <summary>Exposure index at which the image was taken. Tag 41493.</summary>
    ExposureIndex = 41493,

    /// <summary>Type of the sensor. Tag 41495.</summary>
    SensingMethod = 41495,

    /// <summary>Source of the image. Tag 41728.</summary>
    FileSource = 41728,

    /// <summary>Type of the scene: 1 for a directly photographed image. Tag 41729.</summary>
    SceneType = 41729,

    /// <summary>Pattern of the colour filter array. Tag 41730.</summary>
    CfaPattern = 41730,

    /// <summary>Whether the image was processed specially. Tag 41985.</summary>
    CustomRendered = 41985,

    /// <summary>Exposure mode. Tag 41986.</summary>
    ExposureMode = 41986,

    /// <summary>White balance mode. Tag 41987.</summary>
    WhiteBalance = 41987,

    /// <summary>Digital zoom ratio; 0 without digital zoom. Tag 41988.</summary>
    DigitalZoomRatio = 41988,

    /// <summary>Equivalent focal length for 35 mm film, in millimetres. Tag 41989.</summary>
    FocalLengthIn35MmFilm = 41989,

    /// <summary>Type of the scene captured. Tag 41990.</summary>
    SceneCaptureType = 41990,

    /// <summary>Gain applied to the image. Tag 41991.</summary>
    GainControl = 41991,

    /// <summary>Contrast processing of the camera. Tag 41992.</summary>
    Contrast = 41992,

    /// <summary>Saturation processing of the camera. Tag 41993.</summary>
    Saturation = 41993,

    /// <summary>Sharpness processing of the camera. Tag 41994.</summary>
    Sharpness = 41994,

    /// <summary>Settings of the camera for particular conditions. Tag 41995.</summary>
    DeviceSettingDescription = 41995,

    /// <summary>Distance of the subject as a range. Tag 41996.</summary>
    SubjectDistanceRange = 41996,

    /// <summary>Unique identifier of the image. Tag 42016.</summary>
    ImageUniqueId = 42016,

    /// <summary>Owner of the camera. Tag 42032.</summary>
    CameraOwnerName = 42032,

    /// <summary>Serial number of the camera body. Tag 42033.</summary>
    BodySerialNumber = 42033,

    /// <summary>Focal lengths and smallest F-numbers of the lens. Tag 42034.</summary>
    LensSpecification = 42034,

    /// <summary>Manufacturer of the lens. Tag 42035.</summary>
    LensMake = 42035,

    /// <summary>Model of the lens. Tag 42036.</summary>
    LensModel = 42036,

    /// <summary>Serial number of the lens. Tag 42037.</summary>
    LensSerialNumber = 42037,

    /// <summary>Gamma of the image. Tag 42240.</summary>
    Gamma = 42240,

    /// <summary>Version of the GPS directory. Tag 0.</summary>
    GpsVersionId = 0,

    /// <summary>Hemisphere of the latitude: N or S. Tag 1.</summary>
    GpsLatitudeRef = 1,

    /// <summary>Latitude in degrees, minutes and seconds. Tag 2.</summary>
    GpsLatitude = 2,

    /// <summary>Hemisphere of the longitude: E or W. Tag 3.</summary>
    GpsLongitudeRef = 3,

    /// <summary>Longitude in degrees, minutes and seconds. Tag 4.</summary>
    GpsLongitude = 4,

    /// <summary>Reference of the altitude: above or below sea level. Tag 5.</summary>
    GpsAltitudeRef = 5,

    /// <summary>Altitude in metres. Tag 6.</summary>
    GpsAltitude = 6,

    /// <summary>Time of the position in UTC: hours, minutes and seconds. Tag 7.</summary>
    GpsTimestamp = 7,

    /// <summary>Satellites used for the position. Tag 8.</summary>
    GpsSatellites = 8,

    /// <summary>Status of the receiver. Tag 9.</summary>
    GpsStatus = 9,

    /// <summary>Measurement mode: two- or three-dimensional. Tag 10.</summary>
    GpsMeasureMode = 10,

    /// <summary>Dilution of precision. Tag 11.</summary>
    GpsDop = 11,

    /// <summary>Unit of the speed: K, M or N. Tag 12.</summary>
    GpsSpeedRef = 12,

    /// <summary>Speed of the receiver. Tag 13.</summary>
    GpsSpeed = 13,

    /// <summary>Reference of the direction of movement: T (true) or M (magnetic). Tag 14.</summary>
    GpsTrackRef = 14,

    /// <summary>Direction of movement in degrees, 0 to 359.99. Tag 15.</summary>
    GpsTrack = 15,

    /// <summary>Reference of the image direction: T (true) or M (magnetic). Tag 16.</summary>
    GpsImgDirectionRef = 16,

    /// <summary>Direction of the image in degrees, 0 to 359.99. Tag 17.</summary>
    GpsImgDirection = 17,

    /// <summary>Geodetic datum of the position. Tag 18.</summary>
    GpsMapDatum = 18,

    /// <summary>Hemisphere of the destination's latitude: N or S. Tag 19.</summary>
    GpsDestLatitudeRef = 19,

    /// <summary>Latitude of the destination. Tag 20.</summary>
    GpsDestLatitude = 20,

    /// <summary>Hemisphere of the destination's longitude: E or W. Tag 21.</summary>
    GpsDestLongitudeRef = 21,

    /// <summary>Longitude of the destination. Tag 22.</summary>
    GpsDestLongitude = 22,

    /// <summary>Reference of the bearing to the destination: T (true) or M (magnetic). Tag 23.</summary>
    GpsDestBearingRef = 23,

    /// <summary>Bearing to the destination in degrees, 0 to 359.99. Tag 24.</summary>
    GpsDestBearing = 24,

    /// <summary>Unit of the distance to the destination: K, M or N. Tag 25.</summary>
    GpsDestDistanceRef = 25,

    /// <summary>Distance to the destination. Tag 26.</summary>
    GpsDestDistance = 26,

    /// <summary>Method by which the position was found. Tag 27.</summary>
    GpsProcessingMethod = 27,

    /// <summary>Name of the area. Tag 28.</summary>
    GpsAreaInformation = 28,

    /// <summary>Date of the position in UTC. Tag 29.</summary>
    GpsDateStamp = 29,

    /// <summary>Whether differential correction was applied. Tag 30.</summary>
    GpsDifferential = 30,
}
