using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>Compressed data cannot be packed or unpacked.</summary>
public class CompressorException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public CompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public CompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
