using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is a floating-point number.</summary>
public sealed class CadDoubleParameter : CadParameter
{
    internal CadDoubleParameter(int attribute, string subclass, double value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.Double;

    /// <summary>Gets the value.</summary>
    public double Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Attribute}: {Value}");
}
