using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>An area filled with a colour, a pattern or a gradient.</summary>
[CadObject("HATCH", Subclass = "AcDbHatch", HandWritten = true)]
[CadBits("ExchangeHatch()")]
public partial class CadHatch : CadEntityBase
{
    // Whether the fields that are read are those between the number of paths and what follows them.
    private bool _isAmongPaths;

    /// <summary>Creates a solid fill without boundaries.</summary>
    public CadHatch()
    {
    }

    /// <summary>Gets or sets the elevation in Z; X and Y are 0. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint ElevationPoint { get; set; } = new();

    /// <summary>Gets or sets the unit normal of the plane that coordinates are in. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the name of the pattern. Group code 2.</summary>
    [CadString(2)]
    public string PatternName { get; set; } = "SOLID";

    /// <summary>Gets or sets whether the area is filled: 0 with a pattern, 1 with a colour. Group code 70.</summary>
    [CadShort(70)]
    public short SolidFillFlag { get; set; } = 1;

    /// <summary>Gets or sets whether the hatch follows its boundaries: 0 no, 1 yes. Group code 71.</summary>
    [CadShort(71)]
    public short AssociativityFlag { get; set; }

    /// <summary>Gets or sets how nested boundaries count: 0 in turn, 1 the outermost alone, 2 ignored. Group code
    /// 75.</summary>
    [CadShort(75)]
    public short HatchStyle { get; set; }

    /// <summary>Gets or sets the origin of the pattern: 0 defined by the user, 1 predefined, 2 custom. Group
    /// code 76.</summary>
    [CadShort(76)]
    public short PatternType { get; set; } = 1;

    /// <summary>Gets or sets the rotation of the pattern, in degrees. Group code 52.</summary>
    [CadAngle(52)]
    public double PatternAngle { get; set; }

    /// <summary>Gets or sets the scale or distance of the pattern. Group code 41.</summary>
    [CadDouble(41)]
    public double PatternScale { get; set; } = 1;

    /// <summary>Gets or sets whether the lines of a user-defined pattern are crossed: 0 no, 1 yes. Group
    /// code 77.</summary>
    [CadShort(77)]
    public short DoubleFlag { get; set; }

    /// <summary>Gets or sets the size of a pixel when the boundary was found; 0 where it is not known. Group code
    /// 47.</summary>
    [CadDouble(47)]
    public double PixelSize { get; set; }

    /// <summary>Gets or sets whether the fill is a gradient: 0 no, 1 yes. Group code 450.</summary>
    [CadInt(450)]
    public int IsGradient { get; set; }

    /// <summary>Gets or sets whether the gradient has one colour: 0 two, 1 one. Group code 452.</summary>
    [CadInt(452)]
    public int SingleColorGradient { get; set; }

    /// <summary>Gets or sets the rotation of the gradient, in radians. Group code 460.</summary>
    [CadDouble(460)]
    public double GradientAngle { get; set; }

    /// <summary>Gets or sets how far the gradient is moved: 0 centred, 1 to the upper left. Group code 461.</summary>
    [CadDouble(461)]
    public double GradientShift { get; set; }

    /// <summary>Gets or sets the tint of a gradient of one colour, 0 to 1. Group code 462.</summary>
    [CadDouble(462)]
    public double GradientTint { get; set; }

    /// <summary>Gets or sets the name of the gradient: LINEAR, CYLINDER, INVCYLINDER, SPHERICAL, HEMISPHERICAL,
    /// CURVED and their INV forms. Group code 470.</summary>
    [CadString(470)]
    public string GradientName { get; set; } = "";

    /// <summary>Gets the colours of the gradient as 0xRRGGBB. The list is live. Group code 421.</summary>
    public List<int> GradientColors { get; } = [];

    /// <summary>Gets the values of the gradient that the format reserves.</summary>
    public CadReservedForFutureValues ReservedValues { get; } = new();

    /// <summary>Gets the boundary paths. The list is live. Group code 91.</summary>
    public IList<CadHatchBoundaryPathContainer> BoundaryPaths { get; } = new CheckedList<CadHatchBoundaryPathContainer>(
        "boundary_paths");

    /// <summary>Gets the lines of the pattern. The list is live. Group code 78.</summary>
    public IList<CadHatchPatternData> PatternDefinitions { get; } = new CheckedList<CadHatchPatternData>(
        "pattern_definitions");

    /// <summary>Gets points inside the areas. The list is live. Group code 98.</summary>
    public IList<Cad2DPoint> SeedPoints { get; } = new CheckedList<Cad2DPoint>("seed_points");

    /// <summary>Gets the position and the index of the colour of each gradient colour. Group codes 463, 63.</summary>
    internal List<(double Position, short? ColorId)> GradientStops { get; } = [];

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = true;
        _isAmongPaths &= code is not (75 or 76 or 78 or 98 or 100 or 450);
        if (_isAmongPaths && HatchFields.TryResumePaths(this, reader))
        {
            return;
        }

        switch (code)
        {
            case 91:
                HatchFields.ReadPaths(this, reader);
                _isAmongPaths = true;
                break;
            case 78:
                HatchFields.ReadPattern(this, reader);
                break;
            case 98:
                HatchFields.ReadSeeds(this, reader);
                break;
            case 451:
                ReservedValues.GradientValue = reader.GetInt();
                break;
            case 453:
                break;
            case 463:
                GradientStops.Add((reader.GetDouble(), null));
                break;
            case 63 when GradientStops.Count > 0:
                GradientStops[^1] = (GradientStops[^1].Position, reader.GetShort());
                break;
            case 421:
                GradientColors.Add(reader.GetInt());
                break;
            default:
                taken = false;
                break;
        }
    }

    partial void OnExchange(ObjectExchange fields) => HatchFields.Exchange(this, fields);

    private void ExchangeHatch(BitExchange fields) => HatchBits.Exchange(this, fields);
}
