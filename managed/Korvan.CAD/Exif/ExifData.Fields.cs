using Korvan.CAD.Exif.Enums;
using Korvan.CAD.FileFormats.Tiff;

namespace Korvan.CAD.Exif;

/// <content>Fields with names. A number that is missing reads as its usual value; what is set is added.</content>
public partial class ExifData
{
    /// <summary>Gets or sets the maker of the camera; empty where it is not stated.</summary>
    public string Make
    {
        get => CommonTags.GetText(ExifProperties.Make);
        set => CommonTags.SetText(ExifProperties.Make, value);
    }

    /// <summary>Gets or sets the camera; empty where it is not stated.</summary>
    public string Model
    {
        get => CommonTags.GetText(ExifProperties.Model);
        set => CommonTags.SetText(ExifProperties.Model, value);
    }

    /// <summary>Gets or sets the program that wrote the picture; empty where it is not stated.</summary>
    public string Software
    {
        get => CommonTags.GetText(ExifProperties.Software);
        set => CommonTags.SetText(ExifProperties.Software, value);
    }

    /// <summary>Gets or sets who made the picture; empty where it is not stated.</summary>
    public string Artist
    {
        get => CommonTags.GetText(ExifProperties.Artist);
        set => CommonTags.SetText(ExifProperties.Artist, value);
    }

    /// <summary>Gets or sets who may use it; empty where it is not stated.</summary>
    public string Copyright
    {
        get => CommonTags.GetText(ExifProperties.Copyright);
        set => CommonTags.SetText(ExifProperties.Copyright, value);
    }

    /// <summary>Gets or sets what is to be seen; empty where it is not stated.</summary>
    public string ImageDescription
    {
        get => CommonTags.GetText(ExifProperties.ImageDescription);
        set => CommonTags.SetText(ExifProperties.ImageDescription, value);
    }

    /// <summary>Gets or sets when the file was changed, as <c>YYYY:MM:DD HH:MM:SS</c>; empty where it is not stated.</summary>
    public string DateTime
    {
        get => CommonTags.GetText(ExifProperties.DateTime);
        set => CommonTags.SetText(ExifProperties.DateTime, value);
    }

    /// <summary>Gets or sets when the picture was taken, as <c>YYYY:MM:DD HH:MM:SS</c>; empty where it is not stated.</summary>
    public string DateTimeOriginal
    {
        get => ExifTags.GetText(ExifProperties.DateTimeOriginal);
        set => ExifTags.SetText(ExifProperties.DateTimeOriginal, value);
    }

    /// <summary>Gets or sets the lens; empty where it is not stated.</summary>
    public string LensModel
    {
        get => ExifTags.GetText(ExifProperties.LensModel);
        set => ExifTags.SetText(ExifProperties.LensModel, value);
    }

    /// <summary>Gets or sets where the first row and column belong.</summary>
    public ExifOrientation Orientation
    {
        get => (ExifOrientation)CommonTags.GetNumber(ExifProperties.Orientation, (int)ExifOrientation.TopLeft);
        set => CommonTags.SetNumber(ExifProperties.Orientation, (int)value);
    }

    /// <summary>Gets or sets what resolutions count.</summary>
    public ExifUnit ResolutionUnit
    {
        get => (ExifUnit)CommonTags.GetNumber(ExifProperties.ResolutionUnit, (int)ExifUnit.Inch);
        set => CommonTags.SetNumber(ExifProperties.ResolutionUnit, (int)value);
    }

    /// <summary>Gets or sets where the samples of colour lie.</summary>
    public ExifYCbCrPositioning YCbCrPositioning
    {
        get => (ExifYCbCrPositioning)CommonTags.GetNumber(ExifProperties.YCbCrPositioning, (int)ExifYCbCrPositioning.Centered);
        set => CommonTags.SetNumber(ExifProperties.YCbCrPositioning, (int)value);
    }

    /// <summary>Gets or sets the colour space.</summary>
    public ExifColorSpace ColorSpace
    {
        get => (ExifColorSpace)ExifTags.GetNumber(ExifProperties.ColorSpace, (int)ExifColorSpace.Uncalibrated);
        set => ExifTags.SetNumber(ExifProperties.ColorSpace, (int)value);
    }

    /// <summary>Gets or sets the contrast that the camera applied.</summary>
    public ExifContrast Contrast
    {
        get => (ExifContrast)ExifTags.GetNumber(ExifProperties.Contrast, 0);
        set => ExifTags.SetNumber(ExifProperties.Contrast, (int)value);
    }

    /// <summary>Gets or sets whether the picture was processed specially.</summary>
    public ExifCustomRendered CustomRendered
    {
        get => (ExifCustomRendered)ExifTags.GetNumber(ExifProperties.CustomRendered, 0);
        set => ExifTags.SetNumber(ExifProperties.CustomRendered, (int)value);
    }

    /// <summary>Gets or sets who chose the exposure.</summary>
    public ExifExposureMode ExposureMode
    {
        get => (ExifExposureMode)ExifTags.GetNumber(ExifProperties.ExposureMode, 0);
        set => ExifTags.SetNumber(ExifProperties.ExposureMode, (int)value);
    }

