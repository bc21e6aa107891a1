using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The largest colour index that the metafile uses.</summary>
[CgmCommand(MetaFileDescriptorElement.MaximumColourIndex, "MAXCOLRINDEX")]
public sealed partial class MaximumColourIndex : Command
{
    /// <summary>Gets or sets the colour index.</summary>
    [CgmColorIndex]
    public int Index { get; set; } = 63;
}

/// <summary>The range of the components of direct colours: two colours for RGB and CMYK, a scale and an offset for each
/// component of the other colour models.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourValueExtent, "COLRVALUEEXT")]
public sealed partial class ColourValueExtent : Command
{
    /// <summary>Gets or sets the components of minimum intensity, three, or four for CMYK. RGB and CMYK only.</summary>
    public List<long> Minimum { get; set; } = [0, 0, 0];

    /// <summary>Gets or sets the components of maximum intensity, as many as of the minimum. RGB and CMYK
    /// only.</summary>
    public List<long> Maximum { get; set; } = [255, 255, 255];

    /// <summary>Gets or sets the scales of the three components. Other models only.</summary>
    public List<double> Scales { get; set; } = [1, 1, 1];

    /// <summary>Gets or sets the offsets of the three components. Other models only.</summary>
    public List<double> Offsets { get; set; } = [0, 0, 0];

    internal override void Exchange(ParameterExchange x)
    {
        if (x.State.ColorModel is ColourModel.Model.Rgb or ColourModel.Model.Cmyk)
        {
            Minimum = Components(x, Minimum, nameof(Minimum));
            Maximum = Components(x, Maximum, nameof(Maximum));
        }
        else
        {
            (Scales, Offsets) = x.Pairs(
                (Scales, Offsets),
                (nameof(Scales), nameof(Offsets)),
                3,
                static (y, scale) => y.Real(scale),
                static (y, offset) => y.Real(offset));
        }
    }

    internal override void Apply(CodingState state)
    {
        if (state.ColorModel is ColourModel.Model.Rgb or ColourModel.Model.Cmyk)
        {
            state.ColorLow = Bounds(Minimum, 0);
            state.ColorHigh = Bounds(Maximum, 255);
        }
        else
        {
            state.ColorScale = [.. Scales];
            state.ColorOffset = [.. Offsets];
        }
    }

    private static List<long> Components(ParameterExchange x, List<long> values, string name) =>
        x.Counted(values, name, x.State.ColorComponents, static (y, value) => y.ColorComponent(value));

    private static double[] Bounds(List<long> values, double missing) =>
        [.. Enumerable.Range(0, 4).Select(i => i < values.Count ? values[i] : missing)];
}

/// <summary>The colour model of direct colours.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourModel, "COLRMODEL", Default = "the default model, RGB")]
public sealed partial class ColourModel : Command
{
    /// <summary>The colour models; indexes above 5 are reserved for registration.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Model
    {
        /// <summary>Red, green and blue.</summary>
        Rgb = 1,

        /// <summary>CIE L*a*b*.</summary>
        CieLab = 2,

        /// <summary>CIE L*u*v*.</summary>
        CieLuv = 3,

        /// <summary>Cyan, magenta, yellow and black.</summary>
        Cmyk = 4,

        /// <summary>Red, green and blue of a calibrated device.</summary>
        RgbRelated = 5,
    }

    /// <summary>Gets or sets the model.</summary>
    [CgmIndex]
    public Model Value { get; set; } = Model.Rgb;

    internal override void Apply(CodingState state) => state.ColorModel = Value;
}

/// <summary>The calibration of direct colours to CIE XYZ.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourCalibration, "COLRCALIB")]
public sealed partial class ColourCalibration : Command
{
    /// <summary>Gets or sets the index of the calibration selection; 1 is the only registered one.</summary>
    [CgmIndex]
    public int CalibrationSelection { get; set; } = 1;

    /// <summary>Gets or sets X, Y and Z of the reference white.</summary>
    public List<double> ReferenceWhite { get; set; } = [0.9505, 1, 1.0888];

    /// <summary>Gets or sets the 3 × 3 matrix from linear R, G, B to X, Y, Z, row by row.</summary>
    public List<double> Matrix { get; set; } = [1, 0, 0, 0, 1, 0, 0, 0, 1];

    /// <summary>Gets or sets the red components of the lookup table.</summary>
    public List<int> RedComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the red components, 0 to 1.</summary>
    public List<double> RedValues { get; set; } = [];

    /// <summary>Gets or sets the green components of the lookup table, as many as red ones.</summary>
    public List<int> GreenComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the green components.</summary>
    public List<double> GreenValues { get; set; } = [];

    /// <summary>Gets or sets the blue components of the lookup table, as many as red ones.</summary>
    public List<int> BlueComponents { get; set; } = [];

    /// <summary>Gets or sets the linear values of the blue components.</summary>
    public List<double> BlueValues { get; set; } = [];

    /// <summary>Gets or sets the CMYK grid locations, four components each.</summary>
    public List<int> GridLocations { get; set; } = [];

    /// <summary>Gets or sets X, Y and Z of each grid location, three numbers each.</summary>
    public List<double> GridValues { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        CalibrationSelection = x.Index(CalibrationSelection);
        ReferenceWhite = Reals(x, ReferenceWhite, nameof(ReferenceWhite), 3);
        Matrix = Reals(x, Matrix, nameof(Matrix), 9);
        int entries = x.Integer(RedComponents.Count);
        (RedComponents, RedValues) = Table(
            x, (RedComponents, RedValues), (nameof(RedComponents), nameof(RedValues)), entries);
        (GreenComponents, GreenValues) = Table(
            x, (GreenComponents, GreenValues), (nameof(GreenComponents), nameof(GreenValues)), entries);
        (BlueComponents, BlueValues) = Table(
            x, (BlueComponents, BlueValues), (nameof(BlueComponents), nameof(BlueValues)), entries);
        int places = x.Integer(GridLocations.Count / 4);
        GridLocations = x.Counted(
            GridLocations, nameof(GridLocations), 4L * places, static (y, value) => Component(y, value));
        GridValues = Reals(x, GridValues, nameof(GridValues), 3L * places);
    }

    private static List<double> Reals(ParameterExchange x, List<double> values, string name, long count) =>
        x.Counted(values, name, count, static (y, value) => y.Real(value));

    private static (List<int> Components, List<double> Values) Table(
        ParameterExchange x, (List<int> Components, List<double> Values) table, (string, string) names, int count) =>
        x.Pairs(table, names, count, static (y, value) => Component(y, value), static (y, value) => y.Real(value));

    private static int Component(ParameterExchange x, int value)
    {
        long component = x.ColorComponent(value);
        return component <= int.MaxValue
            ? (int)component
            : throw new CgmDataException($"the colour component {component} is larger than {int.MaxValue}");
    }
}
