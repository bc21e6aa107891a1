using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether coordinates have a size in the world.</summary>
public sealed class ScalingMode : Command
{
    private static readonly string[] Words = ["ABSTRACT", "METRIC"];

    /// <summary>Creates the element with its defaults.</summary>
    public ScalingMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.ScalingMode)
    {
    }

    /// <summary>The kinds of scaling.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Any size will do.</summary>
        Abstract = 0,

        /// <summary>A unit is so many millimetres.</summary>
        Metric = 1,
    }

    /// <summary>Gets or sets whether they have one.</summary>
    public Mode Value { get; set; }

    /// <summary>Gets or sets how many millimetres one unit is; only for metric scaling.</summary>
    public double MetricScaleFactor { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        Value = x.Enumeration(Value, Words);
        MetricScaleFactor = x.FloatingReal(MetricScaleFactor);
    }
}
