namespace Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;

/// <summary>Values of a gradient that the format reserves.</summary>
public sealed class CadReservedForFutureValues
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadReservedForFutureValues()
    {
    }

    /// <summary>Gets or sets the reserved value after the flag of the gradient, which is 0 so far. Group code
    /// 451.</summary>
    public int GradientValue { get; set; }
}
