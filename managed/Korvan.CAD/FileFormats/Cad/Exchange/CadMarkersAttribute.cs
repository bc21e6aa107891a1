using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States a subclass marker without fields around those of a class.</summary>
[AttributeUsage(AttributeTargets.Class, Inherited = false)]
internal sealed class CadMarkersAttribute : Attribute
{
    /// <summary>Gets or sets the marker before the fields.</summary>
    public string? Leading { get; set; }

    /// <summary>Gets or sets the marker after the fields.</summary>
    public string? Trailing { get; set; }
}
