using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>A metadata packet is not well formed, or breaks the rules of the extensible metadata platform.</summary>
public class XmpException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public XmpException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public XmpException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
