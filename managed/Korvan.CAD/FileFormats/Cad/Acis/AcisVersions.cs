namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The versions of the format that differ in their form.</summary>
internal static class AcisVersions
{
    /// <summary>Before it there is one line of header, and flags are 0 and 1.</summary>
    internal const int Keywords = 200;

    /// <summary>From it on the second value of a record is an index of the history.</summary>
    internal const int History = 700;

    /// <summary>From it on the end names the successor of the modeler.</summary>
    internal const int Successor = 21800;

    /// <summary>Returns the name of the modeler that ends the data.</summary>
    internal static string ModelerOf(int version) => version >= Successor ? "ASM" : "ACIS";
}
