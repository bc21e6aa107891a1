using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.SunStudy;

/// <summary>A date and time of a sun study.</summary>
[CadSequence]
[CadBits("BL JulianDay", "BL Milliseconds")]
public partial class CadSunStudyDate
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSunStudyDate()
    {
    }

    /// <summary>Gets or sets the day as a Julian day number. Group code 90.</summary>
    [CadInt(90)]
    public int JulianDay { get; set; }

    /// <summary>Gets or sets the time of day, in milliseconds. Group code 90.</summary>
    [CadInt(90)]
    public int Milliseconds { get; set; }
}
