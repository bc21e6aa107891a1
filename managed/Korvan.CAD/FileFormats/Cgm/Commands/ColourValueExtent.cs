using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The range of the components of direct colours. For RGB and CMYK, two colours bound it; for the other models
/// each component has a factor and an offset.</summary>
public sealed class ColourValueExtent : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ColourValueExtent()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.ColourValueExtent)
    {
    }

    /// <summary>Gets or sets the components of no light, three, or four for CMYK. RGB and CMYK only.</summary>
    public List<long> Minimum { get; set; } = [0, 0, 0];

    /// <summary>Gets or sets the components of full light, as many as for no light. RGB and CMYK only.</summary>
    public List<long> Maximum { get; set; } = [255, 255, 255];

    /// <summary>Gets or sets the factors of the three components. Other models only.</summary>
    public List<double> Scales { get; set; } = [1, 1, 1];

    /// <summary>Gets or sets the offsets of the three components. Other models only.</summary>
    public List<double> Offsets { get; set; } = [0, 0, 0];

    internal override void Exchange(ParameterExchange x)
    {
        if (x.State.ColorModel is ColourModel.Model.Rgb or ColourModel.Model.Cmyk)
        {
            Minimum = Components(x, Minimum, x.State.ColorComponents);
            Maximum = Components(x, Maximum, x.State.ColorComponents);
            return;
        }

        if (!x.IsReading && (Scales.Count != 3 || Offsets.Count != 3))
        {
            throw new CgmDataException(
                $"three factors and offsets are needed, {Scales.Count} and {Offsets.Count} are there");
        }

        var scales = new List<double>();
        var offsets = new List<double>();
        for (int i = 0; i < 3; i++)
        {
            scales.Add(x.Real(x.IsReading ? 0 : Scales[i]));
            offsets.Add(x.Real(x.IsReading ? 0 : Offsets[i]));
        }

        (Scales, Offsets) = (scales, offsets);
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

    private static List<long> Components(ParameterExchange x, List<long> values, int count)
    {
        if (!x.IsReading && values.Count != count)
        {
            throw new CgmDataException($"the colour model has {count} components, the range {values.Count}");
        }

        return x.Counted(values, count, static (y, value) => y.ColorComponent(value));
    }

    private static double[] Bounds(List<long> values, double missing) =>
        [.. Enumerable.Range(0, 4).Select(i => i < values.Count ? values[i] : missing)];
}
