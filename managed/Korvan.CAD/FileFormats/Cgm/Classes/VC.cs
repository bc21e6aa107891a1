using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A coordinate on the surface of a device: a part of its side, millimetres with a factor, or units of the
/// device, as <see cref="Commands.DeviceViewportSpecificationMode"/> says.</summary>
public sealed class VC
{
    /// <summary>Creates the coordinate 0.</summary>
    public VC()
    {
    }

    /// <summary>Creates a coordinate.</summary>
    /// <param name="value">The number.</param>
    public VC(double value)
    {
        Value = value;
    }

    /// <summary>Gets the number; whole unless it is a part of the side.</summary>
    public double Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Value}");
}
