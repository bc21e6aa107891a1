using System;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A viewport coordinate: a fraction of the drawing surface, millimetres multiplied by a factor, or physical
/// device coordinates, as <see cref="Commands.DeviceViewportSpecificationMode"/> says.</summary>
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

    /// <summary>Gets the coordinate; whole unless it is a fraction.</summary>
    public double Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Value}");
}
