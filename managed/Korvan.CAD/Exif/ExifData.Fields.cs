using Korvan.CAD.Exif.Enums;
using Korvan.CAD.FileFormats.Tiff;

namespace Korvan.CAD.Exif;

/// <content>Named properties of tags. A missing number reads as its default value.</content>
public partial class ExifData
{
    /// <summary>Gets or sets the manufacturer of the camera; empty where it is not stated.</summary>
    public string Make
    {
        get => CommonTags.GetText(ExifProperties.Make);
        set => CommonTags.SetText(ExifProperties.Make, value);
    }

    /// <summary>Gets or sets the camera model; empty where it is not stated.</summary>
    public string Model
    {
        get => CommonTags.GetText(ExifProperties.Model);
        set => CommonTags.SetText(ExifProperties.Model, value);
    }

    /// <summary>Gets or sets the program that wrote the image; empty where it is not stated.</summary>
    public string Software
    {
        get => CommonTags.GetText(ExifProperties.Software);
        set => CommonTags.SetText(ExifProperties.Software, value);
    }

    /// <summary>Gets or sets the creator of the image; empty where it is not stated.</summary>
    public string Artist
    {
        get => CommonTags.GetText(ExifProperties.Artist);
        set => CommonTags.SetText(ExifProperties.Artist, value);
    }

    /// <summary>Gets or sets the copyright notice; empty where it is not stated.</summary>
    public string Copyright
    {
        get => CommonTags.GetText(ExifProperties.Copyright);
        set => CommonTags.SetText(ExifProperties.Copyright, value);
    }

    /// <summary>Gets or sets the description of the image; empty where it is not stated.</summary>
    public string ImageDescription
    {
        get => CommonTags.GetText(ExifProperties.ImageDescription);
        set => CommonTags.SetText(ExifProperties.ImageDescription, value);
    }

    /// <summary>Gets or sets the date and time of the last change, as <c>YYYY:MM:DD HH:MM:SS</c>; empty where it is not
    /// stated.</summary>
    public string DateTime
    {
        get => CommonTags.GetText(ExifProperties.DateTime);
        set => CommonTags.SetText(ExifProperties.DateTime, value);
    }

    /// <summary>Gets or sets the date and time at which the image was taken, as <c>YYYY:MM:DD HH:MM:SS</c>; empty where
    /// it is not stated.</summary>
    public string DateTimeOriginal
    {
        get => ExifTags.GetText(ExifProperties.DateTimeOriginal);
        set => ExifTags.SetText(ExifProperties.DateTimeOriginal, value);
    }

    /// <summary>Gets or sets the lens model; empty where it is not stated.</summary>
    public string LensModel
    {
        get => ExifTags.GetText(ExifProperties.LensModel);
        set => ExifTags.SetText(ExifProperties.LensModel, value);
    }

    /// <summary>Gets or sets the position of row 0 and column 0 in the displayed image.</summary>
    public ExifOrientation Orientation
    {
        get => (ExifOrientation)CommonTags.GetNumber(ExifProperties.Orientation, (int)ExifOrientation.TopLeft);
        set => CommonTags.SetNumber(ExifProperties.Orientation, (int)value);
    }

    /// <summary>Gets or sets the unit of the resolutions.</summary>
    public ExifUnit ResolutionUnit
    {
        get => (ExifUnit)CommonTags.GetNumber(ExifProperties.ResolutionUnit, (int)ExifUnit.Inch);
        set => CommonTags.SetNumber(ExifProperties.ResolutionUnit, (int)value);
    }

    /// <summary>Gets or sets the position of chroma samples relative to luma samples.</summary>
    public ExifYCbCrPositioning YCbCrPositioning
    {
        get => (ExifYCbCrPositioning)CommonTags.GetNumber(
            ExifProperties.YCbCrPositioning, (int)ExifYCbCrPositioning.Centered);
        set => CommonTags.SetNumber(ExifProperties.YCbCrPositioning, (int)value);
    }

    /// <summary>Gets or sets the colour space.</summary>
    public ExifColorSpace ColorSpace
    {
        get => (ExifColorSpace)ExifTags.GetNumber(ExifProperties.ColorSpace, (int)ExifColorSpace.Uncalibrated);
        set => ExifTags.SetNumber(ExifProperties.ColorSpace, (int)value);
    }

    /// <summary>Gets or sets the contrast processing of the camera.</summary>
    public ExifContrast Contrast
    {
        get => (ExifContrast)ExifTags.GetNumber(ExifProperties.Contrast, 0);
        set => ExifTags.SetNumber(ExifProperties.Contrast, (int)value);
    }

    /// <summary>Gets or sets whether the image was processed specially.</summary>
    public ExifCustomRendered CustomRendered
    {
        get => (ExifCustomRendered)ExifTags.GetNumber(ExifProperties.CustomRendered, 0);
        set => ExifTags.SetNumber(ExifProperties.CustomRendered, (int)value);
    }

