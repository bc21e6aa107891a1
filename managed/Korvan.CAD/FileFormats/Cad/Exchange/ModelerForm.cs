namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>How a format has the data of solids.</summary>
internal enum ModelerForm
{
    /// <summary>As the object has them.</summary>
    Unchanged,

    /// <summary>As lines of text among the fields of the solid.</summary>
    Text,

    /// <summary>As binary data in a section of its own.</summary>
    Separate,
}