    /// <summary>Gets or sets the program that chose the exposure.</summary>
    public ExifExposureProgram ExposureProgram
    {
        get => (ExifExposureProgram)ExifTags.GetNumber(ExifProperties.ExposureProgram, 0);
        set => ExifTags.SetNumber(ExifProperties.ExposureProgram, (int)value);
    }

    /// <summary>Gets or sets where the picture came from.</summary>
    public ExifFileSource FileSource
    {
        get => (ExifFileSource)ExifTags.GetNumber(ExifProperties.FileSource, 0);
        set => ExifTags.SetBytes(ExifProperties.FileSource, [(byte)value]);
    }

    /// <summary>Gets or sets what the flash did.</summary>
    public ExifFlash Flash
    {
        get => (ExifFlash)ExifTags.GetNumber(ExifProperties.Flash, 0);
        set => ExifTags.SetNumber(ExifProperties.Flash, (int)value);
    }

    /// <summary>Gets or sets the gain of the sensor.</summary>
    public ExifGainControl GainControl
    {
        get => (ExifGainControl)ExifTags.GetNumber(ExifProperties.GainControl, 0);
        set => ExifTags.SetNumber(ExifProperties.GainControl, (int)value);
    }

    /// <summary>Gets or sets the light.</summary>
    public ExifLightSource LightSource
    {
        get => (ExifLightSource)ExifTags.GetNumber(ExifProperties.LightSource, 0);
        set => ExifTags.SetNumber(ExifProperties.LightSource, (int)value);
    }

    /// <summary>Gets or sets how the light was measured.</summary>
    public ExifMeteringMode MeteringMode
    {
        get => (ExifMeteringMode)ExifTags.GetNumber(ExifProperties.MeteringMode, 0);
        set => ExifTags.SetNumber(ExifProperties.MeteringMode, (int)value);
    }

    /// <summary>Gets or sets the saturation that the camera applied.</summary>
    public ExifSaturation Saturation
    {
        get => (ExifSaturation)ExifTags.GetNumber(ExifProperties.Saturation, 0);
        set => ExifTags.SetNumber(ExifProperties.Saturation, (int)value);
    }

    /// <summary>Gets or sets the kind of scene.</summary>
    public ExifSceneCaptureType SceneCaptureType
    {
        get => (ExifSceneCaptureType)ExifTags.GetNumber(ExifProperties.SceneCaptureType, 0);
        set => ExifTags.SetNumber(ExifProperties.SceneCaptureType, (int)value);
    }

    /// <summary>Gets or sets the kind of sensor.</summary>
    public ExifSensingMethod SensingMethod
    {
        get => (ExifSensingMethod)ExifTags.GetNumber(ExifProperties.SensingMethod, (int)ExifSensingMethod.NotDefined);
        set => ExifTags.SetNumber(ExifProperties.SensingMethod, (int)value);
    }

    /// <summary>Gets or sets how far the subject was.</summary>
    public ExifSubjectDistanceRange SubjectDistanceRange
    {
        get => (ExifSubjectDistanceRange)ExifTags.GetNumber(ExifProperties.SubjectDistanceRange, 0);
        set => ExifTags.SetNumber(ExifProperties.SubjectDistanceRange, (int)value);
    }

    /// <summary>Gets or sets who chose the white balance.</summary>
    public ExifWhiteBalance WhiteBalance
    {
        get => (ExifWhiteBalance)ExifTags.GetNumber(ExifProperties.WhiteBalance, 0);
        set => ExifTags.SetNumber(ExifProperties.WhiteBalance, (int)value);
    }

    /// <summary>Gets or sets the exposure in seconds; nothing where it is not stated.</summary>
    public TiffRational? ExposureTime
    {
        get => ExifTags.GetRational(ExifProperties.ExposureTime);
        set => ExifTags.SetRational(ExifProperties.ExposureTime, value);
    }

    /// <summary>Gets or sets the f-number; nothing where it is not stated.</summary>
    public TiffRational? FNumber
    {
        get => ExifTags.GetRational(ExifProperties.FNumber);
        set => ExifTags.SetRational(ExifProperties.FNumber, value);
    }

    /// <summary>Gets or sets the focal length of the lens in millimetres; nothing where it is not stated.</summary>
    public TiffRational? FocalLength
    {
        get => ExifTags.GetRational(ExifProperties.FocalLength);
        set => ExifTags.SetRational(ExifProperties.FocalLength, value);
    }

    /// <summary>Gets or sets the distance of the subject in metres; nothing where it is not stated.</summary>
    public TiffRational? SubjectDistance
    {
        get => ExifTags.GetRational(ExifProperties.SubjectDistance);
        set => ExifTags.SetRational(ExifProperties.SubjectDistance, value);
    }

    /// <summary>Gets or sets the digital zoom; nothing where it is not stated.</summary>
    public TiffRational? DigitalZoomRatio
    {
        get => ExifTags.GetRational(ExifProperties.DigitalZoomRatio);
        set => ExifTags.SetRational(ExifProperties.DigitalZoomRatio, value);
    }

    /// <summary>Gets or sets the sensitivity as an ISO number, 0 where it is not stated.</summary>
    public int PhotographicSensitivity
    {
        get => (int)ExifTags.GetNumber(ExifProperties.PhotographicSensitivity, 0);
        set => ExifTags.SetNumber(ExifProperties.PhotographicSensitivity, value);
    }
}