    /// <summary>Gets or sets the exposure mode.</summary>
    public ExifExposureMode ExposureMode
    {
        get => (ExifExposureMode)ExifTags.GetNumber(ExifProperties.ExposureMode, 0);
        set => ExifTags.SetNumber(ExifProperties.ExposureMode, (int)value);
    }

    /// <summary>Gets or sets the exposure program.</summary>
    public ExifExposureProgram ExposureProgram
    {
        get => (ExifExposureProgram)ExifTags.GetNumber(ExifProperties.ExposureProgram, 0);
        set => ExifTags.SetNumber(ExifProperties.ExposureProgram, (int)value);
    }

    /// <summary>Gets or sets the source of the image.</summary>
    public ExifFileSource FileSource
    {
        get => (ExifFileSource)ExifTags.GetNumber(ExifProperties.FileSource, 0);
        set => ExifTags.SetBytes(ExifProperties.FileSource, [(byte)value]);
    }

    /// <summary>Gets or sets the state of the flash.</summary>
    public ExifFlash Flash
    {
        get => (ExifFlash)ExifTags.GetNumber(ExifProperties.Flash, 0);
        set => ExifTags.SetNumber(ExifProperties.Flash, (int)value);
    }

    /// <summary>Gets or sets the gain control.</summary>
    public ExifGainControl GainControl
    {
        get => (ExifGainControl)ExifTags.GetNumber(ExifProperties.GainControl, 0);
        set => ExifTags.SetNumber(ExifProperties.GainControl, (int)value);
    }

    /// <summary>Gets or sets the light source.</summary>
    public ExifLightSource LightSource
    {
        get => (ExifLightSource)ExifTags.GetNumber(ExifProperties.LightSource, 0);
        set => ExifTags.SetNumber(ExifProperties.LightSource, (int)value);
    }

    /// <summary>Gets or sets the metering mode.</summary>
    public ExifMeteringMode MeteringMode
    {
        get => (ExifMeteringMode)ExifTags.GetNumber(ExifProperties.MeteringMode, 0);
        set => ExifTags.SetNumber(ExifProperties.MeteringMode, (int)value);
    }

    /// <summary>Gets or sets the saturation processing of the camera.</summary>
    public ExifSaturation Saturation
    {
        get => (ExifSaturation)ExifTags.GetNumber(ExifProperties.Saturation, 0);
        set => ExifTags.SetNumber(ExifProperties.Saturation, (int)value);
    }

    /// <summary>Gets or sets the type of the scene.</summary>
    public ExifSceneCaptureType SceneCaptureType
    {
        get => (ExifSceneCaptureType)ExifTags.GetNumber(ExifProperties.SceneCaptureType, 0);
        set => ExifTags.SetNumber(ExifProperties.SceneCaptureType, (int)value);
    }

    /// <summary>Gets or sets the type of the sensor.</summary>
    public ExifSensingMethod SensingMethod
    {
        get => (ExifSensingMethod)ExifTags.GetNumber(ExifProperties.SensingMethod, (int)ExifSensingMethod.NotDefined);
        set => ExifTags.SetNumber(ExifProperties.SensingMethod, (int)value);
    }

    /// <summary>Gets or sets the distance of the subject as a range.</summary>
    public ExifSubjectDistanceRange SubjectDistanceRange
    {
        get => (ExifSubjectDistanceRange)ExifTags.GetNumber(ExifProperties.SubjectDistanceRange, 0);
        set => ExifTags.SetNumber(ExifProperties.SubjectDistanceRange, (int)value);
    }

    /// <summary>Gets or sets the white balance mode.</summary>
    public ExifWhiteBalance WhiteBalance
    {
        get => (ExifWhiteBalance)ExifTags.GetNumber(ExifProperties.WhiteBalance, 0);
        set => ExifTags.SetNumber(ExifProperties.WhiteBalance, (int)value);
    }

    /// <summary>Gets or sets the exposure time in seconds; <see langword="null"/> where it is not stated.</summary>
    public TiffRational? ExposureTime
    {
        get => ExifTags.GetRational(ExifProperties.ExposureTime);
        set => ExifTags.SetRational(ExifProperties.ExposureTime, value);
    }

    /// <summary>Gets or sets the f-number; <see langword="null"/> where it is not stated.</summary>
    public TiffRational? FNumber
    {
        get => ExifTags.GetRational(ExifProperties.FNumber);
        set => ExifTags.SetRational(ExifProperties.FNumber, value);
    }

    /// <summary>Gets or sets the focal length of the lens in millimetres; <see langword="null"/> where it is not
    /// stated.</summary>
    public TiffRational? FocalLength
    {
        get => ExifTags.GetRational(ExifProperties.FocalLength);
        set => ExifTags.SetRational(ExifProperties.FocalLength, value);
    }

    /// <summary>Gets or sets the distance of the subject in metres; <see langword="null"/> where it is not
    /// stated.</summary>
    public TiffRational? SubjectDistance
    {
        get => ExifTags.GetRational(ExifProperties.SubjectDistance);
        set => ExifTags.SetRational(ExifProperties.SubjectDistance, value);
    }

    /// <summary>Gets or sets the digital zoom ratio; <see langword="null"/> where it is not stated.</summary>
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
