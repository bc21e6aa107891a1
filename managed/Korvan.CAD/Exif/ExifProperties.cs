using Korvan.CAD.Binding;

namespace Korvan.CAD.Exif;

/// <summary>The numbers of the fields of a photograph's data (Exif 2.32).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExifProperties
{
    /// <summary>The field image width.</summary>
    ImageWidth = 256,

    /// <summary>The field image length.</summary>
    ImageLength = 257,

    /// <summary>The field bits per sample.</summary>
    BitsPerSample = 258,

    /// <summary>The field compression.</summary>
    Compression = 259,

    /// <summary>The field photometric interpretation.</summary>
    PhotometricInterpretation = 262,

    /// <summary>The field image description.</summary>
    ImageDescription = 270,

    /// <summary>The field make.</summary>
    Make = 271,

    /// <summary>The field model.</summary>
    Model = 272,

    /// <summary>The field orientation.</summary>
    Orientation = 274,

    /// <summary>The field samples per pixel.</summary>
    SamplesPerPixel = 277,

    /// <summary>The field xresolution.</summary>
    XResolution = 282,

    /// <summary>The field yresolution.</summary>
    YResolution = 283,

    /// <summary>The field planar configuration.</summary>
    PlanarConfiguration = 284,

    /// <summary>The field resolution unit.</summary>
    ResolutionUnit = 296,

    /// <summary>The field transfer function.</summary>
    TransferFunction = 301,

    /// <summary>The field software.</summary>
    Software = 305,

    /// <summary>The field date time.</summary>
    DateTime = 306,

    /// <summary>The field artist.</summary>
    Artist = 315,

    /// <summary>The field white point.</summary>
    WhitePoint = 318,

    /// <summary>The field primary chromaticities.</summary>
    PrimaryChromaticities = 319,

    /// <summary>The field jpeg interchange format.</summary>
    JpegInterchangeFormat = 513,

    /// <summary>The field jpeg interchange format length.</summary>
    JpegInterchangeFormatLength = 514,

    /// <summary>The field ycb cr coefficients.</summary>
    YCbCrCoefficients = 529,

    /// <summary>The field ycb cr sub sampling.</summary>
    YCbCrSubSampling = 530,

    /// <summary>The field ycb cr positioning.</summary>
    YCbCrPositioning = 531,

    /// <summary>The field reference black white.</summary>
    ReferenceBlackWhite = 532,

    /// <summary>The field copyright.</summary>
    Copyright = 33432,

    /// <summary>The field exposure time.</summary>
    ExposureTime = 33434,

    /// <summary>The field fnumber.</summary>
    FNumber = 33437,

    /// <summary>The field exif ifd pointer.</summary>
    ExifIfdPointer = 34665,

    /// <summary>The field exposure program.</summary>
    ExposureProgram = 34850,

    /// <summary>The field spectral sensitivity.</summary>
    SpectralSensitivity = 34852,

    /// <summary>The field gps ifd pointer.</summary>
    GpsIfdPointer = 34853,

    /// <summary>The field photographic sensitivity.</summary>
    PhotographicSensitivity = 34855,

    /// <summary>The field oecf.</summary>
    Oecf = 34856,

    /// <summary>The field sensitivity type.</summary>
    SensitivityType = 34864,

    /// <summary>The field exif version.</summary>
    ExifVersion = 36864,

    /// <summary>The field date time original.</summary>
    DateTimeOriginal = 36867,

    /// <summary>The field date time digitized.</summary>
    DateTimeDigitized = 36868,

    /// <summary>The field components configuration.</summary>
    ComponentsConfiguration = 37121,

    /// <summary>The field compressed bits per pixel.</summary>
    CompressedBitsPerPixel = 37122,

    /// <summary>The field shutter speed value.</summary>
    ShutterSpeedValue = 37377,

    /// <summary>The field aperture value.</summary>
    ApertureValue = 37378,

    /// <summary>The field brightness value.</summary>
    BrightnessValue = 37379,

    /// <summary>The field exposure bias value.</summary>
    ExposureBiasValue = 37380,

    /// <summary>The field max aperture value.</summary>
    MaxApertureValue = 37381,

    /// <summary>The field subject distance.</summary>
    SubjectDistance = 37382,

    /// <summary>The field metering mode.</summary>
    MeteringMode = 37383,

    /// <summary>The field light source.</summary>
    LightSource = 37384,

    /// <summary>The field flash.</summary>
    Flash = 37385,

    /// <summary>The field focal length.</summary>
    FocalLength = 37386,

    /// <summary>The field subject area.</summary>
    SubjectArea = 37396,

    /// <summary>The field maker note.</summary>
    MakerNote = 37500,

    /// <summary>The field user comment.</summary>
    UserComment = 37510,

    /// <summary>The field subsec time.</summary>
    SubsecTime = 37520,

    /// <summary>The field subsec time original.</summary>
    SubsecTimeOriginal = 37521,

    /// <summary>The field subsec time digitized.</summary>
    SubsecTimeDigitized = 37522,

    /// <summary>The field flashpix version.</summary>
    FlashpixVersion = 40960,

    /// <summary>The field color space.</summary>
    ColorSpace = 40961,

    /// <summary>The field pixel xdimension.</summary>
    PixelXDimension = 40962,

    /// <summary>The field pixel ydimension.</summary>
    PixelYDimension = 40963,

    /// <summary>The field related sound file.</summary>
    RelatedSoundFile = 40964,

    /// <summary>The field interoperability ifd pointer.</summary>
    InteroperabilityIfdPointer = 40965,

    /// <summary>The field flash energy.</summary>
    FlashEnergy = 41483,

    /// <summary>The field spatial frequency response.</summary>
    SpatialFrequencyResponse = 41484,

    /// <summary>The field focal plane xresolution.</summary>
    FocalPlaneXResolution = 41486,

    /// <summary>The field focal plane yresolution.</summary>
    FocalPlaneYResolution = 41487,

    /// <summary>The field focal plane resolution unit.</summary>
    FocalPlaneResolutionUnit = 41488,

    /// <summary>The field subject location.</summary>
    SubjectLocation = 41492,

    /// <summary>The field exposure index.</summary>
    ExposureIndex = 41493,

    /// <summary>The field sensing method.</summary>
    SensingMethod = 41495,

    /// <summary>The field file source.</summary>
    FileSource = 41728,

    /// <summary>The field scene type.</summary>
    SceneType = 41729,

    /// <summary>The field cfa pattern.</summary>
    CfaPattern = 41730,

    /// <summary>The field custom rendered.</summary>
    CustomRendered = 41985,

    /// <summary>The field exposure mode.</summary>
    ExposureMode = 41986,

    /// <summary>The field white balance.</summary>
    WhiteBalance = 41987,

    /// <summary>The field digital zoom ratio.</summary>
    DigitalZoomRatio = 41988,

    /// <summary>The field focal length in35 mm film.</summary>
    FocalLengthIn35MmFilm = 41989,

    /// <summary>The field scene capture type.</summary>
    SceneCaptureType = 41990,

    /// <summary>The field gain control.</summary>
    GainControl = 41991,

    /// <summary>The field contrast.</summary>
    Contrast = 41992,

    /// <summary>The field saturation.</summary>
    Saturation = 41993,

    /// <summary>The field sharpness.</summary>
    Sharpness = 41994,

    /// <summary>The field device setting description.</summary>
    DeviceSettingDescription = 41995,

    /// <summary>The field subject distance range.</summary>
    SubjectDistanceRange = 41996,

    /// <summary>The field image unique id.</summary>
    ImageUniqueId = 42016,

    /// <summary>The field camera owner name.</summary>
    CameraOwnerName = 42032,

    /// <summary>The field body serial number.</summary>
    BodySerialNumber = 42033,

    /// <summary>The field lens specification.</summary>
    LensSpecification = 42034,

    /// <summary>The field lens make.</summary>
    LensMake = 42035,

    /// <summary>The field lens model.</summary>
    LensModel = 42036,

    /// <summary>The field lens serial number.</summary>
    LensSerialNumber = 42037,

    /// <summary>The field gamma.</summary>
    Gamma = 42240,

    /// <summary>The field gps version id.</summary>
    GpsVersionId = 0,

    /// <summary>The field gps latitude ref.</summary>
    GpsLatitudeRef = 1,

    /// <summary>The field gps latitude.</summary>
    GpsLatitude = 2,

    /// <summary>The field gps longitude ref.</summary>
    GpsLongitudeRef = 3,

    /// <summary>The field gps longitude.</summary>
    GpsLongitude = 4,

    /// <summary>The field gps altitude ref.</summary>
    GpsAltitudeRef = 5,

    /// <summary>The field gps altitude.</summary>
    GpsAltitude = 6,

    /// <summary>The field gps timestamp.</summary>
    GpsTimestamp = 7,

    /// <summary>The field gps satellites.</summary>
    GpsSatellites = 8,

    /// <summary>The field gps status.</summary>
    GpsStatus = 9,

    /// <summary>The field gps measure mode.</summary>
    GpsMeasureMode = 10,

    /// <summary>The field gps dop.</summary>
    GpsDop = 11,

    /// <summary>The field gps speed ref.</summary>
    GpsSpeedRef = 12,

    /// <summary>The field gps speed.</summary>
    GpsSpeed = 13,

    /// <summary>The field gps track ref.</summary>
    GpsTrackRef = 14,

    /// <summary>The field gps track.</summary>
    GpsTrack = 15,

    /// <summary>The field gps img direction ref.</summary>
    GpsImgDirectionRef = 16,

    /// <summary>The field gps img direction.</summary>
    GpsImgDirection = 17,

    /// <summary>The field gps map datum.</summary>
    GpsMapDatum = 18,

    /// <summary>The field gps dest latitude ref.</summary>
    GpsDestLatitudeRef = 19,

    /// <summary>The field gps dest latitude.</summary>
    GpsDestLatitude = 20,

    /// <summary>The field gps dest longitude ref.</summary>
    GpsDestLongitudeRef = 21,

    /// <summary>The field gps dest longitude.</summary>
    GpsDestLongitude = 22,

    /// <summary>The field gps dest bearing ref.</summary>
    GpsDestBearingRef = 23,

    /// <summary>The field gps dest bearing.</summary>
    GpsDestBearing = 24,

    /// <summary>The field gps dest distance ref.</summary>
    GpsDestDistanceRef = 25,

    /// <summary>The field gps dest distance.</summary>
    GpsDestDistance = 26,

    /// <summary>The field gps processing method.</summary>
    GpsProcessingMethod = 27,

    /// <summary>The field gps area information.</summary>
    GpsAreaInformation = 28,

    /// <summary>The field gps date stamp.</summary>
    GpsDateStamp = 29,

    /// <summary>The field gps differential.</summary>
    GpsDifferential = 30,
}
