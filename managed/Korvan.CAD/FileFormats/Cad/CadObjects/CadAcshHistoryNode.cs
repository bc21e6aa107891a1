using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A step in the history of a solid.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbShHistoryNode")]
[CadBits(
    "base", "BL HistoryMajorVersion", "BL HistoryMinorVersion", "BD M00", "BD M01", "BD M02", "BD M03", "BD M10",
    "BD M11", "BD M12", "BD M13", "BD M20", "BD M21", "BD M22", "BD M23", "BD M30", "BD M31", "BD M32", "BD M33",
    "CMC ColorId", "BL StepId", "H Material")]
public abstract partial class CadAcshHistoryNode : CadDbEvalExpr
{
    internal CadAcshHistoryNode()
    {
    }

    /// <summary>Gets or sets the major version of the program that wrote the step. Group code 90.</summary>
    [CadInt(90)]
    public int HistoryMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the step. Group code 91.</summary>
    [CadInt(91)]
    public int HistoryMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the first row of the transform, first column. Group code 40.</summary>
    [CadDouble(40)]
    internal double M00 { get; set; } = 1;

    /// <summary>Gets or sets the first row of the transform, second column. Group code 41.</summary>
    [CadDouble(41)]
    internal double M01 { get; set; }

    /// <summary>Gets or sets the first row of the transform, third column. Group code 42.</summary>
    [CadDouble(42)]
    internal double M02 { get; set; }

    /// <summary>Gets or sets the first row of the transform, fourth column. Group code 43.</summary>
    [CadDouble(43)]
    internal double M03 { get; set; }

    /// <summary>Gets or sets the second row of the transform, first column. Group code 44.</summary>
    [CadDouble(44)]
    internal double M10 { get; set; }

    /// <summary>Gets or sets the second row of the transform, second column. Group code 45.</summary>
    [CadDouble(45)]
    internal double M11 { get; set; } = 1;

    /// <summary>Gets or sets the second row of the transform, third column. Group code 46.</summary>
    [CadDouble(46)]
    internal double M12 { get; set; }

    /// <summary>Gets or sets the second row of the transform, fourth column. Group code 47.</summary>
    [CadDouble(47)]
    internal double M13 { get; set; }

    /// <summary>Gets or sets the third row of the transform, first column. Group code 48.</summary>
    [CadDouble(48)]
    internal double M20 { get; set; }

    /// <summary>Gets or sets the third row of the transform, second column. Group code 49.</summary>
    [CadDouble(49)]
    internal double M21 { get; set; }

    /// <summary>Gets or sets the third row of the transform, third column, times 180/pi, since the group code is that
    /// of an angle. Group code 50.</summary>
    [CadAngle(50)]
    internal double M22 { get; set; } = 57.29577951308232;

    /// <summary>Gets or sets the third row of the transform, fourth column, as an angle. Group code 51.</summary>
    [CadAngle(51)]
    internal double M23 { get; set; }

    /// <summary>Gets or sets the last row of the transform, first column, as an angle. Group code 52.</summary>
    [CadAngle(52)]
    internal double M30 { get; set; }

    /// <summary>Gets or sets the last row of the transform, second column, as an angle. Group code 53.</summary>
    [CadAngle(53)]
    internal double M31 { get; set; }

    /// <summary>Gets or sets the last row of the transform, third column, as an angle. Group code 54.</summary>
    [CadAngle(54)]
    internal double M32 { get; set; }

    /// <summary>Gets or sets the last row of the transform, fourth column, as an angle. Group code 55.</summary>
    [CadAngle(55)]
    internal double M33 { get; set; } = 57.29577951308232;

    /// <summary>Gets or sets the index of the colour. Group code 62.</summary>
    [CadColor(62)]
    public short ColorId { get; set; } = 256;

    /// <summary>Gets or sets the index of the step. Group code 92.</summary>
    [CadInt(92)]
    public int StepId { get; set; }

    /// <summary>Gets or sets the handle of the material in hexadecimal. Group code 347.</summary>
    [CadHandle(347)]
    public string Material { get; set; } = "0";

    /// <summary>Gets the transform of the step into world coordinates: 16 numbers, row by row. Group codes 40 to
    /// 55.</summary>
    /// <returns>The numbers.</returns>
    public double[] GetTransform()
    {
        const double radian = System.Math.PI / 180;
        return
        [
            M00, M01, M02, M03, M10, M11, M12, M13, M20, M21,
            M22 * radian, M23 * radian, M30 * radian, M31 * radian, M32 * radian, M33 * radian,
        ];
    }
}
