using System;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object that another one owns.</summary>
public abstract partial class CadOwnedObjectBase : CadBaseObject
{
    internal CadOwnedObjectBase()
    {
    }

    /// <summary>Gets or sets the handle of the owner in hexadecimal; empty for none. Group code 330.</summary>
    /// <exception cref="FormatException">The text is not a hexadecimal number.</exception>
    public string SoftOwner
    {
        get => Owner == 0 ? "" : Owner.ToString("X", CultureInfo.InvariantCulture);
        set => Owner = HandleText.Parse(value);
    }

    /// <summary>Gets or sets the handle of the owner as a number; 0 for none.</summary>
    internal ulong Owner { get; set; }
}
