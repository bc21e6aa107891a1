using System.Buffers;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Which names records of tables may have.</summary>
internal static class SymbolNames
{
    private static readonly SearchValues<char> Reserved = SearchValues.Create("<>/\\\":;?*|=`");

    /// <summary>Refuses a name of a layer that other programs refuse. A bar stands between the name of an external
    /// reference and that of a layer in it.</summary>
    internal static void VerifyLayer(string name)
    {
        int bar = name.IndexOf('|');
        bool isReferred = bar > 0 && bar < name.Length - 1;
        for (int i = 0; i < name.Length; i++)
        {
            if ((Reserved.Contains(name[i]) && !(isReferred && i == bar)) || IsControl(name[i]))
            {
                throw new CadException($"'{name}' cannot name a layer: it has {Shown(name[i])}; "
                    + "< > / \\ \" : ; ? * | = ` and control characters are reserved.");
            }
        }
    }

    private static string Shown(char character) => IsControl(character) ? $"the control character {(int)character}"
        : $"a '{character}'";

    // Those that end a line or stand for nothing; characters beyond ASCII are texts like others.
    private static bool IsControl(char character) => char.IsAscii(character) && char.IsControl(character);
}
