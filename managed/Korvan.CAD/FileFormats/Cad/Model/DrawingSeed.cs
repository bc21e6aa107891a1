
namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What a drawing begins with.</summary>
internal enum DrawingSeed
{
    /// <summary>Tables, layouts and variables that every drawing has.</summary>
    Standard,

    /// <summary>Nothing: a reader adds everything.</summary>
    Blank,
}
