#ifndef DOCHTML_IDENTIFIER_CONSTANT_H
#define DOCHTML_IDENTIFIER_CONSTANT_H

/* Starts the definition of an identifier as a constant in each source file that includes it. */
#ifdef __cplusplus
#define DOCHTML_IDENTIFIER inline constexpr
#else
#define DOCHTML_IDENTIFIER static const
#endif

#endif /* DOCHTML_IDENTIFIER_CONSTANT_H */
