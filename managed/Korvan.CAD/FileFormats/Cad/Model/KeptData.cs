namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// Data that no class interprets, in the form of the format that it was read from. Only a writer of that format can
/// write it back.
/// </summary>
internal abstract class KeptData
{
    /// <summary>Gets the name of the format, for messages.</summary>
    internal abstract string FormatName { get; }

    internal abstract KeptData Copy();
}
