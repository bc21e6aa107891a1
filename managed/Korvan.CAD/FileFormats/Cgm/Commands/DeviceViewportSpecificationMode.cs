using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What the coordinates of the device viewport count.</summary>
public sealed class DeviceViewportSpecificationMode : Command
{
    private static readonly string[] Words = ["FRACTION", "MM", "PHYDEVCOORD"];

    /// <summary>Creates the element with its default, parts of the surface.</summary>
    public DeviceViewportSpecificationMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.DeviceViewportSpecificationMode)
    {
    }

    /// <summary>The kinds of coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Mode
    {
        /// <summary>Parts of the surface, 0 to 1.</summary>
        FractionOfDrawingSurface = 0,

        /// <summary>Millimetres, multiplied by a factor.</summary>
        MillimetresWithScaleFactor = 1,

        /// <summary>Units of the device.</summary>
        PhysicalDeviceCoordinates = 2,
    }

    /// <summary>Gets or sets the kind.</summary>
    public Mode Value { get; set; } = Mode.FractionOfDrawingSurface;

    /// <summary>Gets or sets the factor of millimetres.</summary>
    public double ScaleFactor { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        Value = x.Enumeration(Value, Words);
        ScaleFactor = x.FloatingReal(ScaleFactor);
    }

    internal override void Apply(CodingState state) => state.ViewportMode = Value;
}
