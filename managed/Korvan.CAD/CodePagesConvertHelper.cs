using System;
using Korvan.CAD.Binding;
using Korvan.CAD.Encodings;

namespace Korvan.CAD;

/// <summary>Converts between code pages and their names in drawings, and between text and bytes.</summary>
public static class CodePagesConvertHelper
{
    /// <summary>Returns the code page of a name such as <c>ANSI_1252</c>, <c>BIG5</c> or <c>UTF-8</c>.</summary>
    /// <param name="name">The name as in the header variable $DWGCODEPAGE; case is ignored.</param>
    /// <returns>The code page, or <see cref="CodePages.Default"/> for one that is not in
    /// <see cref="CodePages"/>.</returns>
    public static CodePages FromName(string name)
    {
        Verify.NotNull(name);
        var page = (CodePages)DwgCodePage.Number(name);
        return Enum.IsDefined(page) ? page : CodePages.Default;
    }

    /// <summary>Returns the name of a code page in drawings.</summary>
    /// <param name="codePage">The code page; <see cref="CodePages.Default"/> is that of drawings without a declared
    /// one.</param>
    /// <returns>The name.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static string ToName(CodePages codePage) => codePage switch
    {
        CodePages.Default => DwgCodePage.DefaultName,
        CodePages.Utf8 => "UTF-8",
        _ => "ANSI_" + Number(codePage),
    };

    /// <summary>Returns the code page of a double-byte code page of sequences <c>\M+nXXXX</c>.</summary>
    /// <param name="codePage">The double-byte code page.</param>
    /// <returns>The code page; <see cref="CodePages.Default"/> for <see cref="MifCodePages.Undefined"/> and for Johab,
    /// which drawings cannot declare.</returns>
    public static CodePages FromMif(MifCodePages codePage) => codePage switch
    {
        MifCodePages.Japanese => CodePages.Japanese,
        MifCodePages.TradChinese => CodePages.TradChinese,
        MifCodePages.Korean => CodePages.Korean,
        MifCodePages.SimpChinese => CodePages.SimpChinese,
        _ => CodePages.Default,
    };

    /// <summary>Encodes text. Characters that the code page lacks become <c>\U+XXXX</c>.</summary>
    /// <param name="text">The text.</param>
    /// <param name="codePage">The code page.</param>
    /// <returns>The bytes.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static byte[] Encode(string text, CodePages codePage)
    {
        Verify.NotNull(text);
        return TextEscapes.Escaping(DwgCodePage.Get(Number(codePage))).GetBytes(text);
    }

    /// <summary>Decodes text. Sequences <c>\U+XXXX</c> and <c>\M+nXXXX</c> become the characters that they
    /// represent.</summary>
    /// <param name="bytes">The bytes.</param>
    /// <param name="codePage">The code page.</param>
    /// <returns>The text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such code page.</exception>
    public static string Decode(byte[] bytes, CodePages codePage)
    {
        Verify.NotNull(bytes);
        return TextEscapes.Standard.Decode(DwgCodePage.Get(Number(codePage)).GetString(bytes));
    }

    private static int Number(CodePages codePage)
    {
        if (!Enum.IsDefined(codePage))
        {
            throw Verify.OutOfRange(nameof(codePage), codePage, "No code page has this number.");
        }

        return codePage == CodePages.Default ? DwgCodePage.Number(DwgCodePage.DefaultName) : (int)codePage;
    }
}
